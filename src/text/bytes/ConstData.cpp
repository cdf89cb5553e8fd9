#include "text/bytes/ConstData.h"

#include <algorithm>
#include <cstring>

namespace {

// The members of Ascii::WhiteSpace: tab, line feed, carriage return and space.
bool IsAsciiWhiteSpace(unsigned char byte) {
    return byte == '\t' || byte == '\n' || byte == '\r' || byte == ' ';
}

}  // namespace

ConstData::ConstData(char const* text) : ConstData() {
    if (text) {
        begin = reinterpret_cast<unsigned char const*>(text);
        end = begin + std::strlen(text);
    }
}

bool ConstData::StartsWith(ConstData prefix) const {
    return prefix.Size() <= Size() && std::equal(prefix.begin, prefix.end, begin);
}

bool ConstData::EndsWith(ConstData suffix) const {
    return suffix.Size() <= Size() && std::equal(suffix.begin, suffix.end, end - suffix.Size());
}

ConstData ConstData::operator>>(Data target) const {
    std::size_t count = std::min(Size(), target.Size());
    if (count) std::memcpy(target.begin, begin, count);
    return ConstData(begin + count, end);
}

long ConstData::PositionOf(unsigned char byte) const {
    unsigned char const* hit = std::find(begin, end, byte);
    return hit == end ? -1 : static_cast<long>(hit - begin);
}

long ConstData::PositionOf(ConstData needle) const {
    if (needle.Empty() || needle.Size() > Size()) return -1;
    unsigned char const* hit = std::search(begin, end, needle.begin, needle.end);
    return hit == end ? -1 : static_cast<long>(hit - begin);
}

std::vector<std::size_t> ConstData::PositionsOf(ConstData needle) const {
    std::vector<std::size_t> positions;
    if (needle.Empty()) return positions;
    unsigned char const* from = begin;
    while (static_cast<std::size_t>(end - from) >= needle.Size()) {
        unsigned char const* hit = std::search(from, end, needle.begin, needle.end);
        if (hit == end) break;
        positions.push_back(static_cast<std::size_t>(hit - begin));
        from = hit + needle.Size();
    }
    return positions;
}

std::vector<ConstData> ConstData::Split(ConstData separator, bool trim, bool keepEmpty) const {
    std::vector<ConstData> pieces;
    if (separator.Empty() || separator.Size() > Size()) {
        pieces.push_back(trim ? TrimAsciiWhitespace(*this) : *this);
        return pieces;
    }
    unsigned char const* pieceBegin = begin;
    auto add = [&](unsigned char const* pieceEnd) {
        ConstData piece(pieceBegin, pieceEnd);
        if (trim) piece = TrimAsciiWhitespace(piece);
        if (keepEmpty || !piece.Empty()) pieces.push_back(piece);
    };
    for (std::size_t position : PositionsOf(separator)) {
        add(begin + position);
        pieceBegin = begin + position + separator.Size();
    }
    add(end);
    return pieces;
}

bool operator==(ConstData a, ConstData b) {
    return a.Size() == b.Size() && (a.Empty() || std::memcmp(a.begin, b.begin, a.Size()) == 0);
}

bool operator<(ConstData a, ConstData b) {
    return std::lexicographical_compare(a.begin, a.end, b.begin, b.end);
}

int Compare(ConstData a, ConstData b) {
    std::size_t common = std::min(a.Size(), b.Size());
    for (std::size_t i = 0; i < common; ++i) {
        if (a.begin[i] != b.begin[i]) return int(a.begin[i]) - int(b.begin[i]);
    }
    return a.Size() < b.Size() ? -1 : a.Size() > b.Size() ? 1 : 0;
}

int CompareReversed(ConstData a, ConstData b) {
    std::size_t common = std::min(a.Size(), b.Size());
    for (std::size_t i = 1; i <= common; ++i) {
        unsigned char x = a.end[-static_cast<long>(i)];
        unsigned char y = b.end[-static_cast<long>(i)];
        if (x != y) return int(x) - int(y);
    }
    return a.Size() < b.Size() ? -1 : a.Size() > b.Size() ? 1 : 0;
}

ConstData TrimLeadingAsciiWhitespace(ConstData data) {
    while (!data.Empty() && IsAsciiWhiteSpace(*data.begin)) ++data.begin;
    return data;
}

ConstData TrimAsciiWhitespace(ConstData data) {
    data = TrimLeadingAsciiWhitespace(data);
    while (!data.Empty() && IsAsciiWhiteSpace(data.end[-1])) --data.end;
    return data;
}

std::string MakeString(ConstData data) {
    return std::string(data.Chars(), data.Size());
}

std::string MakeString(ConstDataRopeReference rope) {
    std::string result;
    result.reserve(TotalLength(rope));
    for (ConstData const* part = rope.begin; part != rope.end; ++part) {
        result.append(part->Chars(), part->Size());
    }
    return result;
}

std::size_t TotalLength(ConstDataRopeReference rope) {
    std::size_t total = 0;
    for (ConstData const* part = rope.begin; part != rope.end; ++part) total += part->Size();
    return total;
}

void Buffer::Append(ConstData bytes) {
    if (bytes.Size() > Size()) throw DataOverflow();
    if (!bytes.Empty()) std::memcpy(cursor, bytes.begin, bytes.Size());
    cursor += bytes.Size();
}

void Buffer::Append(unsigned char byte) {
    if (Full()) throw DataOverflow();
    *cursor++ = byte;
}

Buffer& operator<<(Buffer& target, ConstDataRopeReference rope) {
    for (ConstData const* part = rope.begin; part != rope.end; ++part) {
        ConstData rest = *part >> target.Remaining();
        target.cursor += part->Size() - rest.Size();
    }
    return target;
}

Data operator<<(Data target, ConstDataRopeReference rope) {
    Buffer buffer(target);
    buffer << rope;
    return buffer.Remaining();
}

Buffer& operator<<(Buffer& target, ConstBuffer& source) {
    ConstData rest = source.Remaining() >> target.Remaining();
    target.cursor += rest.begin - source.cursor;
    source.cursor = rest.begin;
    return target;
}

ExceptionPL::ExceptionPL(ConstData text) : m_message(text.Chars(), text.Size()) {}
