#pragma once
// A one-line text of an element tree, to compare trees in tests: the name, each attribute in
// order as [name=value], the value in braces, then each child in parentheses:
// "r[k=v]{text}(a{1})(b{})".

#include <string>

#include "testing/TestText.h"
#include "xml/XMLElement.h"

inline std::string Dump(XMLElement const& element) {
    std::string text = Str(element.name);
    for (auto const& attribute : element.attributes)
        text += "[" + Str(attribute.first) + "=" + Str(attribute.second) + "]";
    text += "{" + Str(element.GetValue()) + "}";
    for (auto const& child : element.children) text += "(" + Dump(child) + ")";
    return text;
}
