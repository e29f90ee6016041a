#include "hosts/posix/PosixFiles.h"

#include "hosts/posix/UserDirectories.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <memory>

namespace vantorel {
namespace {

constexpr mode_t ownFolderMode = 0700;
constexpr mode_t ownFileMode = 0600;

/// A file descriptor that is closed at the end.
class Descriptor {
public:
    explicit Descriptor(int value) : _value(value) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor()
    {
        if (_value >= 0) ::close(_value);
    }
    [[nodiscard]] int value() const { return _value; }
    explicit operator bool() const { return _value >= 0; }

private:
    int _value;
};

bool makeFolders(const std::string& path)
{
    for (std::size_t end = path.find('/', 1); end != std::string::npos;
         end = path.find('/', end + 1)) {
        ::mkdir(path.substr(0, end).c_str(), ownFolderMode);
    }
    return ::mkdir(path.c_str(), ownFolderMode) == 0 || errno == EEXIST;
}

/// The path itself, or where the link at it leads; a dangling link leads to where the file will be,
/// a circle of links nowhere.
std::optional<std::string> withLinksFollowed(std::string path)
{
    constexpr int mostLinks = 40;
    for (int i = 0; i < mostLinks; ++i) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length <= 0) return path;
        std::string next(target.data(), static_cast<std::size_t>(length));
        if (next.front() != '/') next.insert(0, path, 0, path.rfind('/') + 1);
        path = std::move(next);
    }
    return std::nullopt;
}

bool writeAll(int file, const std::string& bytes)
{
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(file, bytes.data() + written, bytes.size() - written);
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return false;
        written += static_cast<std::size_t>(count);
    }
    return true;
}

void synchronizeFolder(const std::string& path)
{
    const Descriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder) ::fsync(folder.value());
}

}  // namespace

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
    if (::stat(path.c_str(), &status) != 0) return HostFileKind::none;
    return S_ISDIR(status.st_mode) ? HostFileKind::folder : HostFileKind::file;
}

std::uint64_t PosixFiles::versionAtPath(const std::string& path) const
{
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return 0;
    std::uint64_t version = 0xcbf29ce484222325U;
    for (const auto part :
         {static_cast<std::uint64_t>(status.st_mtim.tv_sec),
          static_cast<std::uint64_t>(status.st_mtim.tv_nsec),
          // Also new permissions count, and an older file that takes the place.
          static_cast<std::uint64_t>(status.st_ctim.tv_sec),
          static_cast<std::uint64_t>(status.st_ctim.tv_nsec),
          static_cast<std::uint64_t>(status.st_ino), static_cast<std::uint64_t>(status.st_size)}) {
        version = (version ^ part) * 0x100000001b3U;
    }
    return version != 0 ? version : 1;
}

std::string PosixFiles::identityAtPath(const std::string& path) const
{
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return {};
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
}

bool PosixFiles::createDirectory(const std::string& path)
{
    return ::mkdir(path.c_str(), ownFolderMode) == 0;
}

std::vector<std::string> PosixFiles::contentsOfDirectory(const std::string& path) const
{
    std::vector<std::string> names;
    const std::unique_ptr<DIR, int (*)(DIR*)> folder(::opendir(path.c_str()), ::closedir);
    if (!folder) return names;
    while (const dirent* entry = ::readdir(folder.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<std::string> PosixFiles::contentsAtPath(const std::string& path) const
{
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file || ::fstat(file.value(), &status) != 0 || !S_ISREG(status.st_mode) ||
        static_cast<std::uint64_t>(status.st_size) > largestFile) {
        return std::nullopt;
    }
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(status.st_size));
    std::array<char, 65536> buffer{};
    while (true) {
        const ssize_t count = ::read(file.value(), buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) return bytes;
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
        // It may grow while it is read.
        if (bytes.size() > largestFile) return std::nullopt;
    }
}

bool PosixFiles::writeAtomically(const std::string& path, const std::string& bytes)
{
    const std::optional<std::string> target = withLinksFollowed(path);
    if (!target) return false;
    std::string temporary = *target + ".XXXXXX";
    struct stat replaced {};
    const bool replaces = ::stat(target->c_str(), &replaced) == 0;
    if (replaces && !S_ISREG(replaced.st_mode)) return false;

    const Descriptor file(::mkostemp(temporary.data(), O_CLOEXEC));
    if (!file) return false;
    const bool written =
        ::fchmod(file.value(), replaces ? replaced.st_mode & 07777 : ownFileMode) == 0 &&
        writeAll(file.value(), bytes) && ::fsync(file.value()) == 0 &&
        ::rename(temporary.c_str(), target->c_str()) == 0;
    if (!written) {
        ::unlink(temporary.c_str());
        return false;
    }
    synchronizeFolder(target->substr(0, target->rfind('/')));
    return true;
}

}  // namespace vantorel
