#include "panel/window/PanelMemory.h"

#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "hosts/posix/PosixFiles.h"
#include "hosts/qt/QtColors.h"
#include "panel/preferences/ConfigurationFile.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/window/ColorHistory.h"
#include "plist/PropertyList.h"

#include <QFile>
#include <QSettings>

#include <algorithm>
#include <optional>

namespace vantorel {
namespace {

constexpr ConfigurationFile memoryFile("Panel.plist");

constexpr const char16_t* backgroundKey = u"Background";
constexpr const char16_t* colorKey = u"Color";
constexpr const char16_t* geometryKey = u"Geometry";
constexpr const char16_t* pageKey = u"Page";
constexpr const char16_t* recentKey = u"RecentColors";
constexpr const char16_t* pinnedKey = u"PinnedColors";
constexpr const char16_t* formKey = u"CopyForm";
constexpr const char16_t* picksKey = u"Picks";
constexpr const char16_t* onTopKey = u"StaysOnTop";
constexpr const char16_t* palettesKey = u"PalettesAsGrid";
constexpr const char16_t* yes = u"YES";
constexpr const char16_t* no = u"NO";

QString textOf(const HostColor& color)
{
    if (!isOutsideSRGB(color)) return qColorFrom(color).name(QColor::HexArgb);
    return exactColorText(color);
}

/// Returns `std::nullopt` for a text that `textOf` does not write.
std::optional<HostColor> colorOf(const QString& text)
{
    if (text.startsWith(QLatin1String("color("))) return colorFromText(text).color;
    const QColor read(text);
    if (!read.isValid()) return std::nullopt;
    return hostColorFrom(read);
}

/// Leaves `color` unchanged if the text is not a colour.
void readColor(const QString& text, HostColor& color)
{
    if (const auto read = colorOf(text)) color = *read;
}

void readColors(const QStringList& texts, std::vector<HostColor>& colors)
{
    for (const QString& text : texts)
        if (const auto read = colorOf(text)) colors.push_back(*read);
}

PanelMemory memoryFrom(const QSettings& settings)
{
    PanelMemory memory;
    memory.geometry = settings.value(QStringLiteral("geometry")).toByteArray();
    memory.page = settings.value(QStringLiteral("page")).toString();
    memory.onTop = settings.value(QStringLiteral("onTop")).toBool();
    readColor(settings.value(QStringLiteral("color")).toString(), memory.color);
    readColor(settings.value(QStringLiteral("background")).toString(), memory.background);
    readColors(settings.value(QStringLiteral("recent")).toStringList(), memory.recent);
    return memory;
}

QStringList textsOf(const PropertyList* array)
{
    QStringList texts;
    if (array == nullptr || array->array() == nullptr) return texts;
    for (const PropertyList& text : *array->array()) {
        if (text.string() != nullptr) texts.append(qStringFrom(*text.string()));
    }
    return texts;
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
    memory.form = text(formKey);
    readColors(textsOf(list.valueForKey(recentKey)), memory.recent);
    readColors(textsOf(list.valueForKey(pinnedKey)), memory.pinned);
    memory.showsPalettesAsGrid = text(palettesKey) == QStringView(yes);
    memory.picks = std::max(0, text(picksKey).toInt());
    return memory;
}

PropertyList listOf(const std::vector<HostColor>& colors)
{
    PropertyList::Array texts(colors.size());
    std::transform(colors.begin(), colors.end(), texts.begin(),
                   [](const HostColor& color) { return u16From(textOf(color)); });
    return texts;
}

PropertyList propertyListFrom(const PanelMemory& memory)
{
    return PropertyList::Dictionary{
        {backgroundKey, u16From(textOf(memory.background))},
        {colorKey, u16From(textOf(memory.color))},
        {geometryKey, PropertyList::data(memory.geometry.toStdString())},
        {formKey, u16From(memory.form)},
        {pageKey, u16From(memory.page)},
        {palettesKey, memory.showsPalettesAsGrid ? yes : no},
        {picksKey, u16From(QString::number(memory.picks))},
        {pinnedKey, listOf(memory.pinned)},
        {recentKey, listOf(memory.recent)},
        {onTopKey, memory.onTop ? yes : no},
    };
}

/// Reads the settings that older panels wrote. They are never written: QSettings leaves a file
/// behind when the panel is killed while it writes, and lets everybody read what it makes.
PanelMemory readOlderMemory()
{
    const std::string folder = ConfigurationFile::folder();
    const std::string path = folder + "/panel.ini";
    PosixFiles files(folder);
    files.setFailureHandler(
        [](auto, const Message& failure) { ConfigurationFile::report(failure); });
    // QSettings would wait for a pipe.
    if (!files.contentsAtPath(path)) return {};
    return memoryFrom(QSettings(QFile::decodeName(path.c_str()), QSettings::IniFormat));
}

PanelMemory memoryIn(const std::optional<PropertyList>& contents)
{
    return contents ? memoryFrom(*contents) : readOlderMemory();
}

template <class Value>
Value mergedValue(const Value& base, const Value& mine, const Value& theirs)
{
    return mine == base ? theirs : mine;
}

/// The newest first: what this panel has used since, then what others have.
std::vector<HostColor> mergedRecent(const std::vector<HostColor>& base,
                                    const std::vector<HostColor>& mine,
                                    const std::vector<HostColor>& theirs)
{
    if (mine == base) return theirs;
    if (theirs == base) return mine;
    const auto holds = [](const std::vector<HostColor>& colors, const HostColor& color) {
        return std::find(colors.begin(), colors.end(), color) != colors.end();
    };
    std::vector<HostColor> result;
    for (const HostColor& color : mine) {
        if (!holds(base, color)) result.push_back(color);
    }
    for (const std::vector<HostColor>* colors : {&theirs, &mine}) {
        for (const HostColor& color : *colors) {
            if (!holds(result, color)) result.push_back(color);
        }
    }
    if (result.size() > ColorHistory::mostRecent)
        result.erase(result.begin() + ColorHistory::mostRecent, result.end());
    return result;
}

/// Colours of the file are a little coarser, and must not look like other colours for that.
PanelMemory asStored(const PanelMemory& memory)
{
    return memoryFrom(propertyListFrom(memory));
}

PanelMemory merged(const PanelMemory& base, const PanelMemory& mine, const PanelMemory& theirs)
{
    PanelMemory result;
    result.geometry = mergedValue(base.geometry, mine.geometry, theirs.geometry);
    result.page = mergedValue(base.page, mine.page, theirs.page);
    result.onTop = mergedValue(base.onTop, mine.onTop, theirs.onTop);
    result.form = mergedValue(base.form, mine.form, theirs.form);
    result.color = mergedValue(base.color, mine.color, theirs.color);
    result.background = mergedValue(base.background, mine.background, theirs.background);
    result.pinned = mergedValue(base.pinned, mine.pinned, theirs.pinned);
    result.showsPalettesAsGrid =
        mergedValue(base.showsPalettesAsGrid, mine.showsPalettesAsGrid, theirs.showsPalettesAsGrid);
    result.picks = std::max(mine.picks, theirs.picks);
    result.recent = mergedRecent(base.recent, mine.recent, theirs.recent);
    return result;
}

}  // namespace

PanelMemory readPanelMemory()
{
    return memoryIn(memoryFile.contents());
}

bool writePanelMemory(const PanelMemory& memory)
{
    const auto replace = [&](const auto&) { return propertyListFrom(memory); };
    return memoryFile.change(replace).has_value();
}

bool changePanelMemory(const PanelMemory& base, const PanelMemory& memory)
{
    const auto merge = [&](const std::optional<PropertyList>& contents) {
        return propertyListFrom(merged(asStored(base), asStored(memory), memoryIn(contents)));
    };
    return memoryFile.change(merge).has_value();
}

}  // namespace vantorel
