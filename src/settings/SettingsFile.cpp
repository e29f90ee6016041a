#include "settings/SettingsFile.h"

#include "host/HostText.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"

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

/// What the bytes of a settings file say, as far as they say anything.
PropertyList dictionaryFromData(const std::optional<std::string>& bytes)
{
    if (bytes && bytes->size() <= largestSettingsFile && isWellFormedUtf8(*bytes)) {
        auto parsed = parsePropertyList(utf16FromUtf8(*bytes));
        if (parsed && parsed->dictionary() != nullptr) return std::move(*parsed);
    }
    return PropertyList(PropertyList::Dictionary{});
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

void readDefaults(const HostFiles& files, QTXHexSettings& settings)
{
    const auto path = hexColorPickerDefaultsFileName(files);
    if (!path) return;
    settings.loadPropertyListRepresentation(dictionaryFromData(files.contentsAtPath(*path)));
}

void writeDefaults(HostFiles& files, const QTXHexSettings& settings)
{
    const auto path = hexColorPickerDefaultsFileName(files);
    if (path) files.writeAtomically(*path, settingsData(settings));
}

void initializeDefaults(HostFiles& files, QTXHexSettings& settings)
{
    const auto folder = defaultsFolderName(files);
    const auto path = hexColorPickerDefaultsFileName(files);
    if (!folder || !path) return;
    const bool folderWasThere = files.kindAtPath(*folder) == HostFileKind::folder;
    if (!folderWasThere) files.createDirectory(*folder);
    if (files.kindAtPath(*folder) != HostFileKind::folder) return;
    if (files.kindAtPath(*path) == HostFileKind::none) {
        writeDefaults(files, settings);
    } else if (folderWasThere) {
        readDefaults(files, settings);
    }
}

}  // namespace vantorel
