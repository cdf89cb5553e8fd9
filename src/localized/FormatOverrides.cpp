#include "localized/FormatOverrides.h"

#include <algorithm>

#include "localized/LocalizedErrors.h"

FormatOverrideSet::FormatOverrideSet(UStringRef<UTF8> text) {
    typedef UTF8::Unit Unit;
    // One pass with three positions: the line's start, its first tab (null while none was
    // seen), and the start of the value behind the latest tab.
    Unit const* lineStart = text.begin;
    Unit const* firstTab = nullptr;
    Unit const* valueStart = nullptr;
    auto storeLine = [&](Unit const* lineEnd) {
        if (firstTab && firstTab != lineStart) {
            m_entries.emplace_back(UStringRef<UTF8>(lineStart, firstTab),
                                   UStringRef<UTF8>(valueStart, lineEnd));
        }
    };
    for (Unit const* cursor = text.begin; cursor != text.end; ++cursor) {
        switch (*cursor) {
            case '\t':
                if (!firstTab) firstTab = cursor;
                valueStart = cursor + 1;
                break;
            case '\r':
            case '\n':
                storeLine(cursor);
                lineStart = cursor + 1;
                firstTab = nullptr;
                break;
            default:
                break;
        }
    }
    storeLine(text.end);
    std::sort(m_entries.begin(), m_entries.end());
}

bool FormatOverrideSet::FindOverride(UStringRef<UTF8> key, UStringRef<UTF8>& value) const {
    auto const found = std::lower_bound(m_entries.begin(), m_entries.end(),
                                        FormatBinding(key, UStringRef<UTF8>()));
    if (found == m_entries.end() || found->first != key) return false;
    value = found->second;
    return true;
}

bool FormatOverrideSet::HasOverride(UStringRef<UTF8> key) const {
    UStringRef<UTF8> value;
    return FindOverride(key, value);
}

UStringRef<UTF8> FormatOverrideSet::GetOverride(UStringRef<UTF8> key) const {
    UStringRef<UTF8> value;
    if (!FindOverride(key, value)) throw FormatOverrideNotFound();
    return value;
}

FormatOverrideScope::FormatOverrideScope(FormatOverrideSet const& set,
                                         FormatOverrideContext& context)
    : m_set(set) {
    context.m_scopes.Add(*this, BeforeStart());
}

bool FormatOverrideContext::HasOverride(UStringRef<UTF8> key) const {
    for (List::Loop loop(m_scopes); !loop.Done(); loop.Advance()) {
        if (!loop.Current()) continue;
        if (static_cast<FormatOverrideScope*>(loop.Current())->Set().HasOverride(key)) {
            return true;
        }
    }
    return false;
}

UStringRef<UTF8> FormatOverrideContext::Override(UStringRef<UTF8> key,
                                                 UStringRef<UTF8> defaultValue) const {
    // Most texts are never overridden; an empty context costs no walk.
    if (m_scopes.Empty()) return defaultValue;
    UStringRef<UTF8> value;
    for (List::Loop loop(m_scopes); !loop.Done(); loop.Advance()) {
        if (!loop.Current()) continue;
        if (static_cast<FormatOverrideScope*>(loop.Current())->Set().FindOverride(key, value)) {
            return value;
        }
    }
    return defaultValue;
}

FormatOverrideContext& GlobalFormatOverrideContext() {
    static FormatOverrideContext context;
    return context;
}
