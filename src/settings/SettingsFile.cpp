#include "settings/SettingsFile.h"

#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

constexpr const char* folderName = "/Vantorel";
constexpr const char* fileName = "/Settings.plist";

std::optional<std::string> defaultsFolderName(const HostFiles& files)
{
    auto folder = files.applicationSupportDirectory();
    if (folder) *folder += folderName;
    return folder;
}

/// Returns the dictionary in the bytes of a settings file, or `std::nullopt` if they are not valid.
std::optional<PropertyList> dictionaryFromData(const std::string& bytes)
{
    if (bytes.size() > largestSettingsFile || !isWellFormedUtf8(bytes)) return std::nullopt;
    auto parsed = parsePropertyList(utf16FromUtf8(bytes));
    if (!parsed || parsed->dictionary() == nullptr) return std::nullopt;
    return parsed;
}

}  // namespace

std::optional<std::string> hexColorPickerDefaultsFileName(const HostFiles& files)
{
    auto path = defaultsFolderName(files);
    if (path) *path += fileName;
    return path;
}

std::string settingsData(const QTXHexSettings& settings)
{
    return utf8FromUtf16(propertyListText(settings.propertyListRepresentation()));
}

bool readDefaults(const HostFiles& files, QTXHexSettings& settings)
{
    const auto path = hexColorPickerDefaultsFileName(files);
    if (!path) return true;
    const auto bytes = files.contentsAtPath(*path);
    const auto dictionary = bytes ? dictionaryFromData(*bytes) : std::nullopt;
    settings.loadPropertyListRepresentation(
        dictionary.value_or(PropertyList(PropertyList::Dictionary{})));
    if (bytes) return dictionary.has_value() || bytes->empty();
    return files.kindAtPath(*path) == HostFileKind::none;
}

void writeDefaults(HostFiles& files, const QTXHexSettings& settings)
{
    const auto path = hexColorPickerDefaultsFileName(files);
    if (path) files.writeAtomically(*path, settingsData(settings));
}

bool keepDefaultsFile(HostFiles& files)
{
    const auto path = hexColorPickerDefaultsFileName(files);
    // A folder cannot be overwritten by a file, so there is nothing to keep.
    if (!path || files.kindAtPath(*path) != HostFileKind::file) return true;
    const auto bytes = files.contentsAtPath(*path);
    return bytes && files.writeAtomically(*path + "~", *bytes);
}

bool initializeDefaults(HostFiles& files, QTXHexSettings& settings)
{
    const auto folder = defaultsFolderName(files);
    const auto path = hexColorPickerDefaultsFileName(files);
    if (!folder || !path) return true;
    const bool folderWasThere = files.kindAtPath(*folder) == HostFileKind::folder;
    if (!folderWasThere) files.createDirectory(*folder);
    if (files.kindAtPath(*folder) != HostFileKind::folder) return false;
    if (files.kindAtPath(*path) == HostFileKind::none) {
        writeDefaults(files, settings);
        return true;
    }
    return folderWasThere && readDefaults(files, settings);
}

}  // namespace vantorel
