#pragma once

#include "panel/preferences/PanelPreferences.h"
#include "panel/window/ColorExchange.h"

#include <QAction>
#include <QMenu>
#include <QWidget>

#include <utility>
#include <vector>

namespace vantorel {

/// The commands of the panel. Each is defined once, with its name, shortcut, icon and function, for
/// the menu, the buttons, the keyboard and the overview of shortcuts.
class PanelCommands final : public QObject {
    Q_OBJECT

public:
    /// The actions and menus belong to `window`. All must outlive the commands.
    PanelCommands(QWidget& window, PanelColors& colors, PanelPages& pages, ColorExchange& exchange,
                  HostFiles& files);

    [[nodiscard]] QAction& copy() const { return *_copy; }
    [[nodiscard]] QAction& pick() const { return *_pick; }
    [[nodiscard]] QAction& pickAndCopy() const { return *_pickAndCopy; }
    [[nodiscard]] QAction& quit() const { return *_quit; }
    [[nodiscard]] QAction& swap() const { return *_swap; }
    [[nodiscard]] QAction& stayOnTop() const { return *_stayOnTop; }
    [[nodiscard]] QMenu& menu() const { return *_menu; }
    /// Offers every form in which the colour can be copied.
    [[nodiscard]] QMenu& copyMenu() const { return *_copyMenu; }
    /// Read when they are first asked for.
    [[nodiscard]] PanelPreferences& preferences();

private:
    QAction* add(const QString& text, const QList<QKeySequence>& keys);
    template <class Receiver, class Slot>
    QAction* add(const QString& text, const QList<QKeySequence>& keys, Receiver& receiver,
                 Slot slot)
    {
        QAction* action = add(text, keys);
        connect(action, &QAction::triggered, &receiver, slot);
        return action;
    }
    void fillCopyMenu();
    void offerCopies(QMenu& menu, const std::vector<HostColorText>& forms);
    void updateHistory();
    void setStaysOnTop(bool flag);
    void showDialogSwitches();
    void showPreferences();
    void showManual();
    void showShortcuts();
    void showAbout();

    QWidget& _window;
    /// Null until then.
    PanelPreferences* _preferences = nullptr;
    PanelColors& _colors;
    PanelPages& _pages;
    ColorExchange& _exchange;
    HostFiles& _files;
    std::vector<QAction*> _all;
    QAction* _copy = nullptr;
    QAction* _undo = nullptr;
    QAction* _redo = nullptr;
    QAction* _pick = nullptr;
    QAction* _pickAndCopy = nullptr;
    QAction* _quit = nullptr;
    QAction* _swap = nullptr;
    QAction* _stayOnTop = nullptr;
    QMenu* _menu;
    QMenu* _copyMenu;
    /// The snippets that pages do not offer.
    QMenu* _copySnippetMenu;
};

}  // namespace vantorel
