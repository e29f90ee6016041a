#include "hosts/posix/PosixFiles.h"

#include "hosts/posix/AtomicWrite.h"
#include "hosts/posix/FolderLock.h"
#include "hosts/posix/SystemCalls.h"
#include "hosts/posix/UserDirectories.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <system_error>

namespace vantorel {
namespace {

constexpr mode_t ownFolderMode = 0700;

/// Creates a folder. Returns 0 or the `errno` of the failure.
int makeFolder(const std::string& path)
{
    const int made = uninterrupted([&] { return ::mkdir(path.c_str(), ownFolderMode); });
    if (made != 0) return errno;
    // A crash must not lose the folder together with files that are written into it next.
    synchronizeFolder(folderOfPath(path));
    return 0;
}

void makeFolders(const std::string& path)
{
    for (std::size_t end = path.find('/', 1); end != std::string::npos;
         end = path.find('/', end + 1)) {
        makeFolder(path.substr(0, end));
    }
    makeFolder(path);
}

DIR* openFolder(const std::string& path)
{
    DIR* folder = ::opendir(path.c_str());
    while (folder == nullptr && errno == EINTR)
        folder = ::opendir(path.c_str());
    return folder;
}

/// Whether an error means that the path does not exist, rather than that it cannot be accessed.
bool isMissing(int error)
{
    return error == ENOENT || error == ENOTDIR || error == ELOOP || error == ENAMETOOLONG;
}

std::uint64_t versionOf(const struct stat& status)
{
    std::uint64_t version = 0xcbf29ce484222325U;
    for (const auto part :
         {static_cast<std::uint64_t>(status.st_mtim.tv_sec),
          static_cast<std::uint64_t>(status.st_mtim.tv_nsec),
          // Detects new permissions, and replacement by an older file.
          static_cast<std::uint64_t>(status.st_ctim.tv_sec),
          static_cast<std::uint64_t>(status.st_ctim.tv_nsec),
          static_cast<std::uint64_t>(status.st_ino), static_cast<std::uint64_t>(status.st_size)}) {
        version = (version ^ part) * 0x100000001b3U;
    }
    return version != 0 ? version : 1;
}

std::string identityOf(const struct stat& status)
{
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
}

}  // namespace

struct PosixFiles::OpenFile {
    Descriptor descriptor;
    struct stat status;
};

PosixFiles::PosixFiles()
    : _baseDirectories(userBaseDirectories()),
      _applicationSupportDirectory(_baseDirectories.dataHome)
{
}

PosixFiles::PosixFiles(std::string applicationSupportDirectory)
    : _applicationSupportDirectory(std::move(applicationSupportDirectory))
{
}

std::optional<std::string> PosixFiles::applicationSupportDirectory() const
{
    if (!_applicationSupportDirectory) return std::nullopt;
    std::string path = *_applicationSupportDirectory;
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    if (kindAtPath(path) == HostFileKind::none) makeFolders(path);
    return path;
}

HostFileKind PosixFiles::kindAtPath(const std::string& path) const
{
    struct stat status {};
    if (uninterrupted([&] { return ::stat(path.c_str(), &status); }) != 0) {
        if (isMissing(errno)) return HostFileKind::none;
        // Reported as a file, so that callers do not create another one there.
        reportFailure(path, Access::reading, errno);
        return HostFileKind::file;
    }
    return S_ISDIR(status.st_mode) ? HostFileKind::folder : HostFileKind::file;
}

std::uint64_t PosixFiles::versionAtPath(const std::string& path) const
{
    struct stat status {};
    if (uninterrupted([&] { return ::stat(path.c_str(), &status); }) != 0) return 0;
    return versionOf(status);
}

std::string PosixFiles::identityAtPath(const std::string& path) const
{
    struct stat status {};
    if (uninterrupted([&] { return ::stat(path.c_str(), &status); }) != 0) return {};
    return identityOf(status);
}

bool PosixFiles::createDirectory(const std::string& path)
{
    const int error = makeFolder(path);
    if (error != 0 && error != EEXIST) reportFailure(path, Access::writing, error);
    return error == 0;
}

std::vector<std::string> PosixFiles::contentsOfDirectory(const std::string& path) const
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(openFolder(path), ::closedir);
    if (!folder) {
        if (!isMissing(errno)) reportFailure(path, Access::reading, errno);
        return names;
    }
    errno = 0;
    for (const dirent* entry = ::readdir(folder.get()); entry != nullptr || errno == EINTR;
         errno = 0, entry = ::readdir(folder.get())) {
        const std::string name = entry != nullptr ? entry->d_name : ".";
        if (name != "." && name != "..") names.push_back(name);
    }
    if (errno != 0) reportFailure(path, Access::reading, errno);
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<PosixFiles::OpenFile> PosixFiles::openToRead(const std::string& path) const
{
    OpenFile file{Descriptor(uninterrupted(
                      [&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK); })),
                  {}};
    if (!file.descriptor ||
        uninterrupted([&] { return ::fstat(file.descriptor.value(), &file.status); }) != 0) {
        if (!isMissing(errno)) reportFailure(path, Access::reading, errno);
        return std::nullopt;
    }
    if (!S_ISREG(file.status.st_mode)) {
        // Reading a pipe or a device may never end. Folders are no surprise beside palettes.
        if (!S_ISDIR(file.status.st_mode)) reportSpecialFile(path);
        return std::nullopt;
    }
    if (static_cast<std::uint64_t>(file.status.st_size) > largestFile) {
        reportFailure(path, Access::reading, EFBIG);
        return std::nullopt;
    }
    return file;
}

