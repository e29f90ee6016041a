#include "panel/window/PanelCommands.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/window/ShortcutOverlay.h"

namespace vantorel {
namespace {

constexpr qsizetype longestMenuText = 60;

QString shownKeys(const QAction& action)
{
    QStringList keys;
    for (const QKeySequence& key : action.shortcuts())
        keys.append(key.toString(QKeySequence::NativeText));
    return keys.join(QStringLiteral(", "));
}

QList<QKeySequence> redoKeys()
{
    QList<QKeySequence> keys = QKeySequence::keyBindings(QKeySequence::Redo);
    for (const QKeySequence& key :
         {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)}) {
        if (!keys.contains(key)) keys.append(key);
    }
    return keys;
}

}  // namespace

QAction* PanelCommands::add(const QString& text, const QList<QKeySequence>& keys)
{
    auto* action = new QAction(plainTitle(text), &_window);
    action->setShortcuts(keys);
    if (!keys.isEmpty()) {
        action->setToolTip(plainToolTip(QStringLiteral("%1 (%2)").arg(text, shownKeys(*action))));
    }
    _window.addAction(action);
    _all.push_back(action);
    return action;
}

PanelCommands::PanelCommands(QWidget& window, PanelColors& colors, PanelPages& pages,
                             ColorExchange& exchange)
    : _window(window),
      _colors(colors),
      _exchange(exchange),
      _menu(new QMenu(&window)),
      _copyMenu(new QMenu(tr("Copy as"), &window))
{
    const auto usualKeys = [](QKeySequence::StandardKey key) {
        return QKeySequence::keyBindings(key);
    };
    _pick = add(tr("Pick from the screen"), {Qt::CTRL | Qt::Key_P}, exchange, &ColorExchange::pick);
    _pick->setIcon(pickIcon());
    QAction* pickAndCopy = add(tr("Pick and copy"), {Qt::CTRL | Qt::SHIFT | Qt::Key_P}, exchange,
                               &ColorExchange::pickAndCopy);
    _copy = add(tr("Copy"), usualKeys(QKeySequence::Copy), exchange, &ColorExchange::copy);
    _copy->setIcon(copyIcon());
    QAction* copyHex = add(tr("Copy the hex code"), {Qt::CTRL | Qt::SHIFT | Qt::Key_C}, exchange,
                           &ColorExchange::copyHexCode);
    QAction* paste =
        add(tr("Paste a colour"), usualKeys(QKeySequence::Paste), exchange, &ColorExchange::paste);
    _undo = add(tr("Undo"), usualKeys(QKeySequence::Undo), colors, &PanelColors::undo);
    _redo = add(tr("Redo"), redoKeys(), colors, &PanelColors::redo);
    _swap = add(tr("Swap colour and background"), {Qt::Key_X}, colors, &PanelColors::swap);
    _swap->setIcon(swapIcon());
    QAction* nextPage =
        add(tr("Next page"), {Qt::CTRL | Qt::Key_PageDown}, pages, &PanelPages::showNextPage);
    QAction* previousPage =
        add(tr("Previous page"), {Qt::CTRL | Qt::Key_PageUp}, pages, &PanelPages::showPreviousPage);
    _stayOnTop = add(tr("Always on top"), {Qt::CTRL | Qt::Key_T});
    _stayOnTop->setCheckable(true);
    connect(_stayOnTop, &QAction::toggled, this, &PanelCommands::setStaysOnTop);
    QAction* showShortcuts =
        add(tr("Keyboard shortcuts"), {Qt::Key_F1}, *this, &PanelCommands::showShortcuts);
    QAction* quit = add(tr("Quit"), {Qt::CTRL | Qt::Key_Q}, window, &QWidget::close);

    connect(_copyMenu, &QMenu::aboutToShow, this, &PanelCommands::fillCopyMenu);
    // The copy button opens this menu, too.
    _copy->setMenu(_copyMenu);
    connect(&colors, &PanelColors::historyChanged, this, &PanelCommands::updateHistory);
    updateHistory();

    _menu->addAction(_pick);
    _menu->addAction(pickAndCopy);
    _menu->addSeparator();
    // Without the submenu, so that the command itself can be chosen.
    auto* plainCopy = new QAction(_copy->icon(), tr("Copy"), _menu);
    connect(plainCopy, &QAction::triggered, &exchange, &ColorExchange::copy);
    _menu->addAction(plainCopy);
    _menu->addAction(copyHex);
    _menu->addMenu(_copyMenu);
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

void PanelCommands::fillCopyMenu()
{
    _copyMenu->clear();
    for (const auto& [name, text] : _exchange.colorTexts()) {
        const QString shown = qStringFrom(text);
        const QString cut = shown.size() > longestMenuText
                                ? shown.left(longestMenuText) + QStringLiteral("\u2026")
                                : shown;
        // What follows the tab is shown in a column of its own.
        QAction* action =
            _copyMenu->addAction(plainTitle(qStringFrom(name)) + u'\t' + plainTitle(cut));
        connect(action, &QAction::triggered, this, [this, shown] { _exchange.copyText(shown); });
    }
}

void PanelCommands::updateHistory()
{
    _undo->setEnabled(_colors.canUndo());
    _redo->setEnabled(_colors.canRedo());
}

void PanelCommands::setStaysOnTop(bool flag)
{
    if (_window.windowFlags().testFlag(Qt::WindowStaysOnTopHint) == flag) return;
    const bool wasVisible = _window.isVisible();
    _window.setWindowFlag(Qt::WindowStaysOnTopHint, flag);
    if (wasVisible) _window.show();
}

void PanelCommands::showShortcuts()
{
    std::vector<std::pair<QString, QString>> rows;
    for (const QAction* action : _all) {
        if (!action->shortcuts().isEmpty()) rows.emplace_back(action->text(), shownKeys(*action));
    }
    new ShortcutOverlay(rows, _window);
}

}  // namespace vantorel
