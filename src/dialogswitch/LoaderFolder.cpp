#include "dialogswitch/LoaderFolder.h"

#include "dialogswitch/Folders.h"
#include "hosts/posix/FileRemoval.h"
#include "hosts/posix/SymbolicLink.h"

#include <algorithm>
#include <iterator>

namespace vantorel {
namespace {

/// What the loaders look for two folders above them.
constexpr const char* libraryFolders[] = {"dialogs", "pickers"};

}  // namespace

std::vector<std::string> LoaderFolder::installedLoaders() const
{
    std::vector<std::string> found;
    std::ranges::copy_if(_loaders, std::back_inserter(found), [this](const std::string& loader) {
        return _files.kindAtPath(_installed + '/' + loader) == HostFileKind::file;
    });
    return found;
}

bool LoaderFolder::isLinked() const
{
    return std::ranges::all_of(libraryFolders, [this](const char* name) {
        return targetOfLink(_root + '/' + name).has_value();
    });
}

bool LoaderFolder::isCurrent() const
{
    return std::ranges::all_of(libraryFolders,
                               [this](const char* name) {
                                   return targetOfLink(_root + '/' + name) ==
                                          _installed + '/' + name;
                               }) &&
           std::ranges::all_of(_loaders, [this](const std::string& loader) {
               return _files.contentsAtPath(_installed + '/' + loader) ==
                      _files.contentsAtPath(copyOf(loader));
           });
}

bool LoaderFolder::hasCopies() const
{
    return std::ranges::any_of(_loaders, [this](const std::string& loader) {
        return _files.kindAtPath(copyOf(loader)) != HostFileKind::none;
    });
}

Status LoaderFolder::install()
{
    if (Status made = createFolders(_files, _root); !made) return made;
    for (const char* name : libraryFolders) {
        const std::string link = _root + '/' + name;
        if (writeLink(link, _installed + '/' + name) != 0) return writeFailure(link);
    }
    for (const std::string& loader : _loaders) {
        const std::string copy = copyOf(loader);
        const auto bytes = _files.contentsAtPath(_installed + '/' + loader);
        if (!bytes) {
            // This loader is not installed any more.
            if (!removeFile(copy)) return writeFailure(copy);
            continue;
        }
        if (_files.contentsAtPath(copy) == bytes) continue;
        if (Status made = createFolders(_files, folderOfPath(copy)); !made) return made;
        if (!_files.writeAtomically(copy, *bytes)) return writeFailure(copy);
    }
    return {};
}

Status LoaderFolder::remove(bool keepsCopies)
{
    for (const char* name : libraryFolders) {
        const std::string link = _root + '/' + name;
        if (targetOfLink(link) && !removeFile(link)) return writeFailure(link);
    }
    if (keepsCopies) return {};
    for (const std::string& loader : _loaders) {
        const std::string copy = copyOf(loader);
        if (!removeFile(copy)) return writeFailure(copy);
        for (std::string folder = folderOfPath(copy); folder.size() > _root.size();
             folder = folderOfPath(folder)) {
            removeEmptyFolder(folder);
        }
    }
    removeEmptyFolder(_root);
    return {};
}

}  // namespace vantorel
