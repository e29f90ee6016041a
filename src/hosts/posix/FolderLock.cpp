#include "hosts/posix/FolderLock.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <optional>
#include <thread>

namespace vantorel {
namespace {

constexpr const char* lockFileName = "/.vantorel-lock";

/// Whether an error of opening the file means that nobody can lock this folder.
bool meansNoLocksHere(int error)
{
    constexpr std::array errors{EACCES, EPERM, EROFS, ENOTDIR, ELOOP, EISDIR, ENXIO};
    return std::find(errors.begin(), errors.end(), error) != errors.end();
}

/// 0, or the `errno` of the failure.
int statusOf(int file, struct stat& status)
{
    return uninterrupted([&] { return ::fstat(file, &status); }) == 0 ? 0 : errno;
}

/// Gives a file that this process has created to those who can write to the folder.
void shareWithFolder(int file, const std::string& folder)
{
    struct stat made {};
    struct stat around {};
    if (statusOf(file, made) != 0 ||
        uninterrupted([&] { return ::stat(folder.c_str(), &around); }) != 0) {
        return;
    }
    // A lock taken by root must not keep out the user whose folder it is.
    if (made.st_uid != around.st_uid || made.st_gid != around.st_gid) {
        if (::fchown(file, around.st_uid, around.st_gid) != 0 &&
            ::fchown(file, static_cast<uid_t>(-1), around.st_gid) != 0) {
            return;
        }
    }
    const mode_t writers = around.st_mode & 0222;
    uninterrupted([&] { return ::fchmod(file, writers | writers << 1); });
}

/// Opens the lock file, creating it if necessary.
struct LockFile {
    LockFile(const std::string& path, const std::string& folder)
    {
        // Whatever has been put in its place must not make this process wait.
        constexpr int flags = O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
        int opened =
            uninterrupted([&] { return ::open(path.c_str(), flags | O_CREAT | O_EXCL, 0600); });
        isNew = opened >= 0;
        if (isNew) shareWithFolder(opened, folder);
        if (!isNew && errno == EEXIST)
            opened = uninterrupted([&] { return ::open(path.c_str(), flags); });
        error = opened >= 0 ? 0 : errno;
        file.emplace(opened);
    }

    std::optional<Descriptor> file;
    bool isNew = false;
    /// The `errno` of opening it.
    int error = 0;
};

/// 0, or the `errno` of the failure.
int tryToLock(int file)
{
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return uninterrupted([&] { return ::fcntl(file, F_OFD_SETLK, &whole); }) == 0 ? 0 : errno;
}

bool exists(const std::string& path)
{
    struct stat status {};
    return uninterrupted([&] { return ::stat(path.c_str(), &status); }) == 0;
}

bool isNamed(const std::string& path, const struct stat& opened)
{
    struct stat named {};
    return uninterrupted([&] { return ::lstat(path.c_str(), &named); }) == 0 &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

}  // namespace

FolderLock::FolderLock(std::string path, Descriptor file)
    : _path(std::move(path)), _file(std::move(file))
{
}

FolderLock::~FolderLock()
{
    // While the lock is held, so that nobody can hold the lock of a file without a name.
    struct stat opened {};
    if (statusOf(_file.value(), opened) != 0 || !isNamed(_path, opened)) return;
    uninterrupted([&] { return ::unlink(_path.c_str()); });
}

FolderLock::Taking FolderLock::take(const std::string& folder, std::chrono::milliseconds patience)
{
    using Clock = std::chrono::steady_clock;
    // Short enough that, among twenty programs, nobody waits in vain for long.
    constexpr std::chrono::milliseconds longestPause{4};
    const auto noLocksHere = [] { return Taking{std::make_shared<HostFolderLock>()}; };

    const std::string path = folder + lockFileName;
    const auto end = Clock::now() + patience;
    for (std::chrono::milliseconds pause{1};; pause = std::min(pause * 2, longestPause)) {
        LockFile lockFile(path, folder);
        if (lockFile.error != 0 && meansNoLocksHere(lockFile.error)) return noLocksHere();
        // ENOENT: there is no folder, or the holder has just removed the file.
        if (lockFile.error == ENOENT && !exists(folder)) return noLocksHere();
        if (lockFile.error != 0 && lockFile.error != ENOENT) return {nullptr, lockFile.error};
        if (lockFile.error == 0) {
            const int file = lockFile.file->value();
            const int error = tryToLock(file);
            if (error != 0 && error != EAGAIN && error != EACCES) {
                // Nobody has the lock of such a file system.
                if (lockFile.isNew) uninterrupted([&] { return ::unlink(path.c_str()); });
                return noLocksHere();
            }
            struct stat opened {};
            if (const int failure = statusOf(file, opened); failure != 0) return {nullptr, failure};
            if (!S_ISREG(opened.st_mode)) return noLocksHere();
            if (error == 0 && isNamed(path, opened))
                return {std::make_shared<FolderLock>(path, std::move(*lockFile.file))};
        }
        if (Clock::now() >= end) return {nullptr, ETIMEDOUT};
        std::this_thread::sleep_for(pause);
    }
}

}  // namespace vantorel
