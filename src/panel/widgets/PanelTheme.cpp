#include "panel/widgets/PanelTheme.h"

#include "panel/widgets/ThemeTables.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
#include <QStyleHints>
#endif

namespace vantorel {
namespace {

/// What the desktop has given the program.
class DesktopLook {
public:
    DesktopLook() : _style(QApplication::style()->name()) {}

    void restore() const
    {
        if (QApplication::style()->name() != _style) QApplication::setStyle(_style);
        QApplication::setPalette(QPalette());
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

void setOwnLook(const ThemeColors& theme)
{
    if (QApplication::style()->name() != QLatin1String("fusion"))
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(paletteOf(theme));
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
