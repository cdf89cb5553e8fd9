#pragma once
// The root of the file failure family. Every failure of the file layer is a FileIOError or one of
// its classes, so that callers can catch by meaning; the family carries and prints, it never logs.

#include <memory>
#include <string>

#include "text/ConstData.h"
#include "threads/DebuggableException.h"

// Returns the text of a system error number: "Error: <n>: <system text>", or
// "Unknown error: <n>" when the C library has no text for it.
std::string MakeErrorString(unsigned long code);

// A failure of the file layer with an error number and up to two paths.
// The data lives in one owned record; copying makes a new record.
class FileIOError : public DebuggableException {
  public:
    explicit FileIOError(int code);
    FileIOError(ConstData first, int code);
    FileIOError(ConstData first, ConstData second, int code);
    FileIOError(FileIOError const& other);
    // Copies code and the two paths into this object's record; the message cache is rebuilt on
    // the next what().
    FileIOError& operator=(FileIOError const& other);
    ~FileIOError() override;

    // Returns the system error number, or a small number of the thrower's own, or 0.
    int GetCode() const;
    // Returns the path the failure is about, or the empty string.
    std::string const& GetFirst() const;
    // Returns the other path of a two-path failure, or the empty string.
    std::string const& GetSecond() const;

    // Returns "File error \"<type>\"", then " on \"<first>\"", " and \"<second>\"" and
    // ": <MakeErrorString(code)>" for the parts that are present. Throws std::bad_alloc.
    std::string MakeErrorMessage() const;
    // Returns the message, rebuilt on each call; if building it fails, the run-time type name.
    // Valid until the next call or the end of the object.
    char const* what() const noexcept override;

  private:
    struct Record;
    std::unique_ptr<Record> m_record;
};
