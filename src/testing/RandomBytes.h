#pragma once
// Random inputs for property tests: the generator is seeded by the test, so a failure repeats.

#include <cstddef>
#include <random>
#include <string>

// Returns size bytes drawn uniformly from all 256 values, in a std::string or in any container
// of bytes that can be made with a size (std::vector<unsigned char>).
template <class Bytes = std::string>
Bytes RandomBytes(std::mt19937& random, std::size_t size) {
    Bytes bytes(size, 0);
    for (auto& byte : bytes) byte = static_cast<typename Bytes::value_type>(random());
    return bytes;
}
