#include "embedding/loader/DialogLibrary.h"

#include "embedding/loader/ExcludedPrograms.h"
#include "hosts/posix/LibraryFile.h"

#include <dlfcn.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <cstring>

namespace vantorel {
namespace {

using Path = char[PATH_MAX];

/// Removes the last name from a path.
bool goUp(Path& path)
{
    char* slash = std::strrchr(path, '/');
    if (slash == nullptr || slash == path) return false;
    *slash = '\0';
    return true;
}

bool append(Path& path, const char* text)
{
    const std::size_t length = std::strlen(path);
    const std::size_t added = std::strlen(text) + 1;
    if (added > sizeof path - length) return false;
    std::memcpy(path + length, text, added);
    return true;
}

/// The folder lib/vantorel, in which the loader is two folders down, after following links: a
/// toolkit may find the loader by a link in a folder of its own.
bool findLibraryFolder(Path& path)
{
    Dl_info info = {};
    if (::dladdr(reinterpret_cast<void*>(&findLibraryFolder), &info) == 0) return false;
    if (info.dli_fname == nullptr || ::realpath(info.dli_fname, path) == nullptr) return false;
    constexpr int levels = 3;  // the loader's name and two folders
    for (int i = 0; i < levels; ++i) {
        if (!goUp(path)) return false;
    }
    return true;
}

template <class Symbol>
Symbol symbolOf(void* library, const char* name)
{
    return reinterpret_cast<Symbol>(::dlsym(library, name));
}

}  // namespace

bool DialogLibrary::open(const char* fileName) noexcept
{
    if (_state == State::unopened) {
        // First, because a toolkit may ask again while the library is being opened.
        _state = State::unavailable;
        if (openOnce(fileName)) _state = State::open;
    }
    return _state == State::open;
}

bool DialogLibrary::openOnce(const char* fileName) noexcept
{
    if (isExcludedProgram()) return false;
    Path file;
    Path pages;
    if (!findLibraryFolder(file)) return false;
    std::memcpy(pages, file, sizeof pages);
    if (!append(pages, "/pickers") || !append(file, "/dialogs/") || !append(file, fileName)) {
        return false;
    }
    if (::access(file, R_OK) != 0 || isCutOffLibrary(file)) return false;
    // Never closed: objects of the program may refer to its code.
    void* library = ::dlopen(file, RTLD_NOW | RTLD_LOCAL);
    if (library == nullptr) return false;
    const auto* abi = symbolOf<const std::uint32_t*>(library, "vantorelDialogABI");
    if (abi == nullptr || *abi != dialogLibraryABI) return false;
    const auto openPage = symbolOf<bool (*)(const char*)>(library, "vantorelOpenPage");
    _keep = symbolOf<void (*)(void*)>(library, "vantorelKeepDialog");
    _attach = symbolOf<void (*)(void*)>(library, "vantorelAttachPage");
    return openPage != nullptr && _attach != nullptr && openPage(pages);
}

}  // namespace vantorel
