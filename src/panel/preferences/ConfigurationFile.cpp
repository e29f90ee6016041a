#include "panel/preferences/ConfigurationFile.h"

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
constexpr std::size_t largestFile = std::size_t{1} << 20;

QString& replacementFolder()
{
    static QString folder;
    return folder;
}

std::optional<PropertyList> listAtPath(const PosixFiles& files, const std::string& path)
{
    if (files.kindAtPath(path) == HostFileKind::none) return std::nullopt;
    const auto bytes = files.contentsAtPath(path);
    if (!bytes || bytes->size() > largestFile || !isWellFormedUtf8(*bytes)) return PropertyList();
    return parsePropertyList(utf16FromUtf8(*bytes)).value_or(PropertyList());
}

}  // namespace

void setConfigurationFolder(const QString& path)
{
    replacementFolder() = path;
}

std::string ConfigurationFile::folder()
{
    const QString folder =
        replacementFolder().isEmpty()
            ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
            : replacementFolder();
    return QFile::encodeName(folder + QStringLiteral("/Vantorel")).toStdString();
}

void ConfigurationFile::report(const Message& failure)
{
    static_cast<void>(
        std::fprintf(stderr, "vantorel-panel: %s\n", qPrintable(translated(failure))));
}

std::optional<PropertyList> ConfigurationFile::contents() const
{
    const std::string place = folder();
    PosixFiles files(place);
    files.setFailureHandler([](auto, const Message& failure) { report(failure); });
    return listAtPath(files, place + '/' + _name);
}

std::optional<PropertyList> ConfigurationFile::change(const Change& makeContents) const
{
    const std::string place = folder();
    PosixFiles files(place);
    files.setFailureHandler([](auto access, const Message& failure) {
        // It was reported when it was read at the start.
        if (access == PosixFiles::Access::writing) report(failure);
    });
    // Makes it, for the user alone.
    static_cast<void>(files.applicationSupportDirectory());
    const auto lock = files.lockFolder(place);
    if (!lock) return std::nullopt;
    const std::string path = place + '/' + _name;
    PropertyList list = makeContents(listAtPath(files, path));
    if (!files.writeAtomically(path, utf8FromUtf16(propertyListText(list)))) return std::nullopt;
    return list;
}

}  // namespace vantorel
