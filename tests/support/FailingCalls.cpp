// A library to preload. It makes one of a program's system calls on the files of a folder fail, so
// that a test can go through all of them.
//
//     FAILING_CALLS_FOLDER   calls on paths below it, and on files opened there, count from 1
//     FAILING_CALLS_REPORT   a file to which the name and path of each call are written
//     FAILING_CALLS_AT       the number of the call that fails; if unset, none fails
//     FAILING_CALLS_HOW      an error number; "short" to write half the bytes and then fail as
//                            on a full disk; "kill" to end the process instead of the call; or
//                            "kill-short" to end it after half a write
//     FAILING_CALLS_ON       "1" to make all later calls that change something fail too
//
// The process sees failures only through the error numbers.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

struct Plan {
    Plan()
    {
        const auto value = [](const char* name) -> std::string {
            const char* text = std::getenv(name);
            return text != nullptr ? text : "";
        };
        folder = value("FAILING_CALLS_FOLDER");
        at = std::atol(value("FAILING_CALLS_AT").c_str());
        how = value("FAILING_CALLS_HOW");
        error = std::atoi(how.c_str());
        goesOn = value("FAILING_CALLS_ON") == "1";
        const std::string path = value("FAILING_CALLS_REPORT");
        if (path.empty()) return;
        // Above the numbers that programs expect.
        const long file = ::syscall(SYS_openat, AT_FDCWD, path.c_str(),
                                    O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
        report = static_cast<int>(::syscall(SYS_fcntl, file, F_DUPFD_CLOEXEC, 500));
        ::syscall(SYS_close, file);
    }
    std::string folder;
    std::string how;
    long at = 0;
    int error = 0;
    bool goesOn = false;
    int report = -1;
    std::atomic<long> count = 0;
};

Plan& plan()
{
    static Plan instance;
    return instance;
}

enum class Effect { none, change };

bool isInFolder(const std::string& path)
{
    const std::string& folder = plan().folder;
    return !folder.empty() && path.starts_with(folder) &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

/// The path of an open file; empty if it has none.
std::string pathOf(int file)
{
    std::array<char, PATH_MAX> target{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const long length = ::syscall(SYS_readlink, link.c_str(), target.data(), target.size());
    return length > 0 ? std::string(target.data(), static_cast<std::size_t>(length))
                      : std::string();
}

[[noreturn]] void killOurselves()
{
    ::kill(::getpid(), SIGKILL);
    while (true)
        ::pause();
}

enum class Fate { goesThrough, fails, isHalfDone };

Fate fateOf(const char* call, const std::string& path, Effect effect)
{
    const int before = errno;
    if (!isInFolder(path)) {
        errno = before;
        return Fate::goesThrough;
    }
    Plan& p = plan();
    const long number = ++p.count;
    if (p.report >= 0) {
        const std::string line =
            std::string(call) + (effect == Effect::change ? " ! " : " . ") + path + "\n";
        ::syscall(SYS_write, p.report, line.data(), line.size());
    }
    errno = before;
    const bool isLater = p.goesOn && p.at > 0 && number > p.at && effect == Effect::change;
    if (number != p.at && !isLater) return Fate::goesThrough;
    const bool isWrite = std::strcmp(call, "write") == 0;
    if (p.how == "kill" || (p.how == "kill-short" && !isWrite)) killOurselves();
    if (p.how == "short" || p.how == "kill-short") {
        if (isWrite && number == p.at) return Fate::isHalfDone;
        errno = ENOSPC;
        return Fate::fails;
    }
    errno = p.error;
    return Fate::fails;
}

bool fails(const char* call, const std::string& path, Effect effect)
{
    return fateOf(call, path, effect) != Fate::goesThrough;
}

/// The absolute form of a path relative to an open folder.
std::string absolutePath(int folder, const char* path)
{
    if (path == nullptr) return {};
    if (path[0] == '/') return path;
    if (path[0] == '\0') return pathOf(folder);
    std::array<char, PATH_MAX> current{};
    const std::string base = folder != AT_FDCWD ? pathOf(folder)
                             : ::syscall(SYS_getcwd, current.data(), current.size()) > 0
                                 ? std::string(current.data())
                                 : std::string();
    return base + "/" + path;
}

std::string absolutePath(const char* path)
{
    return absolutePath(AT_FDCWD, path);
}

/// The function that would have been called without this library.
template <class Function>
Function* next(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

#define NEXT(name)                                           \
    static const auto theNext = next<decltype(name)>(#name); \
    return theNext

mode_t modeArgument(int flags, va_list arguments)
{
    return (flags & (O_CREAT | __O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

Effect effectOfOpening(int flags)
{
    return (flags & (O_CREAT | O_TRUNC)) != 0 ? Effect::change : Effect::none;
}

}  // namespace

#define EXPORTED extern "C" __attribute__((visibility("default")))

#define OPENING(name)                                                             \
    EXPORTED int name(const char* path, int flags, ...)                           \
    {                                                                             \
        va_list arguments;                                                        \
        va_start(arguments, flags);                                               \
        const mode_t mode = modeArgument(flags, arguments);                       \
        va_end(arguments);                                                        \
        if (fails("open", absolutePath(path), effectOfOpening(flags))) return -1; \
        NEXT(name)(path, flags, mode);                                            \
    }
#define OPENING_AT(name)                                                                  \
    EXPORTED int name(int folder, const char* path, int flags, ...)                       \
    {                                                                                     \
        va_list arguments;                                                                \
        va_start(arguments, flags);                                                       \
        const mode_t mode = modeArgument(flags, arguments);                               \
        va_end(arguments);                                                                \
        if (fails("open", absolutePath(folder, path), effectOfOpening(flags))) return -1; \
        NEXT(name)(folder, path, flags, mode);                                            \
    }
OPENING(open)
OPENING(open64)
OPENING_AT(openat)
OPENING_AT(openat64)

EXPORTED DIR* opendir(const char* path)
{
    if (fails("opendir", absolutePath(path), Effect::none)) return nullptr;
    NEXT(opendir)(path);
}

#define READING_NAMES(name, entry)                                                   \
    EXPORTED entry* name(DIR* folder)                                                \
    {                                                                                \
        if (fails("readdir", pathOf(::dirfd(folder)), Effect::none)) return nullptr; \
        NEXT(name)(folder);                                                          \
    }
READING_NAMES(readdir, dirent)
READING_NAMES(readdir64, dirent64)

EXPORTED ssize_t read(int file, void* bytes, std::size_t size)
{
    if (fails("read", pathOf(file), Effect::none)) return -1;
    NEXT(read)(file, bytes, size);
}

EXPORTED ssize_t write(int file, const void* bytes, std::size_t size)
{
    static const auto theNext = next<decltype(write)>("write");
    switch (fateOf("write", pathOf(file), Effect::change)) {
        case Fate::goesThrough:
            return theNext(file, bytes, size);
        case Fate::fails:
            return -1;
        case Fate::isHalfDone:
            break;
    }
    const ssize_t written = theNext(file, bytes, (size + 1) / 2);
    if (plan().how == "kill-short") killOurselves();
    return written;
}

#define ON_FILE(call, name, effect, ...)                   \
    EXPORTED int name                                      \
    {                                                      \
        if (fails(#call, pathOf(file), effect)) return -1; \
        NEXT(call) __VA_ARGS__;                            \
    }
ON_FILE(fsync, fsync(int file), Effect::change, (file))
ON_FILE(fdatasync, fdatasync(int file), Effect::change, (file))
ON_FILE(fchmod, fchmod(int file, mode_t mode), Effect::change, (file, mode))
ON_FILE(fchown, fchown(int file, uid_t user, gid_t group), Effect::change, (file, user, group))
ON_FILE(ftruncate, ftruncate(int file, off_t size), Effect::change, (file, size))
ON_FILE(ftruncate64, ftruncate64(int file, off64_t size), Effect::change, (file, size))
ON_FILE(flock, flock(int file, int operation), Effect::none, (file, operation))
ON_FILE(fstat, fstat(int file, struct stat* status), Effect::none, (file, status))
ON_FILE(fstat64, fstat64(int file, struct stat64* status), Effect::none, (file, status))

/// A failing close has closed the file all the same.
EXPORTED int close(int file)
{
    static const auto theNext = next<decltype(close)>("close");
    if (fails("close", pathOf(file), Effect::none)) {
        const int error = errno;
        theNext(file);
        errno = error;
        return -1;
    }
    return theNext(file);
}

#define ON_PATH(call, name, effect, ...)                         \
    EXPORTED int name                                            \
    {                                                            \
        if (fails(#call, absolutePath(path), effect)) return -1; \
        NEXT(call) __VA_ARGS__;                                  \
    }
ON_PATH(mkdir, mkdir(const char* path, mode_t mode), Effect::change, (path, mode))
ON_PATH(rmdir, rmdir(const char* path), Effect::change, (path))
ON_PATH(unlink, unlink(const char* path), Effect::change, (path))
ON_PATH(chmod, chmod(const char* path, mode_t mode), Effect::change, (path, mode))
ON_PATH(rename, rename(const char* path, const char* target), Effect::change, (path, target))
ON_PATH(link, link(const char* path, const char* target), Effect::change, (path, target))
ON_PATH(stat, stat(const char* path, struct stat* status), Effect::none, (path, status))
ON_PATH(lstat, lstat(const char* path, struct stat* status), Effect::none, (path, status))
ON_PATH(stat64, stat64(const char* path, struct stat64* status), Effect::none, (path, status))
ON_PATH(lstat64, lstat64(const char* path, struct stat64* status), Effect::none, (path, status))
ON_PATH(access, access(const char* path, int mode), Effect::none, (path, mode))

#define ON_PATH_AT(call, name, effect, ...)                              \
    EXPORTED int name                                                    \
    {                                                                    \
        if (fails(#call, absolutePath(folder, path), effect)) return -1; \
        NEXT(call) __VA_ARGS__;                                          \
    }
ON_PATH_AT(unlinkat, unlinkat(int folder, const char* path, int flags), Effect::change,
           (folder, path, flags))
ON_PATH_AT(renameat2,
           renameat2(int folder, const char* path, int targetFolder, const char* target,
                     unsigned int flags),
           Effect::change, (folder, path, targetFolder, target, flags))
ON_PATH_AT(linkat,
           linkat(int folder, const char* path, int targetFolder, const char* target, int flags),
           Effect::change, (folder, path, targetFolder, target, flags))
ON_PATH_AT(statx,
           statx(int folder, const char* path, int flags, unsigned int mask, struct statx* status),
           Effect::none, (folder, path, flags, mask, status))

EXPORTED ssize_t readlink(const char* path, char* target, std::size_t size)
{
    if (fails("readlink", absolutePath(path), Effect::none)) return -1;
    NEXT(readlink)(path, target, size);
}
