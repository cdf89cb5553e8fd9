#include "text/unicode/GenericTranscoder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

// Every Receive below follows one pattern. The output is staged in a 4096-byte array on the
// stack; `room` is the last position at which a character may still begin, so that the target
// gets the area when fewer units are free than the longest character needs (1 for UTF-32, 2 for
// UTF-16, 4 for UTF-8). The area is passed on only once the next character is known to be good,
// so an exception leaves everything staged unsent, and whatever is staged at the end of the call
// is passed on. Runs of 7-bit characters take a fast path bounded by the free room.

namespace {

typedef UTF8::Unit Byte;
typedef UTF16::Unit Word;
typedef UTF32::Unit Code;

constexpr std::size_t stagingBytes = 4096;
constexpr std::uint64_t highBits = 0x8080808080808080ull;

// The encoding whose unit is Unit, to name the target of a staging area.
template <class Unit>
struct UnitEncoding;
template <>
struct UnitEncoding<Byte> {
    typedef UTF8 Type;
};
template <>
struct UnitEncoding<Word> {
    typedef UTF16 Type;
};
template <>
struct UnitEncoding<Code> {
    typedef UTF32 Type;
};

// Returns the number of bytes of the sequence that starts with the lead byte at p (top bit set)
// and stores its value, or returns 0 when the input ends before the sequence is decided. The
// value isn't checked: overlong forms, surrogates and values up to 0x1FFFFF pass. Throws
// InvalidTextEncoding when four bytes are present and none of the forms matched.
inline std::size_t DecodeSequence(Byte const* p, Byte const* end, Code& value) {
    std::ptrdiff_t available = end - p;
    Byte lead = p[0];
    if (available < 2) return 0;
    Byte b1 = p[1];
    bool follows1 = (b1 & 0xC0) == 0x80;
    if ((lead & 0xE0) == 0xC0 && follows1) {
        value = Code(lead & 0x1F) << 6 | Code(b1 & 0x3F);
        return 2;
    }
    if (available < 3) return 0;
    Byte b2 = p[2];
    bool follows2 = (b2 & 0xC0) == 0x80;
    if ((lead & 0xF0) == 0xE0 && follows1 && follows2) {
        value = Code(lead & 0x0F) << 12 | Code(b1 & 0x3F) << 6 | Code(b2 & 0x3F);
        return 3;
    }
    if (available < 4) return 0;
    Byte b3 = p[3];
    if ((lead & 0xF8) == 0xF0 && follows1 && follows2 && (b3 & 0xC0) == 0x80) {
        value = Code(lead & 0x07) << 18 | Code(b1 & 0x3F) << 12 | Code(b2 & 0x3F) << 6 |
                Code(b3 & 0x3F);
        return 4;
    }
    throw InvalidTextEncoding();
}

// Returns the code point of a surrogate pair. Throws InvalidTextEncoding unless first is a high
// and second a low surrogate.
inline Code CombineSurrogates(Word first, Word second) {
    if ((first & 0xFC00) != 0xD800 || (second & 0xFC00) != 0xDC00) throw InvalidTextEncoding();
    return (Code(first & 0x3FF) << 10) + 0x10000 + Code(second & 0x3FF);
}

// Throws InvalidTextEncoding for a surrogate or a value beyond the last plane.
inline void CheckEncodable(Code value) {
    if ((value & 0x1FF800) == 0xD800 || value >= 0x110000) throw InvalidTextEncoding();
}

// Passes the staged units to the target when a character can't begin at out; returns the
// cursor to write at.
template <class Unit>
inline Unit* MakeRoom(UTextReceiver<typename UnitEncoding<Unit>::Type>& target, Unit* area,
                      Unit* out, Unit* room) {
    if (out <= room) return out;
    target.Receive(ConstArrayOf<Unit>(area, out));
    return area;
}

}  // namespace

template <>
void GenericTranscoder<UTF32, UTF8>::Receive(ConstArrayOf<Byte> chunk) {
    Byte joined[4];
    unsigned held = carryCount;
    std::copy(carry, carry + held, joined);
    carryCount = 0;
    if (chunk.begin == chunk.end) return;

    Code area[stagingBytes / sizeof(Code)];
    Code* out = area;
    Code* const room = area + sizeof area / sizeof area[0] - 1;
    Byte const* p = chunk.begin;
    Byte const* const end = chunk.end;

    if (held != 0) {
        // The carried lead and its followers come first; the sequence that they open always
        // ends inside this chunk or is carried again whole.
        std::size_t taken = std::min<std::size_t>(static_cast<std::size_t>(end - p), 4 - held);
        std::copy(p, p + taken, joined + held);
        Code value;
        std::size_t used = DecodeSequence(joined, joined + held + taken, value);
        if (used == 0) {
            carryCount = static_cast<unsigned>(held + taken);
            std::copy(joined, joined + carryCount, carry);
            return;
        }
        *out++ = value;
        p += used - held;
    }

    while (p != end) {
        if (*p < 0x80) {
            out = MakeRoom(target, area, out, room);
            std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(end - p),
                                                  static_cast<std::size_t>(room + 1 - out));
            Byte const* stop = p + n;
            while (stop - p >= 8) {
                std::uint64_t word;
                std::memcpy(&word, p, 8);
                if (word & highBits) break;
                for (int k = 0; k < 8; ++k) out[k] = p[k];
                out += 8;
                p += 8;
            }
            while (p != stop && *p < 0x80) *out++ = *p++;
            continue;
        }
        Code value;
        std::size_t used = DecodeSequence(p, end, value);
        if (used == 0) {
            carryCount = static_cast<unsigned>(end - p);
            std::copy(p, end, carry);
            break;
        }
        out = MakeRoom(target, area, out, room);
        *out++ = value;
        p += used;
    }
    if (out != area) target.Receive(ConstArrayOf<Code>(area, out));
}

