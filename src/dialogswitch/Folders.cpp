#include "dialogswitch/Folders.h"

#include "result/HarmlessLine.h"

#include <algorithm>

namespace vantorel {

Message writeFailure(const std::string& path)
{
    return {phrase("\"%1\" cannot be written", excerpt(path)),
            phrase("check that you can write to its folder")};
}

std::vector<std::string> missingFolders(const PosixFiles& files, const std::string& folder)
{
    std::vector<std::string> missing;
    for (std::string path = folder; files.kindAtPath(path) == HostFileKind::none;
         path = folderOfPath(path)) {
        missing.push_back(path);
    }
    std::ranges::reverse(missing);
    return missing;
}

Status createFolders(PosixFiles& files, const std::string& folder)
{
    for (const std::string& path : missingFolders(files, folder)) {
        if (!files.createDirectory(path)) return writeFailure(path);
    }
    return {};
}

}  // namespace vantorel
