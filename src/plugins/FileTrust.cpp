#include "plugins/FileTrust.h"

#include "plugins/WriteAccess.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstring>
#include <filesystem>
#include <variant>
#include <vector>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

/// As many as the kernel follows.
constexpr int mostLinks = 40;

/// The file does not exist.
struct Missing {};
using Obstacle = std::variant<Missing, Message>;

std::string pathOfDescriptor(const Descriptor& descriptor)
{
    // Not /proc/self: debuggers use the path as well.
    return "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(descriptor.value());
}

/// Neither path has links.
bool isBelow(const std::string& path, const std::string& folder)
{
    return folder == "/" ? path.size() > 1
                         : path.size() > folder.size() && path.starts_with(folder) &&
                               path[folder.size()] == '/';
}

/// Follows a path through open folders, and checks what it comes by.
class TrustedWalk {
public:
    explicit TrustedWalk(const TrustedUsers& users) : _users(users) {}

    Result<TrustedFile, Obstacle> follow(const std::string& path)
    {
        addAhead(path);
        Descriptor root(::open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
        if (!root) return failureOf("/");
        _folders.push_back({std::move(root), "/", {}});
        while (!_ahead.empty()) {
            const std::string name = std::move(_ahead.back());
            _ahead.pop_back();
            if (name == "..") {
                if (_folders.size() > 1) _folders.pop_back();
                continue;
            }
            if (Status trust = checkFolderOnTheWay(_folders.back()); !trust)
                return Obstacle(trust.error());
            const std::string shown = pathIn(_folders.back().path, name);
            Descriptor file(uninterrupted([&] {
                return ::openat(_folders.back().descriptor.value(), name.c_str(),
                                O_PATH | O_NOFOLLOW | O_CLOEXEC);
            }));
            struct stat status {};
            if (!file || ::fstat(file.value(), &status) != 0) return failureOf(shown);
            if (S_ISLNK(status.st_mode)) {
                if (Status trust = followLink(file, shown, status); !trust)
                    return Obstacle(trust.error());
            } else if (S_ISDIR(status.st_mode)) {
                _folders.push_back({std::move(file), shown, name});
            } else if (_ahead.empty()) {
                return lastOne(std::move(file), shown, name);
            } else {
                return Obstacle(Missing{});
            }
        }
        return lastFolder();
    }

private:
    struct Folder {
        Descriptor descriptor;
        std::string path;
        std::string name;
        bool isChecked = false;
        bool isSticky = false;
    };

    void addAhead(const std::string& path)
    {
        std::vector<std::string> names;
        for (const fs::path& name : fs::path(path).relative_path()) {
            if (!name.empty() && name != ".") names.push_back(name.string());
        }
        _ahead.insert(_ahead.end(), names.rbegin(), names.rend());
    }

    static std::string pathIn(const std::string& folder, const std::string& name)
    {
        return folder.ends_with('/') ? folder + name : folder + '/' + name;
    }

    static Obstacle failureOf(const std::string& path)
    {
        if (errno == ENOENT || errno == ENOTDIR) return Missing{};
        return Message{phrase("\"%1\" cannot be opened (%2)", path, std::strerror(errno))};
    }

    Status checkOwner(const std::string& path, const struct stat& status) const
    {
        const uid_t owner = status.st_uid;
        if (owner == administrator || owner == _users.user) return {};
        if (owner == _users.programOwner && (path == _users.prefix || isBelow(path, _users.prefix)))
            return {};
        return Message{phrase("\"%1\" belongs to another user", path)};
    }

    Status checkFolderOnTheWay(Folder& folder) const
    {
        if (folder.isChecked) return {};
        struct stat status {};
        if (::fstat(folder.descriptor.value(), &status) != 0)
            return std::get<Message>(failureOf(folder.path));
        const bool isAboveOurs =
            isBelow(_users.home, folder.path) || isBelow(_users.prefix, folder.path);
        Status trust = isAboveOurs ? Status() : checkOwner(folder.path, status);
        folder.isSticky = (status.st_mode & S_ISVTX) != 0;
        if (trust && !folder.isSticky) {
            trust = checkThatOthersCannotWrite(
                {pathOfDescriptor(folder.descriptor), folder.path, status}, _users.user);
        }
        folder.isChecked = trust.isOk();
        return trust;
    }

    Status followLink(const Descriptor& link, const std::string& path, const struct stat& status)
    {
        // All users can make links in a sticky folder.
        if (Status trust = checkOwner(path, status); !trust && _folders.back().isSticky)
            return trust;
        if (++_links > mostLinks)
            return Message{phrase("\"%1\" cannot be opened (%2)", path, std::strerror(ELOOP))};
        std::array<char, PATH_MAX> target{};
        const ssize_t size = ::readlinkat(link.value(), "", target.data(), target.size());
        if (size <= 0) {
            return Message{phrase("\"%1\" cannot be opened (%2)", path, std::strerror(errno))};
        }
        while (target.front() == '/' && _folders.size() > 1)
            _folders.pop_back();
        addAhead({target.data(), static_cast<std::size_t>(size)});
        return {};
    }

    Result<TrustedFile, Obstacle> lastOne(Descriptor file, const std::string& path,
                                          const std::string& name)
    {
        struct stat status {};
        if (::fstat(file.value(), &status) != 0) return failureOf(path);
        Status trust = checkOwner(path, status);
        if (trust)
            trust = checkThatOthersCannotWrite({pathOfDescriptor(file), path, status}, _users.user);
        if (!trust) return Obstacle(trust.error());
        return TrustedFile{std::move(file), std::move(_folders.back().descriptor), name,
                           S_ISREG(status.st_mode)};
    }

    Result<TrustedFile, Obstacle> lastFolder()
    {
        Folder last = std::move(_folders.back());
        if (_folders.size() > 1) _folders.pop_back();
        return lastOne(std::move(last.descriptor), last.path, last.name);
    }

    const TrustedUsers& _users;
    /// The names that are still to be followed, the next one last.
    std::vector<std::string> _ahead;
    /// The folders from the root to the one that has been reached.
    std::vector<Folder> _folders;
    int _links = 0;
};

Result<TrustedFile, Obstacle> walkTo(const std::string& path, const TrustedUsers& users)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    if (error)
        return Obstacle(Message{phrase("\"%1\" cannot be opened (%2)", path, error.message())});
    return TrustedWalk(users).follow(absolute.string());
}

