#include "dialogs/ShownText.h"

#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cwchar>

namespace {

std::uint32_t const replacementCharacter = 0xFFFD;
std::uint32_t const horizontalEllipsis = 0x2026;

// Returns the next character of the text and moves p past it. An ill-formed sequence gives
// the replacement character for its longest start that could still have been well formed, so
// the byte that broke it begins the next character: overlong forms, encoded surrogates and
// values above 0x10FFFF are broken at their second byte.
std::uint32_t NextCharacter(UTF8::Unit const*& p, UTF8::Unit const* end) {
    unsigned const lead = *p++;
    if (lead < 0x80) return lead;
    unsigned following = 0;
    std::uint32_t value = 0;
    unsigned low = 0x80, high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        following = 1;
        value = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        following = 2;
        value = lead & 0x0F;
        if (lead == 0xE0) low = 0xA0;
        if (lead == 0xED) high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        following = 3;
        value = lead & 0x07;
        if (lead == 0xF0) low = 0x90;
        if (lead == 0xF4) high = 0x8F;
    } else {
        return replacementCharacter;
    }
    for (unsigned i = 0; i < following; ++i) {
        if (p == end || *p < low || *p > high) return replacementCharacter;
        value = (value << 6) | (*p++ & 0x3F);
        low = 0x80;
        high = 0xBF;
    }
    return value;
}

// Writes the character in the locale's encoding behind out; returns false, writing nothing,
// when the locale cannot express it.
bool AppendLocal(std::string& out, std::uint32_t character) {
    char bytes[MB_LEN_MAX];
    std::mbstate_t state{};
    std::size_t const length = std::wcrtomb(bytes, static_cast<wchar_t>(character), &state);
    if (length == static_cast<std::size_t>(-1)) return false;
    out.append(bytes, length);
    return true;
}

// What stands for a character that cannot be shown, and what ends a cut text, in the locale of
// the moment.
struct Substitutes {
    Substitutes() {
        if (!AppendLocal(replacement, replacementCharacter)) replacement = "?";
        if (AppendLocal(ellipsis, horizontalEllipsis)) {
            ellipsisCharacters = 1;
        } else {
            ellipsis = "...";
            ellipsisCharacters = 3;
        }
    }
    std::string replacement;
    std::string ellipsis;
    std::size_t ellipsisCharacters = 0;
};

void AppendShown(std::string& out, std::uint32_t character, Substitutes const& substitutes) {
    // A zero would end the text where the toolkit reads it.
    if (character == 0 || !AppendLocal(out, character)) out += substitutes.replacement;
}

std::string Shown(UStringRef<UTF8> text, std::size_t maxCharacters) {
    Substitutes const substitutes;
    std::string out;
    if (!text.begin) return out;
    std::size_t const kept = maxCharacters > substitutes.ellipsisCharacters
                                 ? maxCharacters - substitutes.ellipsisCharacters
                                 : 0;
    std::size_t keptLength = 0;
    std::size_t count = 0;
    for (UTF8::Unit const* p = text.begin; p != text.end; ++count) {
        if (count == kept) keptLength = out.size();
        std::uint32_t const character = NextCharacter(p, text.end);
        if (count == maxCharacters) {
            out.resize(keptLength);
            out += substitutes.ellipsis;
            break;
        }
        AppendShown(out, character, substitutes);
    }
    return out;
}

}  // namespace

std::string ShownText(UStringRef<UTF8> text) {
    return Shown(text, static_cast<std::size_t>(-1));
}

std::string ShortShownText(UStringRef<UTF8> text, std::size_t maxCharacters) {
    return Shown(text, maxCharacters);
}

std::size_t LocalCharacterCount(std::string const& localText) {
    std::size_t const count = std::mbstowcs(nullptr, localText.c_str(), 0);
    return count == static_cast<std::size_t>(-1) ? localText.size() : count;
}
