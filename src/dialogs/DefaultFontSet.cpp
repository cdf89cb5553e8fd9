#include "dialogs/DefaultFontSet.h"

#include <X11/Intrinsic.h>
#include <X11/StringDefs.h>
#include <X11/Xresource.h>

#include <climits>
#include <cstring>
#include <set>

#include "session/SessionState.h"

namespace {

// The pattern the toolkit itself falls back on when no default font set is configured.
char const fallbackFontSet[] = "-*-*-*-R-*-*-*-120-*-*-*-*,*";
// The fonts whose names give the candidates when even that fails.
char const candidateFonts[] = "-*-*-*-r-*-*-*-120-*-*-*-*";

// Returns the candidate made from a font name, or an empty string for a name with fewer than
// 13 dashes.
std::string CandidateOf(char const* name) {
    int dashes = 0;
    for (char const* at = name; *at; ++at) {
        if (*at == '-' && ++dashes == 13) return std::string(name, at + 1) + "*,*";
    }
    return std::string();
}

}  // namespace

bool FontSetCreates(Display* display, char const* baseFontNames, unsigned* height) {
    char** missing = nullptr;
    int missingCount = 0;
    char* defaultText = nullptr;
    XFontSet fontSet =
        XCreateFontSet(display, baseFontNames, &missing, &missingCount, &defaultText);
    if (missingCount != 0) XFreeStringList(missing);
    if (!fontSet) return false;
    if (height) *height = XExtentsOfFontSet(fontSet)->max_logical_extent.height;
    XFreeFontSet(display, fontSet);
    return true;
}

char const* DatabaseDefaultFontSet(Display* display) {
    XrmQuark names[2] = {XrmStringToQuark("xtDefaultFontSet"), NULLQUARK};
    XrmQuark classes[2] = {XrmStringToQuark("XtDefaultFontSet"), NULLQUARK};
    XrmRepresentation type;
    XrmValue value;
    if (!XrmQGetResource(XtDatabase(display), names, classes, &type, &value)) return nullptr;
    if (std::strcmp(XrmQuarkToString(type), XtRString) != 0) return nullptr;
    return static_cast<char const*>(value.addr);
}

std::string SmallestFontSetCandidate(Display* display, char const* const* names, int count) {
    std::set<std::string> tried;
    std::string best;
    unsigned bestHeight = UINT_MAX;
    for (int index = 0; index < count; ++index) {
        std::string candidate = CandidateOf(names[index]);
        if (candidate.empty()) continue;
        if (!tried.insert(candidate).second) continue;
        unsigned height = 0;
        if (!FontSetCreates(display, candidate.c_str(), &height)) continue;
        if (height < bestHeight) {
            best = candidate;
            bestHeight = height;
        }
    }
    return best;
}

std::string SmallestListedFontSet(Display* display) {
    int count = 0;
    char** names = XListFonts(display, candidateFonts, 1000, &count);
    std::string best = SmallestFontSetCandidate(display, names, names ? count : 0);
    if (names) XFreeFontNames(names);
    return best;
}

void ConfigValidDefaultFontSet() {
    char const* configured = DatabaseDefaultFontSet(display);
    if (configured && FontSetCreates(display, configured)) return;
    if (FontSetCreates(display, fallbackFontSet)) return;
    std::string best = SmallestListedFontSet(display);
    if (best.empty()) return;
    XrmDatabase database = XtDatabase(display);
    XrmPutStringResource(&database, "XtDefaultFontSet", best.c_str());
}
