#include "plugins/AccessList.h"

#include <sys/xattr.h>

#include <cerrno>
#include <cstdint>

namespace vantorel {
namespace {

constexpr const char* attributeName = "system.posix_acl_access";
constexpr std::uint32_t attributeVersion = 2;
constexpr std::size_t headSize = 4;
constexpr std::size_t entrySize = 8;
constexpr std::uint32_t mayWrite = 2;

enum class Tag : std::uint32_t {
    owner = 0x01,
    user = 0x02,
    owningGroup = 0x04,
    group = 0x08,
    mask = 0x10,
    others = 0x20,
};

/// Numbers in the attribute have their least significant byte first.
std::uint32_t numberAt(std::string_view bytes, std::size_t place, std::size_t width)
{
    std::uint32_t number = 0;
    for (std::size_t i = width; i-- > 0;)
        number = number << 8 | static_cast<unsigned char>(bytes[place + i]);
    return number;
}

}  // namespace

std::optional<Writers> writersInAccessList(std::string_view attribute)
{
    if (attribute.size() < headSize || (attribute.size() - headSize) % entrySize != 0 ||
        numberAt(attribute, 0, 4) != attributeVersion)
        return std::nullopt;
    Writers writers;
    bool maskAllows = true;
    for (std::size_t place = headSize; place < attribute.size(); place += entrySize) {
        const auto tag = static_cast<Tag>(numberAt(attribute, place, 2));
        const bool writes = (numberAt(attribute, place + 2, 2) & mayWrite) != 0;
        const std::uint32_t id = numberAt(attribute, place + 4, 4);
        switch (tag) {
            case Tag::owner:
                break;
            case Tag::user:
                if (writes) writers.users.push_back(id);
                break;
            case Tag::owningGroup:
                writers.owningGroup = writes;
                break;
            case Tag::group:
                if (writes) writers.groups.push_back(id);
                break;
            case Tag::mask:
                maskAllows = writes;
                break;
            case Tag::others:
                writers.everyone = writes;
                break;
            default:
                return std::nullopt;
        }
    }
    // The mask limits all entries but those of the owner and of others.
    if (maskAllows) return writers;
    return Writers{writers.everyone, false, {}, {}};
}

AccessListState readAccessList(const std::string& path, Writers& writers)
{
    std::string attribute;
    ssize_t size = ::getxattr(path.c_str(), attributeName, nullptr, 0);
    if (size >= 0) {
        attribute.resize(static_cast<std::size_t>(size));
        size = ::getxattr(path.c_str(), attributeName, attribute.data(), attribute.size());
    }
    if (size < 0) {
        const bool hasNone = errno == ENODATA || errno == EOPNOTSUPP || errno == ENOSYS;
        return hasNone ? AccessListState::none : AccessListState::unreadable;
    }
    attribute.resize(static_cast<std::size_t>(size));
    const auto read = writersInAccessList(attribute);
    if (!read) return AccessListState::unreadable;
    writers = *read;
    return AccessListState::read;
}

}  // namespace vantorel
