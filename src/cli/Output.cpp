#include "cli/Output.h"

#include "cli/Failure.h"
#include "hosts/posix/PosixFiles.h"
#include "hosts/posix/SystemCalls.h"
#include "result/HarmlessLine.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>

namespace vantorel {
namespace {

bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t count =
            uninterrupted([&] { return ::write(descriptor, bytes.data(), bytes.size()); });
        if (count <= 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// Writes into an existing pipe or device, which cannot be replaced by a new file.
bool writeInto(const std::string& path, std::string_view bytes)
{
    const int file = uninterrupted([&] { return ::open(path.c_str(), O_WRONLY | O_CLOEXEC); });
    if (file < 0) return false;
    const bool written = writeAll(file, bytes);
    // Not repeated if interrupted: the descriptor is closed even then.
    return (::close(file) == 0 || errno == EINTR) && written;
}

}  // namespace

void Output::write(std::string_view bytes)
{
    while (!bytes.empty()) {
        if (_used == _buffer.size()) flush();
        const std::size_t count = std::min(bytes.size(), _buffer.size() - _used);
        std::memcpy(_buffer.data() + _used, bytes.data(), count);
        _used += count;
        bytes.remove_prefix(count);
    }
}

void Output::flush()
{
    const std::string_view bytes(_buffer.data(), _used);
    _used = 0;
    if (writeAll(STDOUT_FILENO, bytes)) return;
    if (errno == EPIPE) throw SilentFailure{};
    throw Failure{{phrase("standard output cannot be written (%1)", std::strerror(errno)),
                   phrase("redirect it to a file with free space, or to a program that reads it")}};
}

void occupyClosedStreams()
{
    // Opened in the wrong direction, so that reading or writing fails.
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) >= 0 || errno != EBADF) continue;
        [[maybe_unused]] const int taken =
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

std::string absolutePath(const std::string& path)
{
    if (path.starts_with('/')) return path;
    char folder[PATH_MAX];
    if (::getcwd(folder, sizeof folder) == nullptr) return path;
    return std::string(folder) + "/" + path;
}

void writeFile(Output& output, const std::string& path, std::string_view bytes)
{
    if (path == "-") {
        output.write(bytes);
        return;
    }
    struct stat status {};
    const bool exists = ::stat(path.c_str(), &status) == 0;
    bool written = false;
    if (exists && !S_ISREG(status.st_mode)) {
        written = writeInto(path, bytes);
    } else {
        written =
            PosixFiles(std::string("/")).writeForOthers(absolutePath(path), std::string(bytes));
    }
    if (!written) {
        throw Failure{{phrase("\"%1\" cannot be written", excerpt(path)),
                       phrase("check that its folder exists and that you can write to it")}};
    }
}

}  // namespace vantorel
