// Renders arbitrary format strings with overrides. The input is split at zero bytes into a key,
// an override text and up to three arguments; the override is put into a context through a
// translation line when the key and the text can stand in one. Only the five format failures
// may come out of the rendering. When it succeeds, a format without braces comes out as it
// stands, and the result is zero-terminated.

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "localized/FormatOverrides.h"
#include "localized/LocalizedErrors.h"
#include "localized/UFormat.h"

namespace {

void Check(bool condition) {
    if (!condition) std::abort();
}

UStringRef<UTF8> View(std::string const& text) {
    auto const* begin = reinterpret_cast<UTF8::Unit const*>(text.data());
    return UStringRef<UTF8>(begin, begin + text.size());
}

AutoUString<UTF8> Render(FormatPlusArguments<0u> const& text,
                         std::vector<std::string> const& arguments) {
    switch (arguments.size()) {
        case 0:
            return MakeUString(text);
        case 1:
            return MakeUString(text.With(View(arguments[0])));
        case 2:
            return MakeUString(text.With(View(arguments[0])).With(View(arguments[1])));
        default:
            return MakeUString(
                text.With(View(arguments[0])).With(View(arguments[1])).With(View(arguments[2])));
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
    std::vector<std::string> pieces(1);
    for (size_t i = 0; i < size; ++i) {
        if (data[i] == 0 && pieces.size() < 5) {
            pieces.emplace_back();
        } else {
            pieces.back() += static_cast<char>(data[i]);
        }
    }
    std::string const& key = pieces[0];
    bool const hasOverride = pieces.size() > 1 &&
                             key.find_first_of("\t\r\n") == std::string::npos && !key.empty() &&
                             pieces[1].find_first_of("\r\n") == std::string::npos;
    std::string const table = hasOverride ? key + "\t" + pieces[1] : std::string();
    std::vector<std::string> const arguments(pieces.begin() + (pieces.size() > 1 ? 2 : 1),
                                             pieces.end());
    FormatOverrideSet const set(View(table));
    FormatOverrideContext context;
    FormatOverrideScope const scope(set, context);
    FormatPlusArguments<0u> const text = UFormat(View(key), View(key), context);
    std::string const format(reinterpret_cast<char const*>(text.format.begin),
                             text.format.Length());
    // A tab in the override's text starts a new column: the value is behind the last one.
    std::string const value =
        hasOverride ? pieces[1].substr(pieces[1].rfind('\t') + 1) : std::string();
    Check(format == (hasOverride ? value : key));
    try {
        AutoUString<UTF8> const result = Render(text, arguments);
        std::string rendered;
        if (result.begin) {
            Check(*result.end == 0);
            rendered.assign(reinterpret_cast<char const*>(result.begin), result.Length());
        }
        if (format.find('{') == std::string::npos) Check(rendered == format);
        if (key.find('{') == std::string::npos) Check(arguments.empty());
    } catch (BadFormatStringError const&) {
    } catch (ImproperFormatVariableName const&) {
    } catch (UndefinedFormatVariable const&) {
    } catch (TooManyFormatArguments const&) {
    } catch (TooFewFormatArguments const&) {
    }
    return 0;
}
