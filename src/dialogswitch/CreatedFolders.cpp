#include "dialogswitch/CreatedFolders.h"

#include "dialogswitch/Folders.h"
#include "hosts/posix/FileRemoval.h"

#include <vector>

namespace vantorel {

Status CreatedFolders::create(const std::string& folder)
{
    const std::vector<std::string> missing = missingFolders(_files, folder);
    if (missing.empty()) return {};
    std::string lines = _files.contentsAtPath(_record).value_or("");
    for (const std::string& path : missing)
        lines += path + '\n';
    if (Status written = write(lines); !written) return written;
    return createFolders(_files, folder);
}

Status CreatedFolders::removeEmpty()
{
    std::string lines = _files.contentsAtPath(_record).value_or("");
    std::string left;
    while (!lines.empty()) {
        lines.pop_back();  // the line feed
        const std::size_t start = lines.rfind('\n') + 1;
        const std::string folder = lines.substr(start);
        if (!removeEmptyFolder(folder)) left.insert(0, folder + '\n');
        lines.erase(start);
    }
    return write(left);
}

Status CreatedFolders::write(const std::string& lines)
{
    const bool isWritten =
        lines.empty() ? removeFile(_record) : _files.writeAtomically(_record, lines);
    return isWritten ? Status() : Status(writeFailure(_record));
}

}  // namespace vantorel
