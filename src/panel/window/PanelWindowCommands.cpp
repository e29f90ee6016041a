#include "csscolor/CSSColorWriter.h"
#include "hosts/qt/QtColors.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/window/PanelWindow.h"
#include "panel/window/ShortcutOverlay.h"

#include <QApplication>
#include <QClipboard>

#include <utility>

/// What the panel's commands do.
namespace vantorel {
namespace {

constexpr qsizetype longestMenuText = 60;

}  // namespace

void PanelWindow::makeCommands()
{
    PanelCommands::Reactions reactions;
    reactions.copy = [this] { copyColor(); };
    reactions.copyHex = [this] { copyHexCode(); };
    reactions.paste = [this] { pasteColor(); };
    reactions.undo = [this] { undo(); };
    reactions.redo = [this] { redo(); };
    reactions.pick = [this] { pickFromScreen(); };
    reactions.pickAndCopy = [this] { pickFromScreen(true); };
    reactions.swap = [this] { swapColors(); };
    reactions.nextPage = [this] { stepPage(1); };
    reactions.previousPage = [this] { stepPage(-1); };
    reactions.stayOnTop = [this](bool on) { setStaysOnTop(on); };
    reactions.showShortcuts = [this] { showShortcuts(); };
    reactions.quit = [this] { close(); };
    reactions.fillCopyMenu = [this](QMenu& menu) { fillCopyMenu(menu); };
    _commands = std::make_unique<PanelCommands>(*this, std::move(reactions));
    _topBar->setMenu(_commands->menu());
    _tools->setActions(_commands->swap(), _commands->pick(), _commands->copy());
}

std::vector<HostColorText> PanelWindow::colorTexts() const
{
    std::vector<HostColorText> texts;
    if (const HostColorPicker* picker = currentPicker()) texts = picker->colorTexts();
    const auto add = [&](const char16_t* name, const std::optional<std::u16string>& text) {
        if (text) texts.push_back({name, *text});
    };
    if (texts.empty()) {
        add(u"Hex Code", hexText(_color));
        add(u"RGB (CSS)", rgbText(_color));
    }
    add(u"HSL (CSS)", hslText(_color));
    add(u"OKLCH (CSS)", oklchText(_color));
    return texts;
}

void PanelWindow::copyText(const QString& text)
{
    QApplication::clipboard()->setMimeData(mimeDataFromColor(_color, text).release());
    _history.remember(_color);
    showHistory();
    showRemark(tr("Copied: %1").arg(text));
}

QString PanelWindow::draggedText() const
{
    const HostColorPicker* picker = currentPicker();
    if (picker != nullptr) {
        if (const auto carried = picker->dragText()) return qStringFrom(*carried);
    }
    const auto texts = colorTexts();
    return texts.empty() ? QString() : qStringFrom(texts.front().text);
}

void PanelWindow::copyColor()
{
    if (const QString text = draggedText(); !text.isEmpty()) copyText(text);
}

void PanelWindow::copyHexCode()
{
    const auto texts = colorTexts();
    if (!texts.empty()) copyText(qStringFrom(texts.front().text));
}

void PanelWindow::fillCopyMenu(QMenu& menu)
{
    for (const auto& [name, text] : colorTexts()) {
        const QString shown = qStringFrom(text);
        const QString cut = shown.size() > longestMenuText
                                ? shown.left(longestMenuText) + QStringLiteral("\u2026")
                                : shown;
        QString title = qStringFrom(name) + u'\t' + cut;
        QAction* action = menu.addAction(title.replace(u'&', QStringLiteral("&&")));
        connect(action, &QAction::triggered, this, [this, shown] { copyText(shown); });
    }
}

void PanelWindow::takeOffer(const ColorOffer& offer,
                            const std::function<void(const HostColor&)>& take)
{
    if (offer.color) take(*offer.color);
    if (!offer.remark.isEmpty()) showRemark(offer.remark);
}

void PanelWindow::pasteColor()
{
    const QMimeData* held = QApplication::clipboard()->mimeData();
    takeOffer(held != nullptr ? colorFromMimeData(*held) : colorFromMimeData(QMimeData()),
              [this](const HostColor& color) { chooseColor(color); });
}

void PanelWindow::undo()
{
    if (const auto color = _history.undo()) chooseColor(*color);
    showHistory();
}

void PanelWindow::redo()
{
    if (const auto color = _history.redo()) chooseColor(*color);
    showHistory();
}

void PanelWindow::showHistory()
{
    _commands->undo().setEnabled(_history.canUndo());
    _commands->redo().setEnabled(_history.canRedo());
    _tools->recentColors().setColors(_history.recent());
}

void PanelWindow::swapColors()
{
    const HostColor background = _background;
    setBackground(_color);
    chooseColor(background);
}

void PanelWindow::setStaysOnTop(bool flag)
{
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == flag) return;
    const bool wasVisible = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, flag);
    if (wasVisible) show();
    _commands->stayOnTop().setChecked(flag);
}

void PanelWindow::showShortcuts()
{
    new ShortcutOverlay(_commands->shortcuts(), *this);
}

void PanelWindow::stepPage(int step)
{
    showPage((_currentPage + step + pageCount()) % pageCount());
}

void PanelWindow::setScreenPicker(std::unique_ptr<ScreenPicker> picker)
{
    _screenPicker = std::move(picker);
}

void PanelWindow::pickFromScreen(bool copies, ScreenPicker::Callback done)
{
    if (!_screenPicker) _screenPicker = makeScreenPicker();
    _screenPicker->start(this,
                         [this, copies, done = std::move(done)](const ScreenPickResult& result) {
                             using Outcome = ScreenPickResult::Outcome;
                             if (result.outcome == Outcome::picked) {
                                 chooseColor(result.color);
                                 if (copies) copyColor();
                             } else if (result.outcome == Outcome::notPossible) {
                                 showRemark(result.reason);
                             }
                             if (done) done(result);
                         });
}

void PanelWindow::cancelPick()
{
    if (_screenPicker) _screenPicker->cancel();
}

void PanelWindow::recall(const PanelMemory& memory)
{
    if (!memory.geometry.isEmpty()) restoreGeometry(memory.geometry);
    for (int i = 0; i < pageCount(); ++i) {
        if (_pages[static_cast<std::size_t>(i)]->name() == memory.page) showPage(i);
    }
    _history.setRecent(memory.recent);
    setBackground(memory.background);
    chooseColor(memory.color);
    _commands->stayOnTop().setChecked(memory.onTop);
    showHistory();
    layOut();
}

PanelMemory PanelWindow::memory() const
{
    PanelMemory memory;
    memory.geometry = saveGeometry();
    if (const PanelPage* page = currentPage()) memory.page = page->name();
    memory.onTop = windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    memory.color = _color;
    memory.background = _background;
    memory.recent = _history.recent();
    return memory;
}

}  // namespace vantorel
