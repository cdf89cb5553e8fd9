#pragma once
// The kinds of the agent's own content files that this program tells apart by extension.

// Unknown stands for every extension not in the AdviceFileTypes table.
enum KetralFileType {
    UnknownKetralFileType = 0,
    TranslationKetralFileType,
};
