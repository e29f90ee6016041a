#include "testing/headless/MemoryFiles.h"

namespace vantorel {
namespace {

std::string parentOf(const std::string& path)
{
    return path.substr(0, path.rfind('/'));
}

}  // namespace

MemoryFiles::MemoryFiles(std::optional<std::string> applicationSupportDirectory)
    : _applicationSupportDirectory(std::move(applicationSupportDirectory))
{
    if (!_applicationSupportDirectory) return;
    const std::string& path = *_applicationSupportDirectory;
    for (std::size_t end = path.find('/', 1);; end = path.find('/', end + 1)) {
        _entries[path.substr(0, end)] = {HostFileKind::folder, {}, ++_lastVersion};
        if (end == std::string::npos) break;
    }
}

std::optional<std::string> MemoryFiles::applicationSupportDirectory() const
{
    return _applicationSupportDirectory;
}

HostFileKind MemoryFiles::kindAtPath(const std::string& path) const
{
    const auto found = _entries.find(path);
    return found == _entries.end() ? HostFileKind::none : found->second.kind;
}

std::uint64_t MemoryFiles::versionAtPath(const std::string& path) const
{
    const auto found = _entries.find(path);
    return found == _entries.end() ? 0 : found->second.version;
}

std::string MemoryFiles::identityAtPath(const std::string& path) const
{
    return _entries.count(path) != 0 ? path : std::string();
}

bool MemoryFiles::put(const std::string& path, HostFileKind kind, const std::string& bytes)
{
    const auto parent = _entries.find(parentOf(path));
    if (_failWrites || parent == _entries.end() || parent->second.kind != HostFileKind::folder) {
        return false;
    }
    parent->second.version = ++_lastVersion;
    _entries[path] = {kind, bytes, ++_lastVersion};
    return true;
}

bool MemoryFiles::createDirectory(const std::string& path)
{
    return kindAtPath(path) == HostFileKind::none && put(path, HostFileKind::folder, {});
}

std::vector<std::string> MemoryFiles::contentsOfDirectory(const std::string& path) const
{
    std::vector<std::string> names;
    const std::string prefix = path + "/";
    for (auto entry = _entries.lower_bound(prefix);
         entry != _entries.end() && entry->first.starts_with(prefix); ++entry) {
        const std::string name = entry->first.substr(prefix.size());
        if (name.find('/') == std::string::npos) names.push_back(name);
    }
    return names;
}

std::optional<std::string> MemoryFiles::contentsAtPath(const std::string& path) const
{
    const auto found = _entries.find(path);
    if (found == _entries.end() || found->second.kind != HostFileKind::file) return std::nullopt;
    return found->second.bytes;
}

bool MemoryFiles::writeAtomically(const std::string& path, const std::string& bytes)
{
    return kindAtPath(path) != HostFileKind::folder && put(path, HostFileKind::file, bytes);
}

HostFileCreation MemoryFiles::createAtomically(const std::string& path, const std::string& bytes)
{
    if (kindAtPath(path) != HostFileKind::none) return HostFileCreation::pathIsTaken;
    return put(path, HostFileKind::file, bytes) ? HostFileCreation::made : HostFileCreation::failed;
}

void MemoryFiles::remove(const std::string& path)
{
    if (_entries.count(path) == 0) return;
    std::erase_if(_entries, [&](const auto& entry) {
        return entry.first == path || entry.first.starts_with(path + "/");
    });
    const auto parent = _entries.find(parentOf(path));
    if (parent != _entries.end()) parent->second.version = ++_lastVersion;
}

std::vector<std::string> MemoryFiles::allPaths() const
{
    std::vector<std::string> paths;
    for (const auto& [path, entry] : _entries)
        paths.push_back(path);
    return paths;
}

}  // namespace vantorel
