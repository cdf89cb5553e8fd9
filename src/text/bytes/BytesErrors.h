#pragma once
// The failures of the byte-level text library: ranges and buffers too small, numerals that are
// none, stacks without room, and the failure class that carries a message text of its own.

#include <string>

#include "threads/DebuggableException.h"

class ConstData;

// A fixed capacity was too small for what was asked of it.
class ConstDataCapacityExceeded : public DebuggableException {};
// A writer of structured text into a Buffer ran out of space.
class DataOverflow : public DebuggableException {};

// The text is not a decimal numeral: empty, or a byte other than the digits 0 to 9.
class NotANumeral : public DebuggableException {};
// The numeral's value does not fit the width asked for.
class NumeralTooLarge : public DebuggableException {};

// A stack in storage of fixed size had no room for one more element.
class StackFull : public DebuggableException {};

// A length so large that the length plus the terminating zero overflows.
class StringyLengthTooLong : public DebuggableException {};

// Owns a copy of its message; what() returns that message.
class ExceptionPL : public DebuggableException {
  public:
    // A null text gives an empty message.
    explicit ExceptionPL(char const* text) : m_message(text ? text : "") {}
    ExceptionPL(unsigned char const* begin, unsigned char const* end)
        : m_message(reinterpret_cast<char const*>(begin), reinterpret_cast<char const*>(end)) {}
    // Copies the bytes of the range, embedded zeros included.
    explicit ExceptionPL(ConstData text);

    // Returns the message text.
    char const* what() const noexcept override { return m_message.c_str(); }

  private:
    std::string m_message;
};
