#include "panel/preferences/PanelPreferences.h"

#include "hosts/qt/QtColors.h"
#include "panel/preferences/ConfigurationFile.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr ConfigurationFile preferencesFile("Preferences.plist");

constexpr std::u16string_view afterPickingKey = u"AfterPicking";
constexpr std::u16string_view averagedSideKey = u"AveragedSide";
constexpr std::u16string_view desktopStyleKey = u"UsesDesktopStyle";
constexpr std::u16string_view pickShortcutKey = u"PickShortcut";
constexpr std::u16string_view residentKey = u"StaysResident";
constexpr std::u16string_view textSizeKey = u"TextSize";
constexpr std::u16string_view themeKey = u"Theme";
constexpr const char16_t* yesText = u"YES";
constexpr const char16_t* noText = u"NO";

/// In the order of `AfterPicking`.
constexpr std::array afterPickingTexts{"show", "copy", "copy and hide"};

AfterPicking afterPickingFrom(const QString& text)
{
    for (std::size_t i = 0; i < afterPickingTexts.size(); ++i) {
        if (text == QLatin1String(afterPickingTexts[i])) return static_cast<AfterPicking>(i);
    }
    return AfterPicking::shows;
}

QString textOf(AfterPicking after)
{
    return QString::fromLatin1(afterPickingTexts[static_cast<std::size_t>(after)]);
}

bool isAveragedSide(int side)
{
    return std::find(averagedSides.begin(), averagedSides.end(), side) != averagedSides.end();
}

QString yesOrNo(bool flag)
{
    return QString::fromUtf16(flag ? yesText : noText);
}

bool isTheme(const QString& name)
{
    constexpr std::array names{"auto", "light", "dark", "contrast"};
    return std::any_of(names.begin(), names.end(),
                       [&name](const char* known) { return name == QLatin1String(known); });
}

bool isTextSize(int percent)
{
    return percent >= PanelPreferences::usualTextSize &&
           percent <= PanelPreferences::largestTextSize;
}

}  // namespace

PanelPreferences::PanelPreferences(QObject* parent)
    : QObject(parent), _values(valuesFrom(preferencesFile.contents().value_or(PropertyList())))
{
}

QString PanelPreferences::themeInForce() const
{
    return usesDesktopStyle() ? QStringLiteral("desktop") : theme();
}

PanelPreferences::Values PanelPreferences::valuesFrom(const PropertyList& list)
{
    const auto text = [&list](std::u16string_view key) {
        const std::u16string* found = list.stringForKey(key);
        return found != nullptr ? qStringFrom(*found) : QString();
    };
    Values values;
    if (const QString theme = text(themeKey); isTheme(theme)) values.theme = theme;
    values.usesDesktopStyle = text(desktopStyleKey) == QStringView(yesText);
    if (const int percent = text(textSizeKey).toInt(); isTextSize(percent))
        values.textSize = percent;
    values.staysResident = text(residentKey) == QStringView(yesText);
    // A file may hold any text.
    constexpr qsizetype longestShortcut = 100;
    if (const QString keys = text(pickShortcutKey); keys.size() <= longestShortcut)
        values.pickShortcut = keys;
    values.afterPicking = afterPickingFrom(text(afterPickingKey));
    if (const int side = text(averagedSideKey).toInt(); isAveragedSide(side))
        values.averagedSide = side;
    return values;
}

PropertyList PanelPreferences::listFrom(const Values& values)
{
    const auto entry = [](std::u16string_view key, const QString& value) {
        return std::pair(std::u16string(key), PropertyList(u16From(value)));
    };
    return PropertyList::Dictionary{
        entry(themeKey, values.theme),
        entry(desktopStyleKey, yesOrNo(values.usesDesktopStyle)),
        entry(residentKey, yesOrNo(values.staysResident)),
        entry(pickShortcutKey, values.pickShortcut),
        entry(textSizeKey, QString::number(values.textSize)),
        entry(afterPickingKey, textOf(values.afterPicking)),
        entry(averagedSideKey, QString::number(values.averagedSide)),
    };
}

void PanelPreferences::setTheme(const QString& theme)
{
    if (isTheme(theme) && theme != _values.theme) write(themeKey, theme);
}

void PanelPreferences::setUsesDesktopStyle(bool uses)
{
    if (uses != _values.usesDesktopStyle) write(desktopStyleKey, yesOrNo(uses));
}

void PanelPreferences::setTextSize(int percent)
{
    if (isTextSize(percent) && percent != _values.textSize)
        write(textSizeKey, QString::number(percent));
}

void PanelPreferences::setStaysResident(bool stays)
{
    if (stays != _values.staysResident) write(residentKey, yesOrNo(stays));
}

void PanelPreferences::setPickShortcut(const QString& keys)
{
    if (keys != _values.pickShortcut) write(pickShortcutKey, keys);
}

void PanelPreferences::setShortcutProblem(const Message& problem)
{
    if (problem == _shortcutProblem) return;
    _shortcutProblem = problem;
    emit changed();
}

void PanelPreferences::setAfterPicking(AfterPicking after)
{
    if (after != _values.afterPicking) write(afterPickingKey, textOf(after));
}

void PanelPreferences::setAveragedSide(int side)
{
    if (isAveragedSide(side) && side != _values.averagedSide)
        write(averagedSideKey, QString::number(side));
}

void PanelPreferences::write(std::u16string_view key, const QString& value)
{
    const auto set = [&](const std::optional<PropertyList>& contents) {
        PropertyList list = contents.value_or(PropertyList());
        list.setValue(u16From(value), key);
        return list;
    };
    if (const auto written = preferencesFile.change(set)) {
        _values = valuesFrom(*written);
    } else {
        _values = valuesFrom(set(listFrom(_values)));
    }
    emit changed();
}

}  // namespace vantorel
