#include "hosts/posix/SymbolicLink.h"

#include "hosts/posix/FileRemoval.h"
#include "hosts/posix/SystemCalls.h"

#include <array>
#include <climits>

namespace vantorel {

std::optional<std::string> targetOfLink(const std::string& path)
{
    std::array<char, PATH_MAX> target{};
    const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
    if (length < 0) return std::nullopt;
    return std::string(target.data(), static_cast<std::size_t>(length));
}

int writeLink(const std::string& path, const std::string& target)
{
    const auto present = targetOfLink(path);
    if (present == target) return 0;
    if (present && !removeFile(path)) return errno;
    return ::symlink(target.c_str(), path.c_str()) == 0 ? 0 : errno;
}

}  // namespace vantorel
