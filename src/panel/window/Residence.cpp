#include "panel/window/Residence.h"

#include "panel/preferences/PanelPreferences.h"
#include "panel/window/PanelWindow.h"

#include <QMenu>
#include <QSystemTrayIcon>

#include <utility>

namespace vantorel {

Residence::Residence(PanelWindow& window, PanelPreferences& preferences)
    : _window(window), _preferences(preferences)
{
    connect(&preferences, &PanelPreferences::changed, this, &Residence::follow);
    connect(&_shortcut, &GlobalShortcut::activated, this, &Residence::pick);
    connect(&_window.exchange(), &ColorExchange::picked, this, &Residence::followPick);
    connect(&_shortcut, &GlobalShortcut::stateChanged, this, [this](const Message& problem) {
        _preferences.setShortcutProblem(problem);
        if (!problem.isEmpty()) _window.showMessage(problem, MessageLabel::Kind::failure);
    });
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
    _shortcut.setKeys(
        stays ? QKeySequence::fromString(_preferences.pickShortcut(), QKeySequence::PortableText)
              : QKeySequence());
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

void Residence::pick()
{
    _isPicking = true;
    _window.exchange().pick();
}

void Residence::followPick()
{
    if (std::exchange(_isPicking, false) && _preferences.afterPicking() == AfterPicking::shows)
        showWindow();
}

void Residence::showWindow()
{
    _window.showNormal();
    _window.raise();
    _window.activateWindow();
}

}  // namespace vantorel
