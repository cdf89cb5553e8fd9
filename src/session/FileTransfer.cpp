#include "session/FileTransfer.h"

#include <sys/stat.h>

#include <cerrno>

#include "files/FileDataSink.h"
#include "files/FileDelete.h"
#include "files/FileWritingPath.h"
#include "files/ReadFile.h"
#include "text/streams/Base64DecodingDataMaker.h"
#include "text/streams/Base64EncodingLineMaker.h"
#include "text/streams/LineFlattener.h"
#include "text/streams/StringReceiver.h"
#include "xml/XMLLoad.h"

namespace {

// Support files may hold what the agent would not show to other users of the machine.
mode_t const supportFileMode = 0600;

// Returns the bytes in Base64 as one line, pushed through by feed.
template <class Feed>
std::string Base64Line(Feed feed) {
    std::string content;
    StringReceiver collector(content);
    LineFlattener flattener(LineFlattener::nothing, collector);
    Base64EncodingLineMaker encoder(flattener);
    feed(encoder);
    return content;
}

}  // namespace

FileTransfer::FileTransfer(std::string const& bytes, FileName const& name,
                           FileName const& subFolder)
    : m_name(name), m_subFolder(subFolder) {
    m_content = Base64Line([&](DataReceiver& encoder) {
        encoder.Start();
        encoder.Receive(ConstData(bytes));
        encoder.ReceiveEnd();
    });
}

FileTransfer::FileTransfer(FileLocation const& location, FileName const& name,
                           FileName const& subFolder)
    : m_name(name), m_subFolder(subFolder) {
    ReadFromFile(location);
}

void FileTransfer::WriteToFile(FileLocation const& location) const {
    ForceNonexistence(location);
    FileWritingPath path(location, OpenNewFile());
    if (::fchmod(path.Descriptor(), supportFileMode) != 0) path.ThrowError(errno);
    FileDataSink sink;
    sink(path, 0);
    Base64DecodingDataMaker decoder(sink);
    decoder.Start(0);
    decoder.Receive(ConstData(m_content));
    decoder.ReceiveEnd(m_content.size());
    path.Close();
}

void FileTransfer::ReadFromFile(FileLocation const& location) {
    m_content = Base64Line([&](DataReceiver& encoder) { ReadFile(location, encoder, 0); });
}

void XMLSerialize(XMLElement const& element, FileTransfer& file) {
    XMLSerialize(element, "FileName", file.m_name);
    XMLSerialize(element, "SubFolder", file.m_subFolder);
    XMLSerialize(element, "Content", file.m_content);
}
