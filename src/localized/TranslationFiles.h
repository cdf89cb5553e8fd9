#pragma once
// Translation files: a file's bytes held in one buffer with the override set parsed over them,
// and the process-wide stack they are added to. A file added later is asked before the files
// added earlier. Files are never unloaded: they live until the process ends, and the views of
// every text rendered from them stay valid.

#include <cstddef>
#include <memory>
#include <set>

#include "files/FileLocation.h"
#include "localized/FormatOverrides.h"
#include "text/bytes/SharingPtr.h"
#include "text/unicode/UString.h"

class FileReadingPath;

// An owned array of T with its length: a begin and an end.
template <class T>
class SizedAutoArray {
  public:
    explicit SizedAutoArray(std::size_t count)
        : m_begin(count ? new T[count] : nullptr), m_end(m_begin + count) {}
    ~SizedAutoArray() { delete[] m_begin; }
    SizedAutoArray(SizedAutoArray const&) = delete;
    SizedAutoArray& operator=(SizedAutoArray const&) = delete;

    T* begin() const { return m_begin; }
    T* end() const { return m_end; }
    std::size_t Count() const { return static_cast<std::size_t>(m_end - m_begin); }

  private:
    T* m_begin;
    T* m_end;
};

// A translation file read whole, and its entries.
class FormatFile {
  public:
    // Reads the whole file and parses it. Throws RequiredValueWouldOverflow for a file longer
    // than 0xFFFFFFFF bytes (or a stream, which has no length), and the file errors of opening
    // and reading.
    explicit FormatFile(FileLocation const& location);

    // Returns the file's bytes; not zero-terminated.
    UStringRef<UTF8> FileContents() const {
        return UStringRef<UTF8>(m_contents.begin(), m_contents.end());
    }
    FormatOverrideSet const& Overrides() const { return m_overrides; }

  private:
    // Sizes the buffer by the open file's length, then reads into it and parses.
    explicit FormatFile(FileReadingPath const& path);

    SizedAutoArray<unsigned char> m_contents;
    FormatOverrideSet m_overrides;
};

// Loads the file and puts its entries at the head of GlobalFormatOverrideContext(), where they
// stay to the end of the process. A failure leaves the context as it was. Files must be added
// before any text is rendered, on the thread that renders. Throws what FormatFile throws.
void AddTranslationFile(FileLocation const& location);

// Every loaded file and its scope, kept alive to the end of the process; nothing is taken out.
// Their order is that of the pointers; the order of lookup is the context's.
extern std::set<SharingPtr<FormatFile> > m_formatFiles;
extern std::set<SharingPtr<FormatOverrideScope> > m_formatOverrides;
