#pragma once

#include <QObject>

class QMenu;
class QSystemTrayIcon;

namespace vantorel {

class PanelPreferences;
class PanelWindow;

/// Keeps the panel running after its window was closed, with an icon in the desktop's tray, while
/// the preferences say so. Without a tray the panel can be reached by another start of the program.
class Residence final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the object.
    Residence(PanelWindow& window, const PanelPreferences& preferences);
    ~Residence() override;

private:
    void follow();
    void showTray();
    void showWindow();

    PanelWindow& _window;
    const PanelPreferences& _preferences;
    QMenu* _menu = nullptr;
    QSystemTrayIcon* _tray = nullptr;
};

}  // namespace vantorel
