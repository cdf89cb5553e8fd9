#pragma once
// The failure class that carries a message text of its own.

#include <string>

#include "text/ConstData.h"
#include "threads/DebuggableException.h"

// Owns a copy of its message; what() returns that message.
class ExceptionPL : public DebuggableException {
  public:
    // A null text gives an empty message.
    explicit ExceptionPL(char const* text) : m_message(text ? text : "") {}
    ExceptionPL(unsigned char const* begin, unsigned char const* end)
        : m_message(reinterpret_cast<char const*>(begin), reinterpret_cast<char const*>(end)) {}
    // Copies the bytes of the range, embedded zeros included.
    explicit ExceptionPL(ConstData text) : m_message(text.Chars(), text.Size()) {}

    // Returns the message text.
    char const* what() const noexcept override { return m_message.c_str(); }

  private:
    std::string m_message;
};
