#include "panel/preferences/PreferencesFile.h"

#include "hosts/posix/PosixFiles.h"
#include "hosts/qt/QtMessages.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "text/Unicode.h"

#include <QFile>
#include <QStandardPaths>

#include <cstdio>

namespace vantorel {
namespace {

/// Larger files are rejected unread; we never write files that big.
constexpr std::size_t largestPreferences = std::size_t{1} << 20;

QString& replacementFolder()
{
    static QString folder;
    return folder;
}

std::string preferencesFolder()
{
    const QString folder =
        replacementFolder().isEmpty()
            ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
            : replacementFolder();
    return QFile::encodeName(folder + QStringLiteral("/Vantorel")).toStdString();
}

std::string preferencesPath(const std::string& folder)
{
    return folder + "/Preferences.plist";
}

PropertyList readPreferences(const PosixFiles& files, const std::string& folder)
{
    const auto bytes = files.contentsAtPath(preferencesPath(folder));
    if (!bytes || bytes->size() > largestPreferences || !isWellFormedUtf8(*bytes)) return {};
    return parsePropertyList(utf16FromUtf8(*bytes)).value_or(PropertyList());
}

void printPreferencesFailure(const Message& message)
{
    static_cast<void>(
        std::fprintf(stderr, "vantorel-panel: %s\n", qPrintable(translated(message))));
}

}  // namespace

void setPreferencesFolder(const QString& path)
{
    replacementFolder() = path;
}

PropertyList readPreferencesFile()
{
    const std::string folder = preferencesFolder();
    PosixFiles files(folder);
    files.setFailureHandler([](auto, const Message& message) { printPreferencesFailure(message); });
    return readPreferences(files, folder);
}

std::optional<PropertyList> changePreferencesFile(
    const std::function<void(PropertyList& list)>& change)
{
    const std::string folder = preferencesFolder();
    PosixFiles files(folder);
    files.setFailureHandler([](auto access, const Message& message) {
        // It was reported when it was read at the start.
        if (access == PosixFiles::Access::writing) printPreferencesFailure(message);
    });
    // Makes it, for the user alone.
    static_cast<void>(files.applicationSupportDirectory());
    const auto lock = files.lockFolder(folder);
    if (!lock) return std::nullopt;
    PropertyList list = readPreferences(files, folder);
    change(list);
    if (!files.writeAtomically(preferencesPath(folder), utf8FromUtf16(propertyListText(list))))
        return std::nullopt;
    return list;
}

}  // namespace vantorel
