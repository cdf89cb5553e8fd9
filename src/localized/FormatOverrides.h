#pragma once
// Translation overrides: the entries of one translation text (FormatOverrideSet), and a context
// that stacks sets so that the set added last is asked first, key by key, before the ones under
// it and finally the default text.
//
// A translation text is a table of lines, each "key<TAB>value". A line ends at CR or at LF,
// each on its own, so CR LF ends one line and adds an empty one. The key is everything before
// the first tab, the value everything behind the last tab: a middle column is a note for the
// translator and is skipped. A line without a tab, or with an empty key, is ignored; an empty
// value is an override like any other. Nothing is trimmed, decoded or escaped, and no text is
// refused: a bad value surfaces only when its text is rendered.

#include <vector>

#include "localized/FormatSegments.h"
#include "text/unicode/UString.h"
#include "threads/List.h"

class FormatOverrideSet {
  public:
    // Parses the text. Every entry is a view into it, so the text must outlive the set.
    explicit FormatOverrideSet(UStringRef<UTF8> text);

    // Returns whether the set has an entry of exactly this key: case, blanks and braces count.
    bool HasOverride(UStringRef<UTF8> key) const;
    // Returns the value of the key; of two lines with one key, the value that sorts first
    // bytewise. Throws FormatOverrideNotFound when the set has no such key.
    UStringRef<UTF8> GetOverride(UStringRef<UTF8> key) const;
    // Returns whether the set has the key, and its value in value if so.
    bool FindOverride(UStringRef<UTF8> key, UStringRef<UTF8>& value) const;

    // Returns the entries, sorted by key and then value.
    std::vector<FormatBinding> const& Entries() const { return m_entries; }

  private:
    std::vector<FormatBinding> m_entries;
};

class FormatOverrideContext;

// Makes a set take part in a context for as long as the scope exists, ahead of every set
// added before it. The set and the context must outlive the scope, or the context must go first.
class FormatOverrideScope : public ListNode {
  public:
    FormatOverrideScope(FormatOverrideSet const& set, FormatOverrideContext& context);

    FormatOverrideSet const& Set() const { return m_set; }

  private:
    FormatOverrideSet const& m_set;
};

// The stack of sets a text is looked up in. It owns none of them. Lookups change nothing but a
// walk's registration on the list, and there is no lock: all sets are added before any text is
// rendered, and texts are rendered on one thread.
class FormatOverrideContext {
  public:
    FormatOverrideContext() = default;
    // Leaves the scopes still in the context unlisted; they are not destroyed.
    ~FormatOverrideContext() = default;
    FormatOverrideContext(FormatOverrideContext const&) = delete;
    FormatOverrideContext& operator=(FormatOverrideContext const&) = delete;

    // Returns whether any set in the context has the key.
    bool HasOverride(UStringRef<UTF8> key) const;
    // Returns the value of the key in the first set from the head that has it, else
    // defaultValue.
    UStringRef<UTF8> Override(UStringRef<UTF8> key, UStringRef<UTF8> defaultValue) const;

  private:
    friend class FormatOverrideScope;
    List m_scopes;
};

// Returns the one context of the process, empty until translation files are added; made on
// first use and destroyed at exit.
FormatOverrideContext& GlobalFormatOverrideContext();
