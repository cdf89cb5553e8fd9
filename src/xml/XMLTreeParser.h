#pragma once
// The receiver that builds an XMLElement tree from the callbacks of SimpleXML::SAXParser.

#include <memory>
#include <vector>

#include "xml/XMLElement.h"
#include "xml/XMLReceiver.h"

class XMLTreeParser : public XMLReceiver {
  public:
    XMLTreeParser();
    // Frees the tree if nobody took it, also after a failure mid-way.
    ~XMLTreeParser() override;

    XMLTreeParser(XMLTreeParser const&) = delete;
    XMLTreeParser& operator=(XMLTreeParser const&) = delete;

    // Opens a child of the innermost open element. With nothing open, the new element replaces
    // the whole tree read so far: of several top-level elements only the last survives.
    void StartElement(UStringRef<UTF8> name, AttributeMap const& attributes) override;
    // Closes the innermost open element, whatever the end tag's name; with none open, nothing.
    // A self-closed tag arrives only as this, so it closes the element around it.
    void EndElement() override;
    // Appends to the innermost open element; text outside every element is dropped.
    void Characters(UStringRef<UTF8> text) override;

    // Returns the root read so far, or null if no element was seen; the caller owns it.
    std::unique_ptr<XMLElement> ReleaseRoot();

  private:
    // Returns a shared string equal to `name`, from the names met lately when possible.
    SharedUString<UTF8> const& SharedName(UStringRef<UTF8> name);

    std::unique_ptr<XMLElement> root;
    // Outermost first. Each entry after the first points into its predecessor's children, which
    // stay put because only the innermost element receives children.
    std::vector<XMLElement*> openElements;
    // Element names repeat throughout a document, so the elements share one string for each
    // recent name instead of each allocating its own. Bounded, replaced in turn when full.
    std::vector<SharedUString<UTF8>> recentNames;
    std::size_t nextReplaced = 0;
};
