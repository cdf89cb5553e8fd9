#pragma once
// Tables over the 256 values of a byte, for bit counting and searching without loops.

namespace Bits {

struct ByteTable {
    unsigned char bytes[256];

    unsigned char operator[](unsigned char byte) const { return bytes[byte]; }
};

// The number of set bits.
extern ByteTable const count;
// The index of the lowest clear bit; 8 for 0xFF.
extern ByteTable const firstZero;
// The index of the highest clear bit; 8 for 0xFF.
extern ByteTable const lastZero;
// The bits mirrored: bit 0 becomes bit 7.
extern ByteTable const reverse;

}  // namespace Bits