bool PosixFiles::readSome(const OpenFile& file, const std::string& path, std::string& bytes,
                          std::size_t most) const
{
    const std::size_t before = bytes.size();
    bytes.resize(before + most);
    const ssize_t count =
        uninterrupted([&] { return ::read(file.descriptor.value(), bytes.data() + before, most); });
    bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    if (count < 0) reportFailure(path, Access::reading, errno);
    return count >= 0;
}

std::optional<std::string> PosixFiles::contentsAtPath(const std::string& path) const
{
    const auto file = openToRead(path);
    if (!file) return std::nullopt;
    std::string bytes;
    if (!readSome(*file, path, bytes, static_cast<std::size_t>(file->status.st_size))) {
        return std::nullopt;
    }
    // The file can change while it is being read, and some have no size.
    for (std::string more;; more.clear()) {
        if (!readSome(*file, path, more, 4096)) return std::nullopt;
        if (more.empty()) return bytes;
        bytes += more;
        if (bytes.size() > largestFile) return std::nullopt;
    }
}

std::optional<HostFileHead> PosixFiles::headAtPath(const std::string& path, std::size_t count) const
{
    const auto file = openToRead(path);
    if (!file) return std::nullopt;
    HostFileHead head;
    head.version = versionOf(file->status);
    head.identity = identityOf(file->status);
    if (!readSome(*file, path, head.bytes, count)) return std::nullopt;
    head.isWholeFile = head.bytes.size() == static_cast<std::size_t>(file->status.st_size) &&
                       head.bytes.size() < count;
    return head;
}

bool PosixFiles::writeAtomically(const std::string& path, const std::string& bytes)
{
    return write(path, bytes, {}) == 0;
}

HostFileCreation PosixFiles::createAtomically(const std::string& path, const std::string& bytes)
{
    const int error = write(path, bytes, {.existing = AtomicWrite::Existing::refused});
    if (error == 0) return HostFileCreation::made;
    return error == EEXIST ? HostFileCreation::pathIsTaken : HostFileCreation::failed;
}

bool PosixFiles::writeForOthers(const std::string& path, const std::string& bytes)
{
    return write(path, bytes, {.readers = AtomicWrite::Readers::usual}) == 0;
}

std::shared_ptr<HostFolderLock> PosixFiles::lockFolder(const std::string& folder)
{
    std::weak_ptr<HostFolderLock>& held = _locks[folder];
    if (auto lock = held.lock()) return lock;
    auto [lock, error] = FolderLock::take(folder);
    if (error == ETIMEDOUT && _handleFailure) {
        _handleFailure(Access::writing,
                       {phrase("another program is still changing files in \"%1\"", folder),
                        phrase("try again when it has finished")});
    } else if (!lock) {
        reportFailure(folder, Access::writing, error);
    }
    held = lock;
    return lock;
}

int PosixFiles::write(const std::string& path, const std::string& bytes, AtomicWrite manner)
{
    const int error = _writer.write(path, bytes, manner);
    if (error != 0 && error != EEXIST) reportFailure(path, Access::writing, error);
    return error;
}

void PosixFiles::reportSpecialFile(const std::string& path) const
{
    if (!_handleFailure || !_reportedUnreadable.insert(path).second) return;
    _handleFailure(Access::reading,
                   {phrase("\"%1\" cannot be read: it is not a regular file", path)});
}

void PosixFiles::reportFailure(const std::string& path, Access access, int error) const
{
    // Programs read the same files repeatedly, so each is reported once.
    if (!_handleFailure || (access == Access::reading && !_reportedUnreadable.insert(path).second))
        return;
    const std::string reason = std::generic_category().message(error);
    _handleFailure(
        access, {access == Access::reading ? phrase("\"%1\" cannot be read: %2", path, reason)
                                           : phrase("\"%1\" cannot be written: %2", path, reason)});
}

}  // namespace vantorel
