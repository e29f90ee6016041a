#pragma once

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QWidget>

#include <functional>
#include <vector>

namespace vantorel {

/// What the panel can be told to do beside what its pages do: each command once, with its name, its
/// shortcut and its picture, for the menu, the buttons, the keyboard and the overlay that shows the
/// shortcuts.
class PanelCommands {
    Q_DECLARE_TR_FUNCTIONS(PanelCommands)

public:
    /// What the commands do. All must be set.
    struct Reactions {
        std::function<void()> copy;
        std::function<void()> copyHex;
        std::function<void()> paste;
        std::function<void()> undo;
        std::function<void()> redo;
        std::function<void()> pick;
        std::function<void()> pickAndCopy;
        std::function<void()> swap;
        std::function<void()> nextPage;
        std::function<void()> previousPage;
        std::function<void(bool on)> stayOnTop;
        std::function<void()> showShortcuts;
        std::function<void()> quit;
        /// Fills the menu of the texts that can be copied, before it opens.
        std::function<void(QMenu& menu)> fillCopyMenu;
    };

    /// The actions and menus belong to `window`.
    PanelCommands(QWidget& window, const Reactions& reactions);
    PanelCommands(const PanelCommands&) = delete;
    PanelCommands& operator=(const PanelCommands&) = delete;

    [[nodiscard]] QAction& copy() const { return *_copy; }
    [[nodiscard]] QAction& undo() const { return *_undo; }
    [[nodiscard]] QAction& redo() const { return *_redo; }
    [[nodiscard]] QAction& pick() const { return *_pick; }
    [[nodiscard]] QAction& swap() const { return *_swap; }
    [[nodiscard]] QAction& stayOnTop() const { return *_stayOnTop; }
    [[nodiscard]] QMenu& menu() const { return *_menu; }

    /// Each command with its shortcuts, as people read them.
    [[nodiscard]] std::vector<std::pair<QString, QString>> shortcuts() const;

private:
    QAction* add(const QString& text, const QList<QKeySequence>& keys,
                 const std::function<void()>& reaction);

    QWidget& _window;
    std::vector<QAction*> _all;
    QAction* _copy;
    QAction* _undo;
    QAction* _redo;
    QAction* _pick;
    QAction* _swap;
    QAction* _stayOnTop;
    QMenu* _menu;
};

}  // namespace vantorel
