#include "panel/window/PanelCommands.h"

#include "hosts/qt/DisplayNames.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "hosts/qt/WaylandSession.h"
#include "panel/preferences/GeneralPreferences.h"
#include "panel/preferences/PreferencesDialog.h"
#include "panel/preferences/SnippetPreferences.h"
#include "panel/widgets/PanelIcons.h"
#include "panel/window/AboutDialog.h"
#include "panel/window/DialogSwitchesWindow.h"
#include "panel/window/ShortcutOverlay.h"
#include "panel/window/VisionMenu.h"

#include <QCheckBox>

#include <algorithm>

namespace vantorel {
namespace {

constexpr int widestCopyMenu = 360;

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
        action->setToolTip(plainToolTip(QStringLiteral("%1 (%2)").arg(text, shownKeys(keys))));
    }
    _window.addAction(action);
    _all.push_back(action);
    return action;
}

PanelCommands::PanelCommands(QWidget& window, PanelColors& colors, PanelPages& pages,
                             ColorExchange& exchange, HostFiles& files)
    : _window(window),
      _colors(colors),
      _pages(pages),
      _exchange(exchange),
      _files(files),
      _menu(new QMenu(&window)),
      _copyMenu(new QMenu(tr("Copy as"), &window)),
      _copySnippetMenu(new QMenu(tr("More code snippets"), _copyMenu))
{
    const auto usualKeys = [](QKeySequence::StandardKey key) {
        return QKeySequence::keyBindings(key);
    };
    _pick = add(tr("Pick from the screen"), {Qt::CTRL | Qt::Key_P}, exchange, &ColorExchange::pick);
    _pick->setIcon(pickIcon());
    _pickAndCopy = add(tr("Pick and copy"), {Qt::CTRL | Qt::SHIFT | Qt::Key_P}, exchange,
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
    // Wayland leaves the order of windows to the user.
    _stayOnTop->setEnabled(!isWaylandSession());
    connect(_stayOnTop, &QAction::toggled, this, &PanelCommands::setStaysOnTop);
    QAction* showDialogSwitches =
        add(tr("Dialogs of other programs..."), {}, *this, &PanelCommands::showDialogSwitches);
    QAction* showPreferences = add(tr("Preferences..."), {Qt::CTRL | Qt::Key_Comma}, *this,
                                   &PanelCommands::showPreferences);
    QAction* showManual = add(tr("Manual"), {}, *this, &PanelCommands::showManual);
    QAction* showAbout = add(tr("About Vantorel"), {}, *this, &PanelCommands::showAbout);
    QAction* showShortcuts =
        add(tr("Keyboard shortcuts"), {Qt::Key_F1}, *this, &PanelCommands::showShortcuts);
    _quit = add(tr("Quit"), {Qt::CTRL | Qt::Key_Q});

    connect(_copyMenu, &QMenu::aboutToShow, this, &PanelCommands::fillCopyMenu);
    connect(&colors, &PanelColors::historyChanged, this, &PanelCommands::updateHistory);
    updateHistory();

    auto* vision = new VisionMenu(_window);
    _menu->addAction(_pick);
    _menu->addAction(_pickAndCopy);
    _menu->addSeparator();
    _menu->addAction(_copy);
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
    _menu->addMenu(vision);
    _menu->addSeparator();
    _menu->addAction(showPreferences);
    _menu->addAction(showDialogSwitches);
    _menu->addSeparator();
    _menu->addAction(showManual);
    _menu->addAction(showShortcuts);
    _menu->addAction(showAbout);
    _menu->addSeparator();
    _menu->addAction(_quit);
}

void PanelCommands::fillCopyMenu()
{
    offerCopies(*_copyMenu, _exchange.colorTexts());
    const auto others = _exchange.otherSnippetTexts();
    if (others.empty()) return;
    offerCopies(*_copySnippetMenu, others);
    _copyMenu->addMenu(_copySnippetMenu);
}

void PanelCommands::offerCopies(QMenu& menu, const std::vector<HostColorText>& forms)
{
    menu.clear();
    const QFontMetrics metrics = menu.fontMetrics();
    std::vector<std::pair<QAction*, QString>> rows;
    for (const HostColorText& form : forms) {
        const QString value = qStringFrom(form.text);
        const QString shown =
            metrics.elidedText(shownName(form), Qt::ElideRight, scaled(widestCopyMenu) / 2);
        QAction* action = menu.addAction(plainTitle(shown));
        connect(action, &QAction::triggered, this, [this, value] { _exchange.copyText(value); });
        rows.emplace_back(action, value);
    }
    // How wide a value makes the menu depends on the style, so its room is found by trying.
    const int widest = scaled(widestCopyMenu);
    for (int room = widest, excess = 1; excess > 0 && room > 0; room -= (excess + 1) / 2) {
        for (const auto& [action, value] : rows) {
            const QString name = action->text().section(u'\t', 0, 0);
            // What follows the tab is shown in a column of its own.
            action->setText(name + u'\t' +
                            plainTitle(metrics.elidedText(value, Qt::ElideMiddle, room)));
        }
        excess = std::max(menu.sizeHint().width() - widest, 0);
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

void PanelCommands::showDialogSwitches()
{
    (new DialogSwitchesWindow(_window))->open();
}

PanelPreferences& PanelCommands::preferences()
{
    if (_preferences == nullptr) _preferences = new PanelPreferences(this);
    return *_preferences;
}

void PanelCommands::showPreferences()
{
    auto* dialog = new PreferencesDialog(preferences(), &_window);
    auto* onTop = new QCheckBox(tr("Always on top"), dialog);
    onTop->setObjectName(QStringLiteral("onTop"));
    onTop->setChecked(_stayOnTop->isChecked());
    onTop->setEnabled(_stayOnTop->isEnabled());
    connect(onTop, &QCheckBox::toggled, _stayOnTop, &QAction::setChecked);
    connect(_stayOnTop, &QAction::toggled, onTop, &QCheckBox::setChecked);
    dialog->general().addRow(tr("Window"), *onTop);
    dialog->general().addResidence();
    dialog->general().addShortcut();
    dialog->addPage(tr("Snippets"), [this](QWidget* parent) {
        auto* page = new SnippetPreferences(_files, _colors.color(), parent);
        connect(&_colors, &PanelColors::colorChanged, page, &SnippetPreferences::setColor);
        connect(page, &SnippetPreferences::changed, &_exchange, &ColorExchange::formChanged);
        connect(page, &SnippetPreferences::copyRequested, &_exchange, &ColorExchange::copyText);
        return page;
    });
    dialog->show();
}

/// The pages know where their manual is.
void PanelCommands::showManual()
{
    for (int i = 0; i < _pages.count(); ++i) {
        HostColorPicker* picker = _pages.page(i).picker();
        if (picker != nullptr && picker->performAction("helpHexColorAction", nullptr)) return;
    }
}

void PanelCommands::showAbout()
{
    (new AboutDialog(_window))->open();
}

void PanelCommands::showShortcuts()
{
    std::vector<ShortcutSection> sections{{{}, {}}};
    for (const QAction* action : _all) {
        if (!action->shortcuts().isEmpty())
            sections.front().rows.push_back({action->text(), shownKeys(action->shortcuts())});
    }
    sections.front().rows.push_back(
        {tr("Next control"), shownKeys({Qt::Key_Tab, Qt::SHIFT | Qt::Key_Tab})});
    for (int i = 0; i < _pages.count(); ++i)
        sections.push_back({_pages.page(i).name(), _pages.page(i).shortcuts()});
    std::erase_if(sections, [](const ShortcutSection& section) { return section.rows.empty(); });
    new ShortcutOverlay(sections, _window);
}

}  // namespace vantorel
