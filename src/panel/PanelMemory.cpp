#include "panel/PanelMemory.h"

#include "hosts/qt/QtColors.h"

#include <QSettings>

namespace vantorel {
namespace {

QSettings panelSettings()
{
    return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Vantorel"),
            QStringLiteral("panel")};
}

QString textOf(const HostColor& color)
{
    return qColorFrom(color).name(QColor::HexArgb);
}

HostColor colorOf(const QString& text, const HostColor& otherwise)
{
    const QColor color(text);
    return color.isValid() ? hostColorFrom(color) : otherwise;
}

}  // namespace

PanelMemory readPanelMemory()
{
    const QSettings settings = panelSettings();
    PanelMemory memory;
    memory.geometry = settings.value(QStringLiteral("geometry")).toByteArray();
    memory.page = settings.value(QStringLiteral("page")).toString();
    memory.onTop = settings.value(QStringLiteral("onTop")).toBool();
    memory.color = colorOf(settings.value(QStringLiteral("color")).toString(), memory.color);
    memory.background =
        colorOf(settings.value(QStringLiteral("background")).toString(), memory.background);
    for (const QString& text : settings.value(QStringLiteral("recent")).toStringList()) {
        const QColor color(text);
        if (color.isValid()) memory.recent.push_back(hostColorFrom(color));
    }
    return memory;
}

void writePanelMemory(const PanelMemory& memory)
{
    QSettings settings = panelSettings();
    settings.setValue(QStringLiteral("geometry"), memory.geometry);
    settings.setValue(QStringLiteral("page"), memory.page);
    settings.setValue(QStringLiteral("onTop"), memory.onTop);
    settings.setValue(QStringLiteral("color"), textOf(memory.color));
    settings.setValue(QStringLiteral("background"), textOf(memory.background));
    QStringList recent;
    for (const HostColor& color : memory.recent)
        recent.append(textOf(color));
    settings.setValue(QStringLiteral("recent"), recent);
}

}  // namespace vantorel
