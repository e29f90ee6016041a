#include "picker/ManualAddress.h"

#include "text/ASCII.h"
#include "text/HexDigits.h"

#include <optional>

namespace vantorel {
namespace {

constexpr std::string_view fileScheme = "file://";
constexpr const char* manualPage = "supportManual.htm";

/// Returns whether a character is unreserved in RFC 3986 and so needs no percent-encoding.
bool isUnreserved(char c)
{
    return isLetterOrDigit(c) || c == '-' || c == '.' || c == '_' || c == '~';
}

/// Returns the path of a `file://` URL of this computer, or `std::nullopt` for any other URL.
std::optional<std::string> pathOfFileURL(std::string_view url)
{
    if (!url.starts_with(fileScheme) || !url.substr(fileScheme.size()).starts_with('/')) {
        return std::nullopt;
    }
    url.remove_prefix(fileScheme.size());
    std::string path;
    for (std::size_t i = 0; i < url.size(); ++i) {
        const bool isEscape =
            url[i] == '%' && i + 2 < url.size() && isHexDigit(url[i + 1]) && isHexDigit(url[i + 2]);
        if (isEscape) {
            path += static_cast<char>(hexDigitValue(url[i + 1]) * 16 + hexDigitValue(url[i + 2]));
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
            url += '%';
            appendHexByte(url, static_cast<unsigned char>(c), HexCase::upper);
        }
    }
    return url;
}

std::string manualURL(const std::string& configured, const HostFiles& files,
                      const HostBundle& bundle, const std::string& translatedPage)
{
    const auto path = pathOfFileURL(configured);
    if (!path) return configured;
    if (translatedPage != manualPage) {
        const std::string installed = path->substr(0, path->rfind('/') + 1) + translatedPage;
        if (files.kindAtPath(installed) == HostFileKind::file) return fileURLFromPath(installed);
        const auto beside = bundle.pathOfResource(translatedPage);
        if (beside) return fileURLFromPath(*beside);
    }
    if (files.kindAtPath(*path) == HostFileKind::file) return configured;
    const auto beside = bundle.pathOfResource(manualPage);
    return beside ? fileURLFromPath(*beside) : configured;
}

}  // namespace vantorel
