#include "xml/XMLTreeParser.h"

#include <cstring>

XMLTreeParser::XMLTreeParser() = default;

XMLTreeParser::~XMLTreeParser() = default;

namespace {

std::size_t const maxRecentNames = 32;

}  // namespace

SharedUString<UTF8> const& XMLTreeParser::SharedName(UStringRef<UTF8> name) {
    std::size_t const length = name.Length();
    for (SharedUString<UTF8> const& known : recentNames) {
        if (known.Length() == length &&
            (length == 0 || std::memcmp(known.begin, name.begin, length) == 0))
            return known;
    }
    if (recentNames.size() < maxRecentNames) {
        recentNames.push_back(SharedUString<UTF8>(MakeUString(name)));
        return recentNames.back();
    }
    SharedUString<UTF8>& replaced = recentNames[nextReplaced];
    nextReplaced = (nextReplaced + 1) % maxRecentNames;
    replaced = MakeUString(name);
    return replaced;
}

void XMLTreeParser::StartElement(UStringRef<UTF8> name, AttributeMap const& attributes) {
    if (!openElements.empty()) {
        // Built in its place among the children: the same as adding a temporary, one copy less.
        // Room for a few children at once spares the moves of the first growth steps.
        std::vector<XMLElement>& siblings = openElements.back()->children;
        if (siblings.capacity() == 0) siblings.reserve(4);
        siblings.emplace_back(SharedName(name), attributes);
        openElements.push_back(&siblings.back());
    } else {
        std::unique_ptr<XMLElement> fresh(new XMLElement(SharedName(name), attributes));
        root = std::move(fresh);
        openElements.push_back(root.get());
    }
}

void XMLTreeParser::EndElement() {
    if (!openElements.empty()) openElements.pop_back();
}

void XMLTreeParser::Characters(UStringRef<UTF8> text) {
    if (!openElements.empty()) openElements.back()->AppendCharacters(text);
}

std::unique_ptr<XMLElement> XMLTreeParser::ReleaseRoot() {
    openElements.clear();
    return std::move(root);
}
