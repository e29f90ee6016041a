#include "panel/palettes/PaletteCommands.h"

#include "hosts/qt/PlainText.h"
#include "panel/widgets/PanelIcons.h"

#include <set>

namespace vantorel {

PaletteCommands::PaletteCommands(QWidget& page)
    : QObject(&page), _menu(new QMenu(&page)), _colorMenu(new QMenu(&page))
{
    add(_menu, Command::newList, tr("New list"), Qt::CTRL | Qt::Key_N, Needs::nothing);
    add(_menu, Command::renameList, tr("Rename the list"), Qt::SHIFT | Qt::Key_F2, Needs::list);
    add(_menu, Command::copyList, tr("Copy the list"), Qt::CTRL | Qt::Key_D, Needs::list);
    add(_menu, Command::removeList, tr("Remove the list"), Qt::SHIFT | Qt::Key_Delete,
        Needs::ownList);
    _menu->addSeparator();
    add(_menu, Command::importFiles, tr("Import palette files..."), Qt::CTRL | Qt::Key_O,
        Needs::nothing);
    add(_menu, Command::openPicture, tr("Colours of a picture..."), Qt::CTRL | Qt::Key_I,
        Needs::nothing);
    add(_menu, Command::saveCopy, tr("Save a copy as a file..."), Qt::CTRL | Qt::Key_S,
        Needs::list);
    _menu->addSeparator();

    add(_colorMenu, Command::addColor, tr("Add the panel's colour"), Qt::Key_Insert, Needs::nothing)
        ->setIcon(addIcon());
    add(_colorMenu, Command::pickColors, tr("Pick into this list"), Qt::CTRL | Qt::Key_L,
        Needs::nothing)
        ->setIcon(pickIcon());
    add(_colorMenu, Command::renameColor, tr("Rename"), Qt::Key_F2, Needs::selection);
    add(_colorMenu, Command::recolor, tr("Give it the panel's colour"), Qt::CTRL | Qt::Key_R,
        Needs::selection)
        ->setIcon(recolorIcon());
    add(_colorMenu, Command::moveUp, tr("Move up"), Qt::ALT | Qt::Key_Up, Needs::selection);
    add(_colorMenu, Command::moveDown, tr("Move down"), Qt::ALT | Qt::Key_Down, Needs::selection);
    add(_colorMenu, Command::removeColors, tr("Remove"), Qt::Key_Delete, Needs::selection)
        ->setIcon(removeIcon());
    _colorMenu->setTitle(tr("Colours"));
    _menu->addMenu(_colorMenu);
    add(_menu, Command::find, tr("Find"), Qt::CTRL | Qt::Key_F, Needs::list);
    _menu->addSeparator();
    add(_menu, Command::undo, tr("Undo"), Qt::CTRL | Qt::Key_Z, Needs::undo)->setIcon(undoIcon());
    add(_menu, Command::redo, tr("Redo"), Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Needs::redo)
        ->setIcon(redoIcon());
}

QAction* PaletteCommands::add(QMenu* menu, Command command, const QString& text,
                              const QKeySequence& key, Needs needs)
{
    auto* action = new QAction(plainTitle(text), this);
    // Only shown in menus. The keys are handled through `actionFor`, ahead of the panel's
    // shortcuts.
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setToolTip(
        plainToolTip(QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText))));
    menu->addAction(action);
    _offers.emplace(command, Offer{action, needs});
    return action;
}

std::vector<ShortcutRow> PaletteCommands::shortcuts() const
{
    std::vector<ShortcutRow> rows;
    rows.reserve(_offers.size());
    for (const auto& [command, offer] : _offers)
        rows.push_back({offer.action->text(), shownKeys(offer.action->shortcuts())});
    return rows;
}

void PaletteCommands::enableFor(const Situation& situation)
{
    for (const auto& [command, offer] : _offers) {
        bool makesSense = true;
        switch (offer.needs) {
            case Needs::nothing:
                break;
            case Needs::list:
                makesSense = situation.hasList;
                break;
            case Needs::ownList:
                makesSense = situation.ownsList;
                break;
            case Needs::selection:
                makesSense = situation.hasList && situation.hasSelection;
                break;
            case Needs::undo:
                makesSense = situation.canUndo;
                break;
            case Needs::redo:
                makesSense = situation.canRedo;
                break;
        }
        offer.action->setEnabled(makesSense);
    }
}

void PaletteCommands::setPanelColor(const QString& hexCode)
{
    QAction* add = action(Command::addColor);
    add->setToolTip(
        plainToolTip(tr("Add %1 to the list (%2)")
                         .arg(hexCode, add->shortcut().toString(QKeySequence::NativeText))));
    action(Command::recolor)
        ->setToolTip(
            plainToolTip(tr("Give the selected colours the panel's colour, %1").arg(hexCode)));
}

QAction* PaletteCommands::actionFor(const QKeyEvent& event, bool inField) const
{
    static const std::set<Command> usedInFields{Command::undo, Command::redo, Command::removeColors,
                                                Command::removeList};
    const QKeySequence pressed(event.keyCombination());
    // Ctrl+Y means redo on other desktops.
    if (!inField && pressed == QKeySequence(Qt::CTRL | Qt::Key_Y)) return action(Command::redo);
    // In a grid, what is before a colour is beside it.
    if (!inField && pressed == QKeySequence(Qt::ALT | Qt::Key_Left)) return action(Command::moveUp);
    if (!inField && pressed == QKeySequence(Qt::ALT | Qt::Key_Right))
        return action(Command::moveDown);
    for (const auto& [command, offer] : _offers) {
        if (offer.action->shortcut() != pressed) continue;
        // A field has its own use for these keys.
        return inField && usedInFields.contains(command) ? nullptr : offer.action;
    }
    return nullptr;
}

}  // namespace vantorel
