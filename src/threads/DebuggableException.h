#pragma once
// The root of every failure class of the system. It sits in the lowest layer so that every
// subsystem, the threads included, can derive from it.

#include <exception>
#include <string>

namespace UnixPlatform {
// Empty marker base; failures carry no debugging data on this platform.
struct ExceptionDebuggingInfo {};
}  // namespace UnixPlatform

// Failures are told apart by class. what() returns the name of the object's run-time type, so
// that a class without text of its own still says what it is.
class DebuggableException : public std::exception, public UnixPlatform::ExceptionDebuggingInfo {
  public:
    DebuggableException() = default;
    DebuggableException(DebuggableException const&) = default;
    DebuggableException& operator=(DebuggableException const&) = default;
    ~DebuggableException() override;

    // Returns the demangled name of the run-time type; valid while the object lives.
    char const* what() const noexcept override;

  private:
    mutable std::string m_typeName;
};
