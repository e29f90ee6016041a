#include "settings/SettingsFile.h"

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
    SettingsMerge merge;
    return readDefaults(files, settings, merge);
}

bool readDefaults(const HostFiles& files, QTXHexSettings& settings, SettingsMerge& merge)
{
    const auto path = hexColorPickerDefaultsFileName(files);
    if (!path) return true;
    const auto bytes = files.contentsAtPath(*path);
    const auto dictionary = bytes ? settingsDictionary(*bytes) : std::nullopt;
    settings.loadPropertyListRepresentation(
        dictionary.value_or(PropertyList(PropertyList::Dictionary{})));
    merge.noteRead(settings.propertyListRepresentation(), bytes);
    if (bytes) return dictionary.has_value() || bytes->empty();
    return files.kindAtPath(*path) == HostFileKind::none;
}

void writeDefaults(HostFiles& files, const QTXHexSettings& settings, SettingsMerge& merge)
{
    const auto folder = defaultsFolderName(files);
    const auto path = hexColorPickerDefaultsFileName(files);
    const auto lock = folder ? files.lockFolder(*folder) : nullptr;
    if (!path || !lock) return;
    PropertyList mine = settings.propertyListRepresentation();
    PropertyList merged = merge.merge(mine, files.contentsAtPath(*path));
    std::string bytes = utf8FromUtf16(propertyListText(merged));
    if (files.writeAtomically(*path, bytes))
        merge.noteWritten(std::move(mine), std::move(merged), std::move(bytes));
}

bool takeInDefaults(const HostFiles& files, QTXHexSettings& settings, SettingsMerge& merge)
{
    const auto path = hexColorPickerDefaultsFileName(files);
    const auto bytes = path ? files.contentsAtPath(*path) : std::nullopt;
    if (!bytes || merge.isCurrent(*bytes)) return false;
    const auto dictionary = settingsDictionary(*bytes);
    if (!dictionary) return false;
    const PropertyList merged = merge.merge(settings.propertyListRepresentation(), bytes);
    QTXHexSettings theirs = settings;
    theirs.loadPropertyListRepresentation(*dictionary);
    merge.noteRead(theirs.propertyListRepresentation(), bytes);
    settings.loadPropertyListRepresentation(merged);
    return true;
}

bool keepDefaultsFile(HostFiles& files)
{
    const auto path = hexColorPickerDefaultsFileName(files);
    // A folder cannot be overwritten by a file, so there is nothing to keep.
    if (!path || files.kindAtPath(*path) != HostFileKind::file) return true;
    const auto bytes = files.contentsAtPath(*path);
    return bytes && files.writeAtomically(*path + "~", *bytes);
}

bool initializeDefaults(HostFiles& files, QTXHexSettings& settings, SettingsMerge& merge)
{
    const auto folder = defaultsFolderName(files);
    const auto path = hexColorPickerDefaultsFileName(files);
    if (!folder || !path) return true;
    const bool folderWasThere = files.kindAtPath(*folder) == HostFileKind::folder;
    if (!folderWasThere) files.createDirectory(*folder);
    if (files.kindAtPath(*folder) != HostFileKind::folder) return false;
    if (files.kindAtPath(*path) == HostFileKind::none) {
        const auto lock = files.lockFolder(*folder);
        // Another process may have been quicker.
        if (!lock || files.kindAtPath(*path) == HostFileKind::none) {
            merge.noteRead(settings.propertyListRepresentation(), std::nullopt);
            if (lock) writeDefaults(files, settings, merge);
            return true;
        }
    }
    return folderWasThere && readDefaults(files, settings, merge);
}

}  // namespace vantorel
