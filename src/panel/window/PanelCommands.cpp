#include "panel/window/PanelCommands.h"

#include "panel/widgets/PanelIcons.h"

namespace vantorel {
namespace {

QString shownKeys(const QAction& action)
{
    QStringList keys;
    for (const QKeySequence& key : action.shortcuts())
        keys.append(key.toString(QKeySequence::NativeText));
    return keys.join(QStringLiteral(", "));
}

}  // namespace

QAction* PanelCommands::add(const QString& text, const QList<QKeySequence>& keys,
                            const std::function<void()>& reaction)
{
    auto* action = new QAction(text, &_window);
    action->setShortcuts(keys);
    if (!keys.isEmpty()) {
        action->setToolTip(QStringLiteral("%1 (%2)").arg(text, shownKeys(*action)));
    }
    if (reaction) QObject::connect(action, &QAction::triggered, &_window, reaction);
    _window.addAction(action);
    _all.push_back(action);
    return action;
}

PanelCommands::PanelCommands(QWidget& window, const Reactions& reactions) : _window(window)
{
    _menu = new QMenu(&window);
    _pick = add(tr("Pick from the screen"), {Qt::CTRL | Qt::Key_P}, reactions.pick);
    _pick->setIcon(pickIcon());
    QAction* pickAndCopy =
        add(tr("Pick and copy"), {Qt::CTRL | Qt::SHIFT | Qt::Key_P}, reactions.pickAndCopy);
    _copy = add(tr("Copy"), QKeySequence::keyBindings(QKeySequence::Copy), reactions.copy);
    _copy->setIcon(copyIcon());
    QAction* copyHex =
        add(tr("Copy the hex code"), {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, reactions.copyHex);
    QAction* paste =
        add(tr("Paste a colour"), QKeySequence::keyBindings(QKeySequence::Paste), reactions.paste);
    _undo = add(tr("Undo"), QKeySequence::keyBindings(QKeySequence::Undo), reactions.undo);
    QList<QKeySequence> redoKeys = QKeySequence::keyBindings(QKeySequence::Redo);
    for (const QKeySequence& key :
         {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)}) {
        if (!redoKeys.contains(key)) redoKeys.append(key);
    }
    _redo = add(tr("Redo"), redoKeys, reactions.redo);
    _swap = add(tr("Swap colour and background"), {Qt::Key_X}, reactions.swap);
    _swap->setIcon(swapIcon());
    QAction* nextPage = add(tr("Next page"), {Qt::CTRL | Qt::Key_PageDown}, reactions.nextPage);
    QAction* previousPage =
        add(tr("Previous page"), {Qt::CTRL | Qt::Key_PageUp}, reactions.previousPage);
    _stayOnTop = add(tr("Always on top"), {Qt::CTRL | Qt::Key_T}, {});
    _stayOnTop->setCheckable(true);
    QObject::connect(_stayOnTop, &QAction::toggled, &window, reactions.stayOnTop);
    QAction* showShortcuts = add(tr("Keyboard shortcuts"), {Qt::Key_F1}, reactions.showShortcuts);
    QAction* quit = add(tr("Quit"), {Qt::CTRL | Qt::Key_Q}, reactions.quit);

    auto* copyMenu = new QMenu(tr("Copy as"), &window);
    QObject::connect(copyMenu, &QMenu::aboutToShow, copyMenu, [copyMenu, reactions] {
        copyMenu->clear();
        reactions.fillCopyMenu(*copyMenu);
    });
    // The button of the copy action opens it, too.
    _copy->setMenu(copyMenu);

    _menu->addAction(_pick);
    _menu->addAction(pickAndCopy);
    _menu->addSeparator();
    // Without its menu, so that it can be chosen as it is.
    auto* plainCopy = new QAction(_copy->icon(), _copy->text(), _menu);
    QObject::connect(plainCopy, &QAction::triggered, &window, reactions.copy);
    _menu->addAction(plainCopy);
    _menu->addAction(copyHex);
    _menu->addMenu(copyMenu);
    _menu->addAction(paste);
    _menu->addSeparator();
    _menu->addAction(_undo);
    _menu->addAction(_redo);
    _menu->addAction(_swap);
    _menu->addSeparator();
    _menu->addAction(nextPage);
    _menu->addAction(previousPage);
    _menu->addAction(_stayOnTop);
    _menu->addSeparator();
    _menu->addAction(showShortcuts);
    _menu->addAction(quit);
}

std::vector<std::pair<QString, QString>> PanelCommands::shortcuts() const
{
    std::vector<std::pair<QString, QString>> rows;
    for (const QAction* action : _all) {
        if (!action->shortcuts().isEmpty()) rows.emplace_back(action->text(), shownKeys(*action));
    }
    return rows;
}

}  // namespace vantorel
