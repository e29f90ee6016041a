#include "cli/PanelProgram.h"

#include "cli/Failure.h"
#include "result/HarmlessLine.h"

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

}  // namespace

void becomePanel(const std::vector<std::string>& arguments)
{
    std::string path = pathOfPanel();
    if (path.empty()) {
        throw Failure{{phrase("the program vantorel-panel is missing"),
                       phrase("install it beside vantorel or in a folder of PATH")}};
    }
    std::vector<std::string> words{path};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    ::execv(path.c_str(), pointers.data());
    throw Failure{{phrase("\"%1\" cannot be run (%2)", excerpt(path), std::strerror(errno)),
                   phrase("reinstall vantorel-panel")}};
}

}  // namespace vantorel
