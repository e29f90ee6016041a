#pragma once

#include "panel/pages/PanelPage.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QObject>

#include <map>
#include <vector>

namespace vantorel {

/// The commands for colour lists and their colours: an action for each, with its keys, and the
/// menus that offer them.
class PaletteCommands final : public QObject {
    Q_OBJECT

public:
    enum class Command {
        newList,
        renameList,
        copyList,
        removeList,
        importFiles,
        openPicture,
        saveCopy,
        addColor,
        pickColors,
        renameColor,
        recolor,
        moveUp,
        moveDown,
        removeColors,
        find,
        undo,
        redo,
    };
    /// The state that decides which commands are enabled.
    struct Situation {
        bool hasList = false;
        bool ownsList = false;
        bool hasSelection = false;
        bool canUndo = false;
        bool canRedo = false;
    };

    /// `page` owns the commands and their menus.
    explicit PaletteCommands(QWidget& page);

    [[nodiscard]] QAction* action(Command command) const { return _offers.at(command).action; }
    /// All commands.
    [[nodiscard]] QMenu* menu() const { return _menu; }
    /// The commands for colours.
    [[nodiscard]] QMenu* colorMenu() const { return _colorMenu; }

    /// The keys of all commands, in the order of the menus.
    [[nodiscard]] std::vector<ShortcutRow> shortcuts() const;

    /// Enables the commands that make sense in this state.
    void enableFor(const Situation& situation);
    /// Shows the panel's colour, a hex code, in the tool tips.
    void setPanelColor(const QString& hexCode);
    /// Returns the action for a key; null if the page has none or if a text field uses the key
    /// itself.
    [[nodiscard]] QAction* actionFor(const QKeyEvent& event, bool inField) const;

private:
    /// What must exist for a command to make sense.
    enum class Needs { nothing, list, ownList, selection, undo, redo };
    struct Offer {
        QAction* action;
        Needs needs;
    };

    QAction* add(QMenu* menu, Command command, const QString& text, const QKeySequence& key,
                 Needs needs);

    QMenu* _menu;
    QMenu* _colorMenu;
    std::map<Command, Offer> _offers;
};

}  // namespace vantorel
