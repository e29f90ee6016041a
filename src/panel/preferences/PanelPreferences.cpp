#include "panel/preferences/PanelPreferences.h"

#include "hosts/qt/QtColors.h"
#include "panel/preferences/ConfigurationFile.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr ConfigurationFile preferencesFile("Preferences.plist");

constexpr std::u16string_view desktopStyleKey = u"UsesDesktopStyle";
constexpr std::u16string_view textSizeKey = u"TextSize";
constexpr std::u16string_view themeKey = u"Theme";
constexpr const char16_t* yesText = u"YES";
constexpr const char16_t* noText = u"NO";

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
    return values;
}

void PanelPreferences::setTheme(const QString& theme)
{
    if (isTheme(theme) && theme != _values.theme) write(themeKey, theme);
}

void PanelPreferences::setUsesDesktopStyle(bool uses)
{
    if (uses != _values.usesDesktopStyle)
        write(desktopStyleKey, QString::fromUtf16(uses ? yesText : noText));
}

void PanelPreferences::setTextSize(int percent)
{
    if (isTextSize(percent) && percent != _values.textSize)
        write(textSizeKey, QString::number(percent));
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
        const PropertyList mine = PropertyList::Dictionary{
            {std::u16string(themeKey), u16From(_values.theme)},
            {std::u16string(desktopStyleKey), _values.usesDesktopStyle ? yesText : noText},
            {std::u16string(textSizeKey), u16From(QString::number(_values.textSize))},
        };
        _values = valuesFrom(set(mine));
    }
    emit changed();
}

}  // namespace vantorel
