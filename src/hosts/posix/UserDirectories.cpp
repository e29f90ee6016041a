#include "hosts/posix/UserDirectories.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <string_view>

namespace vantorel {
namespace {

std::string withoutEndSlash(std::string_view path)
{
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return std::string(path);
}

/// Returns the absolute paths in a list separated by ":". Relative paths are ignored, as the XDG
/// Base Directory Specification requires.
std::vector<std::string> absolutePaths(std::string_view list)
{
    std::vector<std::string> paths;
    while (!list.empty()) {
        const std::string_view path = list.substr(0, list.find(':'));
        list.remove_prefix(path.size());
        if (!list.empty()) list.remove_prefix(1);
        if (!path.starts_with('/')) continue;
        paths.push_back(withoutEndSlash(path));
    }
    return paths;
}

std::string_view environmentValue(const char* name)
{
    // Safe, because the environment is read at start, when the program has only one thread.
    const char* value = std::getenv(name);
    return value != nullptr ? std::string_view(value) : std::string_view();
}

std::vector<std::string> directories(const char* variable, std::string_view fallback)
{
    std::vector<std::string> paths = absolutePaths(environmentValue(variable));
    return paths.empty() ? absolutePaths(fallback) : paths;
}

std::optional<std::string> homeDirectory()
{
    if (const std::string_view home = environmentValue("HOME"); home.starts_with('/')) {
        return std::string(home);
    }
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 ||
        found == nullptr || entry.pw_dir == nullptr || entry.pw_dir[0] != '/') {
        return std::nullopt;
    }
    return entry.pw_dir;
}

/// Reads a variable with a single path, in which a ":" is not a separator.
std::optional<std::string> userDirectory(const char* variable,
                                         const std::optional<std::string>& home,
                                         const char* pathInHome)
{
    const std::string_view path = environmentValue(variable);
    if (path.starts_with('/')) return withoutEndSlash(path);
    if (!home) return std::nullopt;
    return *home + pathInHome;
}

/// The folder for shared data of the prefix that the program is installed in; `std::nullopt` if
/// it is not in a folder "bin".
std::optional<std::string> dataDirectoryOfProgram()
{
    std::array<char, 4096> buffer{};
    const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (length <= 0 || static_cast<std::size_t>(length) == buffer.size()) return std::nullopt;
    constexpr std::string_view programs = "/bin";
    std::string path(buffer.data(), static_cast<std::size_t>(length));
    path.resize(path.rfind('/'));
    if (!path.ends_with(programs)) return std::nullopt;
    path.resize(path.size() - programs.size());
    return path + "/share";
}

}  // namespace

HostBaseDirectories userBaseDirectories()
{
    const auto home = homeDirectory();
    return {.configHome = userDirectory("XDG_CONFIG_HOME", home, "/.config"),
            .dataHome = userDirectory("XDG_DATA_HOME", home, "/.local/share"),
            .configDirectories = directories("XDG_CONFIG_DIRS", "/etc/xdg"),
            .dataDirectories = directories("XDG_DATA_DIRS", "/usr/local/share:/usr/share"),
            .programData = dataDirectoryOfProgram()};
}

}  // namespace vantorel
