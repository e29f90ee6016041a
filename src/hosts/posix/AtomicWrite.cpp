#include "hosts/posix/AtomicWrite.h"

#include "hosts/posix/SystemCalls.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <array>
#include <climits>
#include <cstdio>
#include <memory>
#include <optional>
#include <vector>

namespace vantorel {
namespace {

constexpr mode_t ownFileMode = 0600;
constexpr mode_t usualFileMode = 0666;

/// Temporary names are hidden, so that no program reads such a file as a palette, and short,
/// however long the file's own name is.
constexpr std::string_view newFilePrefix = ".vantorel-";
constexpr std::size_t newFileLetters = 8;

std::string newFileName()
{
    constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz012345";
    std::array<unsigned char, newFileLetters> chance{};
    // If there is no randomness, processes may choose the same name; that is detected.
    if (::getentropy(chance.data(), chance.size()) != 0) chance = {};
    std::string name(newFilePrefix);
    for (const unsigned char byte : chance)
        name += letters[byte % letters.size()];
    return name;
}

/// The path that symbolic links lead to, or the `errno` of the failure. A dangling link leads to
/// the path at which the file will be created.
struct Destination {
    std::string path;
    int error = 0;
};
Destination withLinksFollowed(std::string path)
{
    constexpr int mostLinks = 40;
    for (int i = 0; i < mostLinks; ++i) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length =
            uninterrupted([&] { return ::readlink(path.c_str(), target.data(), target.size()); });
        if (length < 0 && (errno == EINVAL || errno == ENOENT)) return {std::move(path)};
        // An unreadable link must not be mistaken for a file, which could be replaced.
        if (length < 0) return {{}, errno};
        if (static_cast<std::size_t>(length) == target.size()) return {{}, ENAMETOOLONG};
        std::string next(target.data(), static_cast<std::size_t>(length));
        if (!next.starts_with('/')) next.insert(0, path, 0, path.rfind('/') + 1);
        path = std::move(next);
    }
    return {{}, ELOOP};
}

int writeAll(int file, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count =
            uninterrupted([&] { return ::write(file, bytes.data(), bytes.size()); });
        if (count < 0) return errno;
        if (count == 0) return EIO;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return 0;
}

int synchronize(int file)
{
    if (uninterrupted([&] { return ::fsync(file); }) == 0) return 0;
    // Some file systems in user space do not support synchronising.
    return errno == EINVAL ? 0 : errno;
}

int setPermissions(int file, mode_t mode)
{
    return uninterrupted([&] { return ::fchmod(file, mode); }) == 0 ? 0 : errno;
}

/// Gives a new file the owner, group and permissions of the one that it replaces.
int takeOverPermissions(int file, const struct stat& replaced)
{
    struct stat made {};
    if (uninterrupted([&] { return ::fstat(file, &made); }) != 0) return errno;
    mode_t mode = replaced.st_mode & 0777;
    if (made.st_uid != replaced.st_uid || made.st_gid != replaced.st_gid) {
        // A file written by root must still belong to its user.
        const bool sameGroup = ::fchown(file, replaced.st_uid, replaced.st_gid) == 0 ||
                               made.st_gid == replaced.st_gid ||
                               ::fchown(file, static_cast<uid_t>(-1), replaced.st_gid) == 0;
        // Permissions of the old group must not pass to another group.
        if (!sameGroup) mode &= static_cast<mode_t>(~S_IRWXG);
    }
    return setPermissions(file, mode);
}

/// A temporary file, removed on destruction unless it has been moved to its target. It is locked
/// while it is written, which distinguishes it from a file that a killed process has left: the
/// system releases the lock when the process ends.
class NewFile {
public:
    NewFile(const std::string& folder, mode_t mode)
    {
        constexpr int mostAttempts = 100;
        for (int i = 0; i < mostAttempts; ++i) {
            _path = folder + "/" + newFileName();
            Descriptor file(uninterrupted([&] {
                return ::open(_path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW,
                              mode);
            }));
            _error = file ? 0 : errno;
            if (_error == EEXIST) continue;
            if (_error != 0) return;
            if (isKept(file.value())) {
                _file.emplace(std::move(file));
                return;
            }
            _error = EAGAIN;
        }
    }
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        if (_file && !_isInPlace) uninterrupted([&] { return ::unlink(_path.c_str()); });
    }

    [[nodiscard]] int error() const { return _error; }
    [[nodiscard]] int value() const { return _file->value(); }

