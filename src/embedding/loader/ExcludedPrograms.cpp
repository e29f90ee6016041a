#include "embedding/loader/ExcludedPrograms.h"

#include <fcntl.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace vantorel {
namespace {

constexpr const char* listName = "Vantorel/programs-without-page";
/// More than any user excludes. The rest of a longer file has no effect.
constexpr unsigned long longestList = 16384;
constexpr const char* ourPanel = "vantorel-panel";

/// Reads the beginning of a file, and ends it with a NUL. Returns the number of bytes.
unsigned long readStart(const char* path, char* bytes, unsigned long size)
{
    const int file = ::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) return 0;
    unsigned long length = 0;
    while (length + 1 < size) {
        const ssize_t count = ::read(file, bytes + length, size - 1 - length);
        if (count <= 0) break;
        length += static_cast<unsigned long>(count);
    }
    ::close(file);
    bytes[length] = '\0';
    return length;
}

const char* nameOf(const char* path)
{
    const char* slash = std::strrchr(path, '/');
    return slash != nullptr ? slash + 1 : path;
}

bool findList(char (&path)[PATH_MAX])
{
    const char* folder = std::getenv("XDG_CONFIG_HOME");
    const char* between = "/";
    if (folder == nullptr || *folder != '/') {
        folder = std::getenv("HOME");
        between = "/.config/";
    }
    if (folder == nullptr || *folder != '/') return false;
    const int length = std::snprintf(path, sizeof path, "%s%s%s", folder, between, listName);
    return length > 0 && static_cast<unsigned long>(length) < sizeof path;
}

bool isExcluded(const char* name, const char* list, unsigned long length)
{
    return std::strcmp(name, ourPanel) == 0 || listHasProgram(list, length, name);
}

}  // namespace

bool listHasProgram(const char* list, unsigned long length, const char* name) noexcept
{
    const unsigned long nameLength = std::strlen(name);
    if (nameLength == 0) return false;
    const char* const end = list + length;
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    for (const char* line = list; line < end;) {
        const auto* newline = static_cast<const char*>(
            std::memchr(line, '\n', static_cast<unsigned long>(end - line)));
        const char* lineEnd = newline != nullptr ? newline : end;
        const char* next = newline != nullptr ? newline + 1 : end;
        while (line < lineEnd && isBlank(*line))
            ++line;
        while (lineEnd > line && isBlank(lineEnd[-1]))
            --lineEnd;
        if (static_cast<unsigned long>(lineEnd - line) == nameLength && *line != '#' &&
            std::memcmp(line, name, nameLength) == 0) {
            return true;
        }
        line = next;
    }
    return false;
}

bool isExcludedProgram() noexcept
{
    char path[PATH_MAX];
    char list[longestList];
    const unsigned long length = findList(path) ? readStart(path, list, sizeof list) : 0;
    char program[PATH_MAX];
    const ssize_t programLength = ::readlink("/proc/self/exe", program, sizeof program - 1);
    if (programLength > 0) {
        program[programLength] = '\0';
        if (isExcluded(nameOf(program), list, length)) return true;
    }
    // The first argument is the name by which the program was started, the second may be a script.
    const unsigned long argumentsLength = readStart("/proc/self/cmdline", program, sizeof program);
    const char* argument = program;
    for (int i = 0; i < 2 && argument < program + argumentsLength; ++i) {
        if (isExcluded(nameOf(argument), list, length)) return true;
        argument += std::strlen(argument) + 1;
    }
    return false;
}

}  // namespace vantorel
