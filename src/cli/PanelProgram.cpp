#include "cli/PanelProgram.h"

#include "cli/Failure.h"
#include "hosts/posix/SystemCalls.h"
#include "result/HarmlessLine.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>

namespace vantorel {
namespace {

constexpr std::string_view panelName = "vantorel-panel";

bool isProgram(const std::string& path)
{
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           ::access(path.c_str(), X_OK) == 0;
}

std::string folderOfThisProgram()
{
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (length <= 0) return {};
    const std::string path(buffer.data(), static_cast<std::size_t>(length));
    return path.substr(0, path.rfind('/'));
}

/// Returns the path of the panel's program; empty if it was not found.
std::string pathOfPanel()
{
    std::vector<std::string> folders;
    if (std::string own = folderOfThisProgram(); !own.empty()) folders.push_back(std::move(own));
    const char* variable = std::getenv("PATH");
    std::string_view path = variable != nullptr ? variable : "";
    while (!path.empty()) {
        const std::string_view folder = path.substr(0, path.find(':'));
        path.remove_prefix(std::min(folder.size() + 1, path.size()));
        // An empty entry means the working directory, which is an unexpected place for programs.
        if (!folder.empty()) folders.emplace_back(folder);
    }
    for (const std::string& folder : folders) {
        std::string candidate = folder + "/" + std::string(panelName);
        if (isProgram(candidate)) return candidate;
    }
    return {};
}

/// The arguments of a program as the system takes them. The first is its path.
class ProgramArguments {
public:
    ProgramArguments(const std::string& path, const std::vector<std::string>& arguments)
        : _words{path}
    {
        _words.insert(_words.end(), arguments.begin(), arguments.end());
        _pointers.reserve(_words.size() + 1);
        for (std::string& word : _words)
            _pointers.push_back(word.data());
        _pointers.push_back(nullptr);
    }

    [[nodiscard]] char* const* pointers() const { return _pointers.data(); }

private:
    std::vector<std::string> _words;
    std::vector<char*> _pointers;
};

}  // namespace

void becomePanel(const std::vector<std::string>& arguments)
{
    std::string path = pathOfPanel();
    if (path.empty()) {
        throw Failure{{phrase("the program vantorel-panel is missing"),
                       phrase("install it beside vantorel or in a folder of PATH")}};
    }
    ProgramArguments words(path, arguments);
    ::execv(path.c_str(), words.pointers());
    throw Failure{{phrase("\"%1\" cannot be run (%2)", excerpt(path), std::strerror(errno)),
                   phrase("reinstall vantorel-panel")}};
}

std::optional<PanelProcess> startPanelProgram(const std::vector<std::string>& arguments)
{
    const std::string path = pathOfPanel();
    std::array<int, 2> ends{};
    if (path.empty() || ::pipe2(ends.data(), O_CLOEXEC) != 0) return std::nullopt;
    const Descriptor writing(ends[1]);
    const ProgramArguments words(path, arguments);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    // Our own input and output belong to somebody else.
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, writing.value(), STDOUT_FILENO);
    PanelProcess panel{0, ends[0]};
    const int error =
        posix_spawn(&panel.process, path.c_str(), &actions, nullptr, words.pointers(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error == 0) return panel;
    ::close(ends[0]);
    return std::nullopt;
}

}  // namespace vantorel
