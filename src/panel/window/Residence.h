#pragma once

#include "shortcut/GlobalShortcut.h"

#include <QObject>

class QMenu;
class QSystemTrayIcon;

namespace vantorel {

class PanelPreferences;
class PanelWindow;

/// Keeps the panel running after its window was closed, with an icon in the desktop's tray, while
/// the preferences say so, and picks when a key of the whole desktop is pressed. Without a tray the
/// panel can be reached by another start of the program.
class Residence final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the object.
    Residence(PanelWindow& window, PanelPreferences& preferences);
    ~Residence() override;

private:
    void follow();
    void showTray();
    void showWindow();
    void pick();
    void followPick();

    PanelWindow& _window;
    PanelPreferences& _preferences;
    GlobalShortcut _shortcut;
    /// Whether the shortcut has started the pick that is under way.
    bool _isPicking = false;
    QMenu* _menu = nullptr;
    QSystemTrayIcon* _tray = nullptr;
};

}  // namespace vantorel
