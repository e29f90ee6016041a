#include "panel/widgets/PanelTheme.h"

#include "panel/widgets/PanelStyle.h"
#include "panel/widgets/ThemeTables.h"

#include <QApplication>

#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
#include <QStyleHints>
#endif

namespace vantorel {
namespace {

constexpr const char* listClass = "QAbstractItemView";
/// A field in a list has the colours of other fields.
constexpr const char* fieldClass = "QLineEdit";

bool hasOwnStyle()
{
    return qobject_cast<PanelStyle*>(QApplication::style()) != nullptr;
}

/// What the desktop has given the program.
class DesktopLook {
public:
    DesktopLook() : _style(QApplication::style()->name()) {}

    void restore() const
    {
        if (hasOwnStyle()) QApplication::setStyle(_style);
        QApplication::setPalette(QPalette());
        for (const char* name : {listClass, fieldClass})
            QApplication::setPalette(QApplication::palette(), name);
    }

    [[nodiscard]] static bool isDark()
    {
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
        const Qt::ColorScheme scheme = QGuiApplication::styleHints()->colorScheme();
        if (scheme != Qt::ColorScheme::Unknown) return scheme == Qt::ColorScheme::Dark;
#endif
        // A palette without roles of its own brings the desktop's back.
        QApplication::setPalette(QPalette());
        return themeColors(QApplication::palette()).isDark;
    }

private:
    QString _style;
};

/// A chosen row of a list is shown in grey, because the accent marks only the keyboard's focus.
/// Delegates that paint rows themselves take its colours from these roles.
QPalette paletteOfLists(const ThemeColors& theme)
{
    QPalette palette = paletteOf(theme);
    palette.setColor(QPalette::Highlight, theme.down);
    palette.setColor(QPalette::HighlightedText, theme.text);
    return palette;
}

void setOwnLook(const ThemeColors& theme)
{
    if (!hasOwnStyle()) QApplication::setStyle(new PanelStyle);
    QApplication::setPalette(paletteOf(theme));
    QApplication::setPalette(paletteOfLists(theme), listClass);
    QApplication::setPalette(paletteOf(theme), fieldClass);
}

void followDesktop()
{
    setOwnLook(DesktopLook::isDark() ? darkTheme() : lightTheme());
}

}  // namespace

bool applyTheme(const QString& name)
{
    static const DesktopLook desktop;
    static QMetaObject::Connection following;
    QObject::disconnect(following);
    if (name == QLatin1String("auto")) {
        followDesktop();
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
        following = QObject::connect(QGuiApplication::styleHints(),
                                     &QStyleHints::colorSchemeChanged, qApp, followDesktop);
#endif
    } else if (name == QLatin1String("light")) {
        setOwnLook(lightTheme());
    } else if (name == QLatin1String("dark")) {
        setOwnLook(darkTheme());
    } else if (name == QLatin1String("contrast")) {
        setOwnLook(contrastTheme());
    } else if (name == QLatin1String("desktop")) {
        desktop.restore();
    } else {
        return false;
    }
    return true;
}

}  // namespace vantorel
