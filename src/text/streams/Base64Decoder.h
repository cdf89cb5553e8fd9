#pragma once
// Base64 decoding (RFC 4648, standard alphabet) as a DataFilter. Every byte outside the alphabet
// is skipped without a word: line breaks, blanks, "=" and rubbish alike, so no input is an
// error. Bits of an unfinished byte at the end are dropped; Flush has nothing to write.

#include <cstdint>

#include "text/bytes/ConstData.h"
#include "text/streams/DataFilter.h"

class Base64Decoder : public DataFilter {
  public:
    using DataFilter::operator();

    // The value of each byte as a Base64 character, or a negative value for a byte outside the
    // alphabet.
    static signed char const characterValues[256];
    // Returns whether characterValues agrees with the encoder's alphabet in all 256 places.
    static bool TableIsCorrect();

    Base64Decoder() : bits(0), bitCount(0) {}

    // Decodes input into output. Returns when the input is used up, or as soon as the output
    // is full. Throws DataOverflow if a character completes a byte while the output is already
    // full; that character is left unread.
    void operator()(ConstBuffer& input, Buffer& output) override;

  private:
    std::uint32_t bits;
    unsigned bitCount;
};