template <>
void GenericTranscoder<UTF32, UTF16>::Receive(ConstArrayOf<Word> chunk) {
    unsigned held = carryCount;
    Word heldUnit = carry[0];
    carryCount = 0;
    if (chunk.begin == chunk.end) return;

    Code area[stagingBytes / sizeof(Code)];
    Code* out = area;
    Code* const room = area + sizeof area / sizeof area[0] - 1;
    Word const* p = chunk.begin;
    Word const* const end = chunk.end;

    if (held != 0) {
        *out++ = CombineSurrogates(heldUnit, *p);
        ++p;
    }
    while (p != end) {
        if ((*p & 0xF800) != 0xD800) {
            out = MakeRoom(target, area, out, room);
            std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(end - p),
                                                  static_cast<std::size_t>(room + 1 - out));
            Word const* stop = p + n;
            while (p != stop && (*p & 0xF800) != 0xD800) *out++ = *p++;
            continue;
        }
        if (p + 1 == end) {
            carry[0] = *p;
            carryCount = 1;
            break;
        }
        Code value = CombineSurrogates(p[0], p[1]);
        out = MakeRoom(target, area, out, room);
        *out++ = value;
        p += 2;
    }
    if (out != area) target.Receive(ConstArrayOf<Code>(area, out));
}

template <>
void GenericTranscoder<UTF8, UTF32>::Receive(ConstArrayOf<Code> chunk) {
    carryCount = 0;
    if (chunk.begin == chunk.end) return;

    Byte area[stagingBytes];
    Byte* out = area;
    Byte* const room = area + sizeof area - 4;
    Code const* p = chunk.begin;
    Code const* const end = chunk.end;

    while (p != end) {
        Code value = *p;
        if (value < 0x80) {
            out = MakeRoom(target, area, out, room);
            std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(end - p),
                                                  static_cast<std::size_t>(room + 1 - out));
            Code const* stop = p + n;
            while (p != stop && *p < 0x80) *out++ = static_cast<Byte>(*p++);
            continue;
        }
        if (value >= 0x800) CheckEncodable(value);
        out = MakeRoom(target, area, out, room);
        if (value < 0x800) {
            out[0] = static_cast<Byte>(0xC0 | value >> 6);
            out[1] = static_cast<Byte>(0x80 | (value & 0x3F));
            out += 2;
        } else if (value < 0x10000) {
            out[0] = static_cast<Byte>(0xE0 | value >> 12);
            out[1] = static_cast<Byte>(0x80 | (value >> 6 & 0x3F));
            out[2] = static_cast<Byte>(0x80 | (value & 0x3F));
            out += 3;
        } else {
            out[0] = static_cast<Byte>(0xF0 | value >> 18);
            out[1] = static_cast<Byte>(0x80 | (value >> 12 & 0x3F));
            out[2] = static_cast<Byte>(0x80 | (value >> 6 & 0x3F));
            out[3] = static_cast<Byte>(0x80 | (value & 0x3F));
            out += 4;
        }
        ++p;
    }
    if (out != area) target.Receive(ConstArrayOf<Byte>(area, out));
}

template <>
void GenericTranscoder<UTF16, UTF32>::Receive(ConstArrayOf<Code> chunk) {
    carryCount = 0;
    if (chunk.begin == chunk.end) return;

    Word area[stagingBytes / sizeof(Word)];
    Word* out = area;
    Word* const room = area + sizeof area / sizeof area[0] - 2;
    Code const* p = chunk.begin;
    Code const* const end = chunk.end;

    while (p != end) {
        Code value = *p++;
        CheckEncodable(value);
        out = MakeRoom(target, area, out, room);
        if (value < 0x10000) {
            *out++ = static_cast<Word>(value);
        } else {
            out[0] = static_cast<Word>(0xD800 | (value - 0x10000) >> 10);
            out[1] = static_cast<Word>(0xDC00 | (value & 0x3FF));
            out += 2;
        }
    }
    if (out != area) target.Receive(ConstArrayOf<Word>(area, out));
}

template <>
void GenericTranscoder<UTF16, USAscii>::Receive(ConstArrayOf<Byte> chunk) {
    carryCount = 0;
    if (chunk.begin == chunk.end) return;

    Word area[stagingBytes / sizeof(Word)];
    Word* out = area;
    Word* const room = area + sizeof area / sizeof area[0] - 2;
    Byte const* p = chunk.begin;
    Byte const* const end = chunk.end;

    while (p != end) {
        if (*p & 0x80) throw InvalidTextEncoding();
        out = MakeRoom(target, area, out, room);
        std::size_t n = std::min<std::size_t>(static_cast<std::size_t>(end - p),
                                              static_cast<std::size_t>(room + 1 - out));
        for (Byte const* stop = p + n; p != stop; ++p) {
            if (*p & 0x80) throw InvalidTextEncoding();
            *out++ = *p;
        }
    }
    if (out != area) target.Receive(ConstArrayOf<Word>(area, out));
}
