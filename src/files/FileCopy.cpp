#include "files/FileCopy.h"

#include <memory>

#include "files/FileCreate.h"
#include "files/FileDelete.h"
#include "files/FileErrors.h"
#include "files/FileLoop.h"
#include "files/FileOperationsWithRetry.h"
#include "files/FileReadingLoop.h"
#include "files/FileReadingPath.h"
#include "files/FileWriter.h"
#include "files/FileWritingPath.h"
#include "files/RetryPolicy.h"
#include "files/UnixFileInfo.h"

namespace {

std::size_t const copyBufferSize = 65536;

void CopyBytes(FileLocation const& from, FileLocation const& to) {
    std::unique_ptr<unsigned char[]> const buffer(new unsigned char[copyBufferSize]);
    UnixPlatform::FileReadingPath in;
    in.OpenExisting(from.Platform());
    UnixPlatform::FileWritingPath out;
    out.OpenNew(to.Platform());
    UnixPlatform::FileWriter writer(out, 0);
    FileReadingLoop loop(Data(buffer.get(), copyBufferSize));
    for (loop.Start(in, 0); loop.Remaining() != 0; ++loop) {
        writer << *loop;
    }
    out.Close();
    in.Close();
}

}  // namespace

namespace UnixPlatform {

void CopyFile(::FileLocation const& from, ::FileLocation const& to) {
    if (!UnixPlatform::Look(from).IsFile()) {
        throw FileNotFoundError(from, 0);
    }
    if (UnixPlatform::Look(to).Exists()) {
        throw FileExistsError(to.LogString(), 0);
    }
    CopyBytes(from, to);
}

void ForceCopyFile(::FileLocation const& from, ::FileLocation const& to) {
    if (!UnixPlatform::Look(from).IsFile()) {
        throw FileNotFoundError(from, 0);
    }
    UnixPlatform::ForceNonexistence(to);
    CopyBytes(from, to);
}

}  // namespace UnixPlatform

void CopyFile(FileLocation const& from, FileLocation const& to) {
    from.RequireNonEmpty();
    to.RequireNonEmpty();
    UnixPlatform::CopyFile(from, to);
}

void ForceCopyFile(FileLocation const& from, FileLocation const& to) {
    from.RequireNonEmpty();
    to.RequireNonEmpty();
    UnixPlatform::ForceCopyFile(from, to);
}

void CopyDirectoryContents(FileLocation const& from, FileLocation const& to) {
    UnixPlatform::UnixFileInfo const source = UnixPlatform::Look(from);
    if (!source.Exists()) {
        throw InvalidStats(from.LogString(), 0);
    }
    if (!source.IsDirectory()) {
        throw DirectoryNotFoundError(from.LogString(), 0);
    }
    CreateDirectoryTree(to);
    for (FileLoop loop(from, nullptr); !loop.Finished(); ++loop) {
        FileItem const& entry = *loop;
        FileLocation const location = entry.Location();
        FileLocation const target(to, entry.Location().Name());
        if (!entry.Exists()) {
            throw FileItemError(location, 0);
        }
        if (entry.IsDirectory()) {
            if (entry.IsLink()) {
                continue;
            }
            CopyDirectoryContents(location, target);
        } else {
            CopyFileWithRetry(location, target, FileRetryLog());
        }
    }
}
