#include "hosts/qt/DisplayNames.h"

#include "hosts/qt/QtColors.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr const char* context = "DisplayNames";

constexpr std::array names{
    QT_TRANSLATE_NOOP("DisplayNames", "Add"),
    QT_TRANSLATE_NOOP("DisplayNames", "Code Snippet"),
    QT_TRANSLATE_NOOP("DisplayNames", "Color"),
    QT_TRANSLATE_NOOP("DisplayNames", "Empty"),
    QT_TRANSLATE_NOOP("DisplayNames", "Fraction"),
    QT_TRANSLATE_NOOP("DisplayNames", "Hex"),
    QT_TRANSLATE_NOOP("DisplayNames", "Hex Code"),
    QT_TRANSLATE_NOOP("DisplayNames", "Input Error"),
    QT_TRANSLATE_NOOP("DisplayNames", "Integer"),
    QT_TRANSLATE_NOOP("DisplayNames", "Lowercase"),
    QT_TRANSLATE_NOOP("DisplayNames", "No Match"),
    QT_TRANSLATE_NOOP("DisplayNames", "Remove"),
    QT_TRANSLATE_NOOP("DisplayNames", "Uppercase"),
};

}  // namespace

QString displayName(std::u16string_view text)
{
    const QString own = qStringFrom(text);
    const auto* const found = std::find_if(
        names.begin(), names.end(), [&](const char* name) { return own == QLatin1String(name); });
    return found != names.end() ? QCoreApplication::translate(context, *found) : own;
}

}  // namespace vantorel
