#include "panel/window/PanelMemory.h"

#include "hosts/posix/PosixFiles.h"
#include "hosts/qt/QtColors.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "result/Message.h"
#include "text/Unicode.h"

#include <QFile>
#include <QSettings>

#include <algorithm>
#include <cstdio>

namespace vantorel {
namespace {

/// Larger files are rejected unread; we never write files that big.
constexpr std::size_t largestMemory = std::size_t{1} << 20;

constexpr const char16_t* backgroundKey = u"Background";
constexpr const char16_t* colorKey = u"Color";
constexpr const char16_t* geometryKey = u"Geometry";
constexpr const char16_t* pageKey = u"Page";
constexpr const char16_t* recentKey = u"RecentColors";
constexpr const char16_t* onTopKey = u"StaysOnTop";
constexpr const char16_t* yes = u"YES";
constexpr const char16_t* no = u"NO";

/// The settings that older panels wrote. They are read only: QSettings leaves a file behind when
/// the panel is killed while it writes, and lets everybody read what it makes.
QSettings olderMemory()
{
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Vantorel"),
            QStringLiteral("panel")};
}

std::string memoryFolder()
{
    const std::string path = QFile::encodeName(olderMemory().fileName()).toStdString();
    return path.substr(0, path.rfind('/'));
}

std::string memoryPath(const std::string& folder)
{
    return folder + "/Panel.plist";
}

QString textOf(const HostColor& color)
{
    return qColorFrom(color).name(QColor::HexArgb);
}

/// Leaves `color` unchanged if the text is not a colour.
void readColor(const QString& text, HostColor& color)
{
    const QColor read(text);
    if (read.isValid()) color = hostColorFrom(read);
}

void readRecentColors(const QStringList& texts, std::vector<HostColor>& colors)
{
    for (const QString& text : texts) {
        const QColor color(text);
        if (color.isValid()) colors.push_back(hostColorFrom(color));
    }
}

PanelMemory memoryFrom(const QSettings& settings)
{
    PanelMemory memory;
    memory.geometry = settings.value(QStringLiteral("geometry")).toByteArray();
    memory.page = settings.value(QStringLiteral("page")).toString();
    memory.onTop = settings.value(QStringLiteral("onTop")).toBool();
    readColor(settings.value(QStringLiteral("color")).toString(), memory.color);
    readColor(settings.value(QStringLiteral("background")).toString(), memory.background);
    readRecentColors(settings.value(QStringLiteral("recent")).toStringList(), memory.recent);
    return memory;
}

PanelMemory memoryFrom(const PropertyList& list)
{
    const auto text = [&](const char16_t* key) {
        const std::u16string* found = list.stringForKey(key);
        return found != nullptr ? qStringFrom(*found) : QString();
    };
    PanelMemory memory;
    const PropertyList* geometry = list.valueForKey(geometryKey);
    if (geometry != nullptr && geometry->data() != nullptr)
        memory.geometry = QByteArray::fromStdString(*geometry->data());
    memory.page = text(pageKey);
    memory.onTop = text(onTopKey) == QStringView(yes);
    readColor(text(colorKey), memory.color);
    readColor(text(backgroundKey), memory.background);
    QStringList recent;
    const PropertyList* colors = list.valueForKey(recentKey);
    if (colors != nullptr && colors->array() != nullptr) {
        for (const PropertyList& color : *colors->array()) {
            if (color.string() != nullptr) recent.append(qStringFrom(*color.string()));
        }
    }
    readRecentColors(recent, memory.recent);
    return memory;
}

PropertyList propertyListFrom(const PanelMemory& memory)
{
    PropertyList::Array recent(memory.recent.size());
    std::transform(memory.recent.begin(), memory.recent.end(), recent.begin(),
                   [](const HostColor& color) { return u16From(textOf(color)); });
    return PropertyList::Dictionary{
        {backgroundKey, u16From(textOf(memory.background))},
        {colorKey, u16From(textOf(memory.color))},
        {geometryKey, PropertyList::data(memory.geometry.toStdString())},
        {pageKey, u16From(memory.page)},
        {recentKey, std::move(recent)},
        {onTopKey, memory.onTop ? yes : no},
    };
}

}  // namespace

PanelMemory readPanelMemory()
{
    const std::string folder = memoryFolder();
    const PosixFiles files(folder);
    const std::string path = memoryPath(folder);
    if (files.kindAtPath(path) == HostFileKind::none) return memoryFrom(olderMemory());
    const auto bytes = files.contentsAtPath(path);
    if (!bytes || bytes->size() > largestMemory || !isWellFormedUtf8(*bytes)) return {};
    return memoryFrom(parsePropertyList(utf16FromUtf8(*bytes)).value_or(PropertyList()));
}

bool writePanelMemory(const PanelMemory& memory)
{
    const std::string folder = memoryFolder();
    PosixFiles files(folder);
    files.setFailureHandler([](auto, const Message& message) {
        static_cast<void>(std::fprintf(stderr, "vantorel-panel: %s\n", english(message).c_str()));
    });
    // Makes it, for the user alone.
    static_cast<void>(files.applicationSupportDirectory());
    return files.writeAtomically(memoryPath(folder),
                                 utf8FromUtf16(propertyListText(propertyListFrom(memory))));
}

}  // namespace vantorel
