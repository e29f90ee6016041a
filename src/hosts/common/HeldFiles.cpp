#include "hosts/common/HeldFiles.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

/// The numbers of held files are none that a disk would give.
constexpr std::uint64_t firstVersion = std::uint64_t{1} << 63;

std::string folderOf(const std::string& path)
{
    return path.substr(0, path.rfind('/'));
}

}  // namespace

const HeldFiles::Held* HeldFiles::heldAt(const std::string& path) const
{
    const auto found = _held.find(path);
    if (found == _held.end() || _files.kindAtPath(path) != HostFileKind::none) return nullptr;
    return &found->second;
}

bool HeldFiles::hold(const std::string& path, std::optional<std::string> bytes)
{
    if (kindAtPath(folderOf(path)) != HostFileKind::folder) return false;
    _held[path] = {std::move(bytes), firstVersion + ++_lastVersion};
    // The list of names in the folder has changed, too.
    const auto folder = _held.find(folderOf(path));
    if (folder != _held.end()) folder->second.version = firstVersion + _lastVersion;
    return true;
}

bool HeldFiles::isHeldBack(const std::string& path) const
{
    return _holds > 0 && _files.kindAtPath(path) == HostFileKind::none;
}

void HeldFiles::releaseUnlessHolding()
{
    if (_holds > 0) return;
    for (const auto& [path, held] : std::exchange(_held, {})) {
        if (!held.bytes) {
            if (_files.kindAtPath(path) == HostFileKind::none) _files.createDirectory(path);
        } else {
            static_cast<void>(_files.createAtomically(path, *held.bytes));
        }
    }
}

std::optional<std::string> HeldFiles::applicationSupportDirectory() const
{
    return _files.applicationSupportDirectory();
}

HostBaseDirectories HeldFiles::baseDirectories() const
{
    return _files.baseDirectories();
}

HostFileKind HeldFiles::kindAtPath(const std::string& path) const
{
    const Held* held = heldAt(path);
    if (held == nullptr) return _files.kindAtPath(path);
    return held->bytes ? HostFileKind::file : HostFileKind::folder;
}

std::uint64_t HeldFiles::versionAtPath(const std::string& path) const
{
    const Held* held = heldAt(path);
    return held != nullptr ? held->version : _files.versionAtPath(path);
}

std::string HeldFiles::identityAtPath(const std::string& path) const
{
    return heldAt(path) != nullptr ? "held:" + path : _files.identityAtPath(path);
}

bool HeldFiles::createDirectory(const std::string& path)
{
    if (_holds > 0) return kindAtPath(path) == HostFileKind::none && hold(path, std::nullopt);
    releaseUnlessHolding();
    return _files.createDirectory(path);
}

std::vector<std::string> HeldFiles::contentsOfDirectory(const std::string& path) const
{
    std::vector<std::string> names = _files.contentsOfDirectory(path);
    for (const auto& [heldPath, held] : _held) {
        if (folderOf(heldPath) == path && heldAt(heldPath) != nullptr)
            names.push_back(heldPath.substr(path.size() + 1));
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<std::string> HeldFiles::contentsAtPath(const std::string& path) const
{
    const Held* held = heldAt(path);
    return held != nullptr ? held->bytes : _files.contentsAtPath(path);
}

std::optional<HostFileHead> HeldFiles::headAtPath(const std::string& path, std::size_t count) const
{
    return heldAt(path) != nullptr ? HostFiles::headAtPath(path, count)
                                   : _files.headAtPath(path, count);
}

bool HeldFiles::writeAtomically(const std::string& path, const std::string& bytes)
{
    // A file that exists on the disk is not one of the first use.
    if (isHeldBack(path)) return hold(path, bytes);
    releaseUnlessHolding();
    return _files.writeAtomically(path, bytes);
}

HostFileCreation HeldFiles::createAtomically(const std::string& path, const std::string& bytes)
{
    if (kindAtPath(path) != HostFileKind::none) return HostFileCreation::pathIsTaken;
    if (_holds > 0) {
        return hold(path, bytes) ? HostFileCreation::made : HostFileCreation::failed;
    }
    releaseUnlessHolding();
    return _files.createAtomically(path, bytes);
}

bool HeldFiles::writeForOthers(const std::string& path, const std::string& bytes)
{
    if (isHeldBack(path)) return hold(path, bytes);
    releaseUnlessHolding();
    return _files.writeForOthers(path, bytes);
}

std::shared_ptr<HostFolderLock> HeldFiles::lockFolder(const std::string& folder)
{
    // Only this process knows the files in memory. Without a hold, something is about to be
    // written, and the folder must exist to be locked.
    if (_holds > 0) return std::make_shared<HostFolderLock>();
    releaseUnlessHolding();
    return _files.lockFolder(folder);
}

}  // namespace vantorel
