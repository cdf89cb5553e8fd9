#pragma once
// Translation overrides on the process's global context for the length of a scope, as a loaded
// translation file would give them, asked before every file loaded earlier.

#include <string>
#include <utility>

#include "localized/FormatOverrides.h"
#include "testing/TestText.h"

class ScopedTranslation {
  public:
    // Takes a translation text: lines of "key<TAB>value".
    explicit ScopedTranslation(std::string table)
        : m_table(std::move(table)),
          m_set(U8(m_table)),
          m_scope(m_set, GlobalFormatOverrideContext()) {}
    ScopedTranslation(ScopedTranslation const&) = delete;
    ScopedTranslation& operator=(ScopedTranslation const&) = delete;

  private:
    std::string const m_table;
    FormatOverrideSet const m_set;
    FormatOverrideScope const m_scope;
};