    int moveTo(const std::string& target, AtomicWrite::Existing existing)
    {
        const int error =
            existing == AtomicWrite::Existing::replaced ? replace(target) : moveToFree(target);
        _isInPlace = error == 0;
        return error;
    }

private:
    /// Locks the file. Returns false if a clean-up by another process came first.
    static bool isKept(int file)
    {
        // On a file system without locks, clean-up cannot lock the file either, and leaves it
        // alone.
        if (::flock(file, LOCK_EX | LOCK_NB) != 0) return errno != EWOULDBLOCK;
        struct stat status {};
        return ::fstat(file, &status) != 0 || status.st_nlink > 0;
    }

    int replace(const std::string& target) const
    {
        return uninterrupted([&] { return ::rename(_path.c_str(), target.c_str()); }) == 0 ? 0
                                                                                           : errno;
    }

    int moveToFree(const std::string& target) const
    {
        if (uninterrupted([&] {
                return ::renameat2(AT_FDCWD, _path.c_str(), AT_FDCWD, target.c_str(),
                                   RENAME_NOREPLACE);
            }) == 0) {
            return 0;
        }
        if (errno != EINVAL && errno != ENOSYS) return errno;
        // Some network file systems lack this flag. A hard link also fails if the target exists.
        if (uninterrupted([&] { return ::link(_path.c_str(), target.c_str()); }) != 0) return errno;
        uninterrupted([&] { return ::unlink(_path.c_str()); });
        return 0;
    }

    std::string _path;
    std::optional<Descriptor> _file;
    int _error = EAGAIN;
    bool _isInPlace = false;
};

bool isNewFileName(std::string_view name)
{
    return name.starts_with(newFilePrefix) && name.size() == newFilePrefix.size() + newFileLetters;
}

void removeIfAbandoned(const std::string& path)
{
    const Descriptor file(::open(path.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    struct stat opened {};
    if (!file || ::fstat(file.value(), &opened) != 0 || !S_ISREG(opened.st_mode) ||
        opened.st_uid != ::geteuid() || ::flock(file.value(), LOCK_EX | LOCK_NB) != 0) {
        return;
    }
    // Between opening and locking, the file may have been renamed and its name taken by another.
    struct stat named {};
    if (::lstat(path.c_str(), &named) != 0 || named.st_dev != opened.st_dev ||
        named.st_ino != opened.st_ino) {
        return;
    }
    ::unlink(path.c_str());
}

/// Removes temporary files, except those that a process is still writing or that belong to another
/// user.
void removeAbandonedFiles(const std::string& folder)
{
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
    if (!open) return;
    std::vector<std::string> names;
    while (const dirent* entry = ::readdir(open.get())) {
        if (isNewFileName(entry->d_name)) names.emplace_back(entry->d_name);
    }
    for (const std::string& name : names)
        removeIfAbandoned(std::string(folder).append(1, '/').append(name));
}

}  // namespace

int AtomicWriter::write(const std::string& path, std::string_view bytes, AtomicWrite manner)
{
    const bool mayReplace = manner.existing == AtomicWrite::Existing::replaced;
    const Destination destination = mayReplace ? withLinksFollowed(path) : Destination{path};
    if (destination.error != 0) return destination.error;
    const std::string& target = destination.path;

    struct stat there {};
    const bool isThere = uninterrupted([&] { return ::lstat(target.c_str(), &there); }) == 0;
    if (!isThere && errno != ENOENT) return errno;
    if (isThere && !mayReplace) return EEXIST;
    if (isThere && !S_ISREG(there.st_mode)) return S_ISDIR(there.st_mode) ? EISDIR : EINVAL;

    const std::string folder = folderOfPath(target);
    if (_tidiedFolders.insert(folder).second) removeAbandonedFiles(folder);

    // `open` applies the umask itself, so the umask need not be queried.
    const bool isUsual = !isThere && manner.readers == AtomicWrite::Readers::usual;
    NewFile file(folder, isUsual ? usualFileMode : ownFileMode);
    int error = file.error();
    if (error == 0 && isThere) error = takeOverPermissions(file.value(), there);
    if (error == 0 && !isThere && !isUsual) error = setPermissions(file.value(), ownFileMode);
    if (error == 0) error = writeAll(file.value(), bytes);
    if (error == 0) error = synchronize(file.value());
    if (error == 0) error = file.moveTo(target, manner.existing);
    // The new file is in place, so an error from here on would not mean that writing failed.
    if (error == 0) synchronizeFolder(folder);
    return error;
}

std::string folderOfPath(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos) return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

void synchronizeFolder(const std::string& path)
{
    const Descriptor folder(
        uninterrupted([&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (folder) static_cast<void>(synchronize(folder.value()));
}

}  // namespace vantorel
