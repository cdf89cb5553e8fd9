#include "text/bytes/Ascii.h"

#include <algorithm>

namespace Ascii {

namespace {

class SetMaker {
  public:
    SetMaker() : m_set{} {}
    SetMaker& Add(unsigned first, unsigned last) {
        for (unsigned b = first; b <= last; ++b) m_set.words[b >> 5] |= 1u << (b & 31);
        return *this;
    }
    SetMaker& Add(unsigned single) { return Add(single, single); }
    SetMaker& Remove(CharacterSet const& other) {
        for (int w = 0; w < 8; ++w) m_set.words[w] &= ~other.words[w];
        return *this;
    }
    SetMaker& Letters() { return Add('A', 'Z').Add('a', 'z'); }
    operator CharacterSet() const { return m_set; }

  private:
    CharacterSet m_set;
};

constexpr CaseTable MakeCaseTable(unsigned char first, unsigned char last, int shift) {
    CaseTable table{};
    for (unsigned b = 0; b < 256; ++b) {
        table.bytes[b] = static_cast<unsigned char>(b >= first && b <= last ? b + shift : b);
    }
    return table;
}

}  // namespace

CaseTable const uppercaseTable = MakeCaseTable('a', 'z', 'A' - 'a');
CaseTable const lowercaseTable = MakeCaseTable('A', 'Z', 'a' - 'A');

#define ZOL_ASCII_SET(name, ...)                                \
    CharacterSet const& name() {                                \
        static CharacterSet const set = SetMaker() __VA_ARGS__; \
        return set;                                             \
    }

ZOL_ASCII_SET(UppercaseAlphabet, .Add('A', 'Z'))
ZOL_ASCII_SET(LowercaseAlphabet, .Add('a', 'z'))
ZOL_ASCII_SET(Alphabetic, .Letters())
ZOL_ASCII_SET(Alphabetic_, .Letters().Add('_'))
ZOL_ASCII_SET(Numeric, .Add('0', '9'))
ZOL_ASCII_SET(Alphanumeric, .Letters().Add('0', '9'))
ZOL_ASCII_SET(Alphanumeric_, .Letters().Add('0', '9').Add('_'))
ZOL_ASCII_SET(HexDigits, .Add('0', '9').Add('A', 'F').Add('a', 'f'))
ZOL_ASCII_SET(Punctuation, .Add(0x21, 0x7E).Remove(Alphanumeric()))
ZOL_ASCII_SET(LinearWhiteSpace, .Add('\t').Add(' '))
ZOL_ASCII_SET(WhiteSpace, .Add('\t').Add('\n').Add('\r').Add(' '))
ZOL_ASCII_SET(Low, .Add(0x00, 0x7F))
ZOL_ASCII_SET(High, .Add(0x80, 0xFF))
ZOL_ASCII_SET(Control, .Add(0x00, 0x1F).Add(0x7F))
ZOL_ASCII_SET(PlainText, .Add(0x20, 0x7E))
ZOL_ASCII_SET(Printable, .Add(0x21, 0x7E))
ZOL_ASCII_SET(Unprintable, .Add(0x00, 0x20).Add(0x7F, 0xFF))

#undef ZOL_ASCII_SET

bool CaseTablesAreCorrect() {
    for (unsigned b = 0; b < 256; ++b) {
        bool lower = b >= 'a' && b <= 'z';
        bool upper = b >= 'A' && b <= 'Z';
        if (uppercaseTable.bytes[b] != (lower ? b - 0x20 : b)) return false;
        if (lowercaseTable.bytes[b] != (upper ? b + 0x20 : b)) return false;
    }
    return true;
}

namespace {

std::string Mapped(ConstData text, CaseTable const& table) {
    std::string result(text.Size(), '\0');
    std::transform(text.begin, text.end, result.begin(),
                   [&](unsigned char b) { return static_cast<char>(table[b]); });
    return result;
}

Data Mapped(ConstData text, Data target, CaseTable const& table) {
    std::size_t count = std::min(text.Size(), target.Size());
    std::transform(text.begin, text.begin + count, target.begin,
                   [&](unsigned char b) { return table[b]; });
    return Data(target.begin, count);
}

void Mapped(ConstBuffer& source, Buffer& target, CaseTable const& table) {
    Data written = Mapped(source.Remaining(), target.Remaining(), table);
    source.cursor += written.Size();
    target.cursor += written.Size();
}

bool Unchanged(ConstData text, CaseTable const& table) {
    return std::all_of(text.begin, text.end, [&](unsigned char b) { return table[b] == b; });
}

int CompareThrough(ConstData a, ConstData b, CaseTable const& table) {
    std::size_t common = std::min(a.Size(), b.Size());
    for (std::size_t i = 0; i < common; ++i) {
        int x = table[a.begin[i]];
        int y = table[b.begin[i]];
        if (x != y) return x - y;
    }
    return a.Size() < b.Size() ? -1 : a.Size() > b.Size() ? 1 : 0;
}

}  // namespace

std::string RaiseCase(ConstData text) {
    return Mapped(text, uppercaseTable);
}
std::string LowerCase(ConstData text) {
    return Mapped(text, lowercaseTable);
}
Data RaiseCase(ConstData text, Data target) {
    return Mapped(text, target, uppercaseTable);
}
Data LowerCase(ConstData text, Data target) {
    return Mapped(text, target, lowercaseTable);
}
void RaiseCase(ConstBuffer& source, Buffer& target) {
    Mapped(source, target, uppercaseTable);
}
void LowerCase(ConstBuffer& source, Buffer& target) {
    Mapped(source, target, lowercaseTable);
}

bool IsLowercase(ConstData text) {
    return Unchanged(text, lowercaseTable);
}
bool IsUppercase(ConstData text) {
    return Unchanged(text, uppercaseTable);
}

int CompareLowercase(ConstData a, ConstData b) {
    return CompareThrough(a, b, lowercaseTable);
}
int CompareUppercase(ConstData a, ConstData b) {
    return CompareThrough(a, b, uppercaseTable);
}
bool EqualIgnoringCase(ConstData a, ConstData b) {
    return a.Size() == b.Size() && CompareThrough(a, b, lowercaseTable) == 0;
}

}  // namespace Ascii
