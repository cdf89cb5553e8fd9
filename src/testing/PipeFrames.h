#pragma once
// Frames of the pipe to the agent, written by hand: a 32-bit length in host byte order, then
// that many bytes.

#include <cstdint>
#include <string>

// Returns the four length bytes of a frame; any length, so that tests can send too long ones.
inline std::string FrameHeader(std::uint32_t length) {
    return std::string(reinterpret_cast<char const*>(&length), 4);
}

// Returns the whole frame of the text.
inline std::string Frame(std::string const& text) {
    return FrameHeader(static_cast<std::uint32_t>(text.size())) + text;
}