/// Returns a path without links, or an empty text.
std::string realPath(const fs::path& path)
{
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return error ? std::string() : real.string();
}

}  // namespace

TrustedUsers TrustedUsers::ofThisProcess()
{
    TrustedUsers users;
    users.user = ::geteuid();
    const std::string program = realPath("/proc/self/exe");
    struct stat status {};
    if (!program.empty() && ::stat("/proc/self/exe", &status) == 0) {
        users.prefix = fs::path(program).parent_path().parent_path().string();
        // Everything is below the root.
        if (users.prefix != "/") users.programOwner = status.st_uid;
    }
    const struct passwd* account = ::getpwuid(users.user);
    if (account != nullptr) users.home = realPath(account->pw_dir);
    return users;
}

std::string TrustedFile::path() const
{
    return pathOfDescriptor(file);
}

std::string TrustedFile::pathInFolder() const
{
    return pathOfDescriptor(folder) + '/' + name;
}

Result<TrustedFile> openTrusted(const std::string& path, const TrustedUsers& users)
{
    Result<TrustedFile, Obstacle> found = walkTo(path, users);
    if (found) return *std::move(found);
    if (const auto* message = std::get_if<Message>(&found.error())) return *message;
    return Message{verbatim(std::strerror(ENOENT))};
}

Status checkTrust(const std::string& path, const TrustedUsers& users)
{
    const Result<TrustedFile, Obstacle> found = walkTo(path, users);
    if (found || std::holds_alternative<Missing>(found.error())) return {};
    return std::get<Message>(found.error());
}

}  // namespace vantorel
