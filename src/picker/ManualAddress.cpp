#include "picker/ManualAddress.h"

#include <optional>

namespace vantorel {
namespace {

constexpr std::string_view fileScheme = "file://";
constexpr const char* manualPage = "supportManual.htm";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

/// What RFC 3986 lets stand in a path for itself, without the characters that mean something there.
bool isUnreserved(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' ||
           c == '.' || c == '_' || c == '~';
}

std::optional<unsigned> hexValue(char c)
{
    const char upper = c >= 'a' && c <= 'f' ? static_cast<char>(c - 'a' + 'A') : c;
    const std::size_t place = hexDigits.find(upper);
    if (place == std::string_view::npos) return std::nullopt;
    return static_cast<unsigned>(place);
}

/// The path of a file on this computer; nothing for any other address.
std::optional<std::string> pathOfFileURL(std::string_view url)
{
    if (!url.starts_with(fileScheme) || !url.substr(fileScheme.size()).starts_with('/')) {
        return std::nullopt;
    }
    url.remove_prefix(fileScheme.size());
    std::string path;
    for (std::size_t i = 0; i < url.size(); ++i) {
        const auto high = i + 2 < url.size() ? hexValue(url[i + 1]) : std::nullopt;
        const auto low = i + 2 < url.size() ? hexValue(url[i + 2]) : std::nullopt;
        if (url[i] == '%' && high && low) {
            path += static_cast<char>(*high * 16 + *low);
            i += 2;
        } else {
            path += url[i];
        }
    }
    return path;
}

}  // namespace

std::string fileURLFromPath(std::string_view path)
{
    std::string url(fileScheme);
    for (const char c : path) {
        if (isUnreserved(c) || c == '/') {
            url += c;
        } else {
            const auto byte = static_cast<unsigned char>(c);
            url += '%';
            url += hexDigits[byte >> 4];
            url += hexDigits[byte & 15];
        }
    }
    return url;
}

std::string manualURL(const std::string& configured, const HostFiles& files,
                      const HostBundle& bundle)
{
    const auto path = pathOfFileURL(configured);
    if (!path || files.kindAtPath(*path) == HostFileKind::file) return configured;
    const auto beside = bundle.pathOfResource(manualPage);
    return beside ? fileURLFromPath(*beside) : configured;
}

}  // namespace vantorel
