#pragma once
// One-call Base64 (RFC 4648, standard alphabet): encoding with padding and no line breaks, and
// decoding that skips every byte outside the alphabet.

#include <string>
#include <vector>

#include "text/bytes/ConstData.h"

// Returns the Base64 text of the bytes, padded with "=" to a multiple of four characters.
std::string Base64Encode(ConstData bytes);
// Returns the bytes that the Base64 characters in text stand for. Bytes outside the alphabet,
// "=" included, are skipped, and bits of an unfinished byte at the end are dropped; no input is
// an error.
std::vector<unsigned char> Base64Decode(ConstData text);
