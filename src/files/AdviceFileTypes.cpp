#include "files/AdviceFileTypes.h"

#include "text/bytes/Ascii.h"
#include "text/bytes/ConstData.h"

namespace {

struct ExtensionRow {
    KetralFileType type;
    char const* extension;
};

// Translation files are the one kind of the agent's content this program looks for by type.
ExtensionRow const extensionTable[] = {
    {TranslationKetralFileType, ".xlat"},
};

}  // namespace

KetralFileType AdviceFileTypes::TypeOfExtension(char const* extension) {
    for (ExtensionRow const& row : extensionTable) {
        if (extension && Ascii::EqualIgnoringCase(ConstData(extension), ConstData(row.extension))) {
            return row.type;
        }
    }
    return UnknownKetralFileType;
}

char const* AdviceFileTypes::ExtensionOfType(KetralFileType type) {
    for (ExtensionRow const& row : extensionTable) {
        if (row.type == type) {
            return row.extension;
        }
    }
    return "";
}
