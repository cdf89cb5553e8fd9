// Throughput of the XML layer on a 2 MiB document shaped like the agent's: a root with many
// action requests, texts in CDATA and with entity references, and no attributes, as the protocol
// has none. The element tree is compared with expat building an equivalent tree from the same
// bytes, and the writer writes the same document.

#include <benchmark/benchmark.h>
#include <expat.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "text/unicode/UStringBuilder.h"
#include "xml/SimpleXMLParse.h"
#include "xml/XMLElement.h"
#include "xml/XMLWriter.h"

namespace {

std::string const& Document() {
    static std::string const document = [] {
        std::string d = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ClientToUI>";
        for (int i = 0; d.size() < 2 * 1024 * 1024; ++i) {
            std::string const id = std::to_string(100000 + i);
            d += "\n\t<ActionRequest>\n\t\t<ID>" + id + "</ID>";
            d += "\n\t\t<Title><![CDATA[Install <Office Suite> update " + id +
                 " & restart]]></Title>";
            d += "\n\t\t<ShortDescription>This update fixes security issues &amp; improves "
                 "stability of &quot;Office&quot; applications &lt;version 16&gt;. Please save "
                 "your work before it starts; the computer may restart.</ShortDescription>";
            d += "\n\t\t<Deadline>2026-11-21 18:00:00 +0100</Deadline>\n\t</ActionRequest>";
        }
        d += "\n</ClientToUI>";
        return d;
    }();
    return document;
}

UStringRef<UTF8> DocumentView() {
    auto const* begin = reinterpret_cast<UTF8::Unit const*>(Document().data());
    return UStringRef<UTF8>(begin, begin + Document().size());
}

void BM_SimpleXMLParseTree(benchmark::State& state) {
    std::size_t children = 0;
    for (auto _ : state) {
        std::unique_ptr<XMLElement> root = SimpleXML::Parse(DocumentView());
        children = root->children.size();
        benchmark::DoNotOptimize(root.get());
    }
    state.counters["children"] = static_cast<double>(children);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Document().size()));
}
BENCHMARK(BM_SimpleXMLParseTree)->Unit(benchmark::kMillisecond);

// The same tree shape in standard types, filled from expat's callbacks.
struct ExpatNode {
    std::string name;
    std::map<std::string, std::string> attributes;
    std::string value;
    std::vector<ExpatNode> children;
};

struct ExpatTree {
    std::unique_ptr<ExpatNode> root;
    std::vector<ExpatNode*> open;

    static void Start(void* data, XML_Char const* name, XML_Char const** attributes) {
        auto* tree = static_cast<ExpatTree*>(data);
        ExpatNode node;
        node.name = name;
        for (XML_Char const** a = attributes; *a; a += 2) node.attributes[a[0]] = a[1];
        if (tree->open.empty()) {
            tree->root.reset(new ExpatNode(std::move(node)));
            tree->open.push_back(tree->root.get());
        } else {
            auto& siblings = tree->open.back()->children;
            siblings.push_back(std::move(node));
            tree->open.push_back(&siblings.back());
        }
    }
    static void End(void* data, XML_Char const*) { static_cast<ExpatTree*>(data)->open.pop_back(); }
    static void Text(void* data, XML_Char const* text, int length) {
        auto* tree = static_cast<ExpatTree*>(data);
        if (!tree->open.empty()) tree->open.back()->value.append(text, length);
    }
};

void BM_ExpatTree(benchmark::State& state) {
    std::size_t children = 0;
    for (auto _ : state) {
        ExpatTree tree;
        XML_Parser parser = XML_ParserCreate("UTF-8");
        XML_SetUserData(parser, &tree);
        XML_SetElementHandler(parser, &ExpatTree::Start, &ExpatTree::End);
        XML_SetCharacterDataHandler(parser, &ExpatTree::Text);
        if (XML_Parse(parser, Document().data(), static_cast<int>(Document().size()), 1) !=
            XML_STATUS_OK) {
            state.SkipWithError("expat rejected the document");
        }
        XML_ParserFree(parser);
        children = tree.root ? tree.root->children.size() : 0;
        benchmark::DoNotOptimize(tree.root.get());
    }
    state.counters["children"] = static_cast<double>(children);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * Document().size()));
}
BENCHMARK(BM_ExpatTree)->Unit(benchmark::kMillisecond);

void BM_XMLWriterWholeTree(benchmark::State& state) {
    std::unique_ptr<XMLElement> const root = SimpleXML::Parse(DocumentView());
    std::size_t written = 0;
    for (auto _ : state) {
        UStringBuilder<UTF8> out(256);
        XMLWriter writer(out, XMLWriter::IndentedLines);
        writer.BeginDocument(XMLWriter::WithEncoding);
        writer.WriteXMLElement(*root);
        writer.EndDocument();
        written = out.Used();
        benchmark::DoNotOptimize(out.Content().begin);
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * written));
}
BENCHMARK(BM_XMLWriterWholeTree)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
