#include "hosts/posix/FileRemoval.h"

#include "hosts/posix/AtomicWrite.h"
#include "hosts/posix/SystemCalls.h"

namespace vantorel {

bool removeFile(const std::string& path)
{
    if (uninterrupted([&] { return ::unlink(path.c_str()); }) != 0) return errno == ENOENT;
    synchronizeFolder(folderOfPath(path));
    return true;
}

bool removeEmptyFolder(const std::string& path)
{
    if (uninterrupted([&] { return ::rmdir(path.c_str()); }) != 0) return errno == ENOENT;
    synchronizeFolder(folderOfPath(path));
    return true;
}

}  // namespace vantorel
