#pragma once
// Base64 encoding (RFC 4648, standard alphabet, "=" padding) as a DataFilter, for use between
// two cursors or in a DataFilterer. The encoder keeps the bits of a partial character between
// calls, so input and output may come in pieces of any size; Flush writes the last character
// and the padding.

#include <cstdint>

#include "text/bytes/ConstData.h"
#include "text/streams/DataFilter.h"

class Base64Encoder : public DataFilter {
  public:
    using DataFilter::operator();

    // The 64 characters in the order of their values.
    static constexpr char alphabet[65] =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

    Base64Encoder() : bits(0), bitCount(0) {}

    // Encodes input into output. Returns when the input is used up and fewer than six bits
    // remain, or when the output is full; bits of characters not yet written are kept.
    void operator()(ConstBuffer& input, Buffer& output) override;
    // Returns true when no bits are waiting to be written.
    bool Flushed() const override { return bitCount == 0; }
    // Writes the waiting characters: whole ones first, then the last bits at the top of a
    // character followed by its padding. Returns early, not yet Flushed, if a full character
    // doesn't fit. Throws DataOverflow if the last character and its padding don't fit in an
    // output where nothing else was written by this call.
    void Flush(Buffer& output) override;

  private:
    std::uint32_t bits;
    unsigned bitCount;
};
