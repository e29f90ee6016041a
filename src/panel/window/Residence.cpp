#include "panel/window/Residence.h"

#include "panel/preferences/PanelPreferences.h"
#include "panel/window/PanelWindow.h"

#include <QMenu>
#include <QSystemTrayIcon>

namespace vantorel {

Residence::Residence(PanelWindow& window, const PanelPreferences& preferences)
    : _window(window), _preferences(preferences)
{
    connect(&preferences, &PanelPreferences::changed, this, &Residence::follow);
    follow();
}

Residence::~Residence()
{
    delete _menu;
}

void Residence::follow()
{
    const bool stays = _preferences.staysResident();
    _window.setStaysResident(stays);
    if (stays) {
        showTray();
    } else if (_tray != nullptr) {
        _tray->hide();
    }
}

void Residence::showTray()
{
    if (_tray == nullptr) {
        _menu = new QMenu;
        const PanelCommands& commands = _window.commands();
        QAction* show = _menu->addAction(tr("Show the panel"));
        QAction* pick = &commands.pick();
        QAction* pickAndCopy = &commands.pickAndCopy();
        QAction* quit = &commands.quit();
        connect(show, &QAction::triggered, this, &Residence::showWindow);
        _menu->addSeparator();
        _menu->addAction(pick);
        _menu->addAction(pickAndCopy);
        _menu->addSeparator();
        _menu->addAction(quit);
        _tray = new QSystemTrayIcon(_window.icon(), this);
        _tray->setToolTip(QStringLiteral("Vantorel"));
        _tray->setContextMenu(_menu);
        connect(_tray, &QSystemTrayIcon::activated, this,
                [this](QSystemTrayIcon::ActivationReason reason) {
                    if (reason == QSystemTrayIcon::Trigger) showWindow();
                });
    }
    // The tray may come later; then the icon appears in it.
    _tray->show();
}

void Residence::showWindow()
{
    _window.showNormal();
    _window.raise();
    _window.activateWindow();
}

}  // namespace vantorel
