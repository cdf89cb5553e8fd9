#include "text/bytes/Bits.h"

namespace Bits {

namespace {

constexpr ByteTable MakeCount() {
    ByteTable table{};
    for (unsigned b = 0; b < 256; ++b) {
        unsigned n = 0;
        for (unsigned v = b; v; v >>= 1) n += v & 1;
        table.bytes[b] = static_cast<unsigned char>(n);
    }
    return table;
}

constexpr ByteTable MakeFirstZero() {
    ByteTable table{};
    for (unsigned b = 0; b < 256; ++b) {
        unsigned i = 0;
        while (i < 8 && ((b >> i) & 1)) ++i;
        table.bytes[b] = static_cast<unsigned char>(i);
    }
    return table;
}

constexpr ByteTable MakeLastZero() {
    ByteTable table{};
    for (unsigned b = 0; b < 256; ++b) {
        int i = 7;
        while (i >= 0 && ((b >> i) & 1)) --i;
        table.bytes[b] = static_cast<unsigned char>(i < 0 ? 8 : i);
    }
    return table;
}

constexpr ByteTable MakeReverse() {
    ByteTable table{};
    for (unsigned b = 0; b < 256; ++b) {
        unsigned r = 0;
        for (unsigned i = 0; i < 8; ++i) r |= ((b >> i) & 1) << (7 - i);
        table.bytes[b] = static_cast<unsigned char>(r);
    }
    return table;
}

}  // namespace

constexpr ByteTable const count = MakeCount();
constexpr ByteTable const firstZero = MakeFirstZero();
constexpr ByteTable const lastZero = MakeLastZero();
constexpr ByteTable const reverse = MakeReverse();

}  // namespace Bits
