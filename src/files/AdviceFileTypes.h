#pragma once
// The table of file extensions of the agent's content files that this program knows about. The
// only content this program reads by type are translation files.

// The kinds of the agent's own content files that this program tells apart by extension.
// Unknown stands for every extension not in the table.
enum KetralFileType {
    UnknownKetralFileType = 0,
    TranslationKetralFileType,
};
class AdviceFileTypes {
  public:
    // Returns the type of an extension given with its leading "." (".xlat"), ignoring ASCII
    // case; an extension not in the table gives UnknownKetralFileType.
    static KetralFileType TypeOfExtension(char const* extension);
    // Returns the extension of a type with its leading ".", or "" for UnknownKetralFileType.
    static char const* ExtensionOfType(KetralFileType type);
};
