#include "xml/SimpleXMLParse.h"

#include "xml/SAXParser.h"
#include "xml/XMLErrors.h"
#include "xml/XMLTreeParser.h"

namespace SimpleXML {

std::unique_ptr<XMLElement> Parse(UStringRef<UTF8> text) {
    XMLTreeParser tree;
    SAXParser parser(tree);
    parser.Parse(text);
    std::unique_ptr<XMLElement> root = tree.ReleaseRoot();
    if (!root) throw FormatError();
    return root;
}

}  // namespace SimpleXML
