#pragma once
// A support file in transit inside the first document of a session: its name, a sub-folder
// name that only the agent's side gives a meaning, and its bytes in Base64 without line breaks.

#include <string>

#include "files/FileLocation.h"
#include "files/FileName.h"

class XMLElement;

struct FileTransfer {
    FileTransfer() = default;
    // Encodes the bytes. For whoever composes the document; this process only loads files.
    FileTransfer(std::string const& bytes, FileName const& name, FileName const& subFolder);
    // Reads and encodes the file at location. Throws what ReadFromFile throws.
    FileTransfer(FileLocation const& location, FileName const& name, FileName const& subFolder);

    // Writes the decoded bytes to a new file at location, readable and writable by the owner
    // only. Whatever stood at the location goes first, a symbolic link as a link, so the write
    // never lands where a link points. Throws the file failures, and the name errors for an
    // empty location.
    void WriteToFile(FileLocation const& location) const;
    // Replaces the content with the file's bytes in Base64, as one long line. Throws the file
    // failures of reading.
    void ReadFromFile(FileLocation const& location);

    FileName m_name;
    FileName m_subFolder;
    std::string m_content;
};

// Loads "FileName", "SubFolder" and "Content", each as local text; the names are checked by
// the rules of FileName, and an absent "Content" gives a file of no bytes.
void XMLSerialize(XMLElement const& element, FileTransfer& file);
