#include "panel/window/PanelWindow.h"

#include "csscolor/GamutMapping.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtMessages.h"
#include "hosts/qt/TextScale.h"
#include "panel/pages/PluginPage.h"
#include "panel/palettes/PalettesPage.h"
#include "panel/window/PictureDrops.h"

#include <QApplication>
#include <QTimer>

#include <utility>

namespace vantorel {
namespace {

/// In points, like the sizes of pages. The window is 300 points wide then.
constexpr QSize firstPageSize{296, 292};

QSize scaledSize(QSize points)
{
    return {scaled(points.width()), scaled(points.height())};
}

}  // namespace

PanelWindow::PanelWindow(QtDesktop& desktop, const std::vector<LoadedPlugin>& plugins,
                         std::vector<Message>& problems, std::unique_ptr<ScreenPicker> screenPicker)
    : _settings(desktop.files()),
      _parts(*this),
      _host(desktop, *this, _colors, _parts.pages),
      _exchange(_colors, _parts.pages, *this, desktop.files(), std::move(screenPicker)),
      _commands(*this, _colors, _parts.pages, _exchange, desktop.files()),
      _names(desktop.files(), desktop.colorLists(), desktop.paletteFiles()),
      _entry(*_parts.field, *_parts.facts, *_parts.forms, _colors, _parts.pages, _exchange, _names)
{
    setWindowTitle(QStringLiteral("Vantorel"));
    setAccessibleRole(*this, QAccessible::Window);
    _parts.pick->setDefaultAction(&_commands.pick());
    _parts.pick->setAccessibleName(_commands.pick().text());
    _parts.field->setCopyActions(_commands.copy(), _commands.copyMenu());
    _parts.band->setSwapAction(_commands.swap());
    _parts.lastColors->setEmptyHint(
        tr("%1 picks from the screen").arg(shownKeys(_commands.pick().shortcuts())));
    _parts.pageBar->setMenu(_commands.menu());
    connectParts();

    addPages(plugins, problems);
    resizeToPage(firstPageSize);
    _parts.pages.showPage(0);
    // No control has the focus initially, so that Ctrl+C copies the colour.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();
}

PanelWindow::~PanelWindow()
{
    _host.desktop().colorLists().setReaction({});
    // Pickers may use the host until they are destroyed.
    _parts.pages.clear();
}

void PanelWindow::connectParts()
{
    const auto showColors = [this] {
        _parts.band->setColor(_colors.foreground());
        _parts.band->setBackground(_colors.background());
        _parts.band->setEdited(_colors.edited());
    };
    const auto showHistory = [this] {
        _parts.lastColors->setColors(_colors.pinned(), _colors.recent());
    };
    connect(&_colors, &PanelColors::colorsChanged, this, showColors);
    connect(&_colors, &PanelColors::colorsChanged, &_parts.pages, &PanelPages::notePairChange);
    connect(&_colors, &PanelColors::colorSet, &_parts.pages, &PanelPages::setColor);
    connect(&_colors, &PanelColors::historyChanged, this, showHistory);
    connect(_parts.band, &ColorBand::editRequested, &_colors, &PanelColors::edit);
    connect(_parts.band, &ColorBand::dropped, &_exchange, &ColorExchange::takeOneColor);
    connect(_parts.band, &ColorBand::copyRequested, this, [this](EditedColor which) {
        _colors.edit(which);
        _exchange.copy();
    });
    connect(_parts.lastColors, &LastColors::chosen, &_colors, &PanelColors::setColor);
    connect(_parts.lastColors, &LastColors::pinRequested, &_colors, &PanelColors::pin);
    connect(_parts.lastColors, &LastColors::pinnedReordered, &_colors, &PanelColors::setPinned);
    connect(_parts.lastColors, &LastColors::clearRequested, &_colors, &PanelColors::clearRecent);
    connect(&_commands.quit(), &QAction::triggered, this, &PanelWindow::quit);
    connect(&_exchange, &ColorExchange::reported, this, &PanelWindow::showMessage);
    connect(&_exchange, &ColorExchange::copied, this, [this](const QString& text) {
        // Only these forms hold a colour outside sRGB; all others got it mapped.
        const bool isMapped = isOutsideSRGB(_colors.color()) &&
                              !text.startsWith(QLatin1String("oklch(")) &&
                              !text.startsWith(QLatin1String("color("));
        showMessage({phrase("\"%1\" copied", text.toStdString()),
                     isMapped ? phrase("it is the nearest colour inside sRGB") : Phrase()});
    });
    // What has failed before has succeeded now.
    connect(&_colors, &PanelColors::colorSet, this, [this] { showMessage({}); });
    connect(&_entry, &ColorEntry::mended, this, [this] { showMessage({}); });
    connect(_parts.message, &MessageLabel::messageChanged, this, &PanelWindow::adaptToMessage);
    connect(_parts.pageBar, &PageBar::pageChosen, &_parts.pages, &PanelPages::showPage);
    connect(&_parts.pages, &PanelPages::pageShown, this, &PanelWindow::adaptToPage);
    // A page looks its lists up again when it gets a colour.
    _host.desktop().colorLists().setReaction([this] { _parts.pages.setColor(_colors.color()); });
    showColors();
    showHistory();
    _parts.pages.setColor(_colors.color());
}

void PanelWindow::addPages(const std::vector<LoadedPlugin>& plugins, std::vector<Message>& problems)
{
    for (const LoadedPlugin& plugin : plugins) {
        auto picker = plugin.makePicker(_host);
        if (picker) {
            addPage(std::make_unique<PluginPage>(plugin, *std::move(picker)));
        } else {
            problems.push_back(leftOut(plugin.file(), picker.error()));
        }
    }
    QtDesktop& desktop = _host.desktop();
    auto palettes = std::make_unique<PalettesPage>(desktop.files(), desktop.paletteFiles());
    connect(_parts.lastColors, &LastColors::keepAsListRequested, palettes.get(),
            [this, page = palettes.get()] {
                _parts.pages.showPageWithKey(page->key());
                std::vector<HostColor> colors = _colors.pinned();
                colors.insert(colors.end(), _colors.recent().begin(), _colors.recent().end());
                page->keepAsList(tr("Last colours"), colors);
            });
    _palettes = palettes.get();
    _exchange.setNames(_names);
    _names.setListInUse([this] { return u16From(_palettes->listName()); });
    connect(&_exchange, &ColorExchange::picturePasted, this, [this](const QImage& picture) {
        _parts.pages.showPageWithKey(_palettes->key());
        _palettes->showPicture(picture);
    });
    connect(new PictureDrops(*this), &PictureDrops::dropped, this,
            [this](const QMimeData& dropped) {
                _parts.pages.showPageWithKey(_palettes->key());
                _palettes->takeDropped(dropped);
            });
    connect(_palettes, &PalettesPage::picksRequested, this, [this] {
        _exchange.pickMany(
            [this](const std::vector<HostColor>& colors) { _palettes->addColors(colors); });
    });
    addPage(std::move(palettes));
}

void PanelWindow::addPage(std::unique_ptr<PanelPage> page)
{
    _parts.pageBar->addPage(page->icon(), page->name(), page->toolTip());
    connect(page.get(), &PanelPage::colorChosen, &_colors, &PanelColors::setColor);
    _parts.pages.add(std::move(page));
}

void PanelWindow::adaptToPage(int index)
{
    const bool isMapped = isOutsideSRGB(_colors.color()) && !_parts.pages.takesWideGamut();
    showMessage(isMapped ? Message{phrase("the colour is outside sRGB; this page shows the nearest "
                                          "colour inside")}
                         : Message{});
    _parts.pageBar->showPage(index);
    _host.pageDidAppear();
    resizeAtOnce(_growth.sizeFor(size(), leastWindow(_parts.roomIn(size()))));
}

bool PanelWindow::focusNextPrevChild(bool next)
{
    _parts.orderTabs();
    return QWidget::focusNextPrevChild(next);
}

void PanelWindow::showProblems(const std::vector<Message>& problems)
{
    QStringList lines;
    for (const Message& problem : problems)
        lines.append(translated(problem));
    _parts.problems->setVisible(!lines.isEmpty());
    const QString reasons = lines.join(u'\n');
    _parts.problems->setToolTip(plainToolTip(reasons));
    _parts.problems->setAccessibleDescription(reasons);
    _parts.problems->setText(lines.size() == 1 ? tr("A plug-in was left out")
                                               : tr("%1 plug-ins were left out").arg(lines.size()));
    _parts.layOut();
}

void PanelWindow::showMessage(const Message& message, MessageLabel::Kind kind)
{
    _parts.message->showMessage(message, kind);
}

/// The page gives up the room for a long message; a page that already has its least height makes
/// the window higher.
void PanelWindow::adaptToMessage()
{
    resizeAtOnce(size());
}

void PanelWindow::setFoot(QWidget& foot)
{
    _parts.foot = &foot;
    resizeAtOnce({width(), height() + _parts.roomIn(size()).foot});
}

QIcon PanelWindow::icon() const
{
    const QIcon standIn = _parts.pages.page(0).icon();
    return QIcon::fromTheme(QStringLiteral("org.vantorel.ColorPanel"), standIn);
}

void PanelWindow::quit()
{
    _staysResident = false;
    // Also without a window on the screen, whose closing would do it.
    close();
    QApplication::quit();
}

void PanelWindow::resizeToPage(QSize points)
{
    resizeAtOnce(windowForPage(_parts.roomIn(size()), scaledSize(points)));
}

void PanelWindow::growPage(QSize growth)
{
    resizeAtOnce(windowForPage(_parts.roomIn(size()), _parts.pages.place().size() + growth));
}

void PanelWindow::resizeAtOnce(QSize size)
{
    // The least height depends on the number of columns, and so on the new width.
    const QSize least = leastWindow(_parts.roomIn(size));
    setMinimumSize(least);
    resize(size.expandedTo(least));
    _parts.layOut();
}

void PanelWindow::keyPressEvent(QKeyEvent* event)
{
    PanelPage* page = _parts.pages.current();
    if (page == nullptr || !page->performKey(*event)) QWidget::keyPressEvent(event);
}

bool PanelWindow::event(QEvent* event)
{
    const bool isDone = QWidget::event(event);
    switch (event->type()) {
        case QEvent::Resize:
        case QEvent::LayoutDirectionChange:
            _parts.layOut();
            break;
        case QEvent::Paint:
            // Searching the icon theme takes an eighth of the start-up time, so it is done after
            // the first paint.
            if (!std::exchange(_isPainted, true))
                QTimer::singleShot(0, this, [this] { setWindowIcon(icon()); });
            break;
        case QEvent::Close:
            // This also ends loops that wait for the mouse.
            if (!_staysResident) QApplication::quit();
            break;
        case QEvent::Show:
        case QEvent::Hide:
        case QEvent::WindowStateChange:
            // A window that is minimised is not hidden.
            _parts.pages.setVisible(isVisible() && !isMinimized());
            break;
        default:
            break;
    }
    return isDone;
}

bool PanelWindow::finishEditing()
{
    _parts.pages.current()->finishEditing();
    _parts.field->finishEditing();
    return !_parts.field->hasError();
}

void PanelWindow::recall(const PanelMemory& memory)
{
    if (!memory.geometry.isEmpty()) restoreGeometry(memory.geometry);
    _parts.pages.showRemembered(memory.page);
    _exchange.setForm(memory.form);
    _exchange.setPicks(memory.picks);
    _colors.startWith({memory.color, memory.background}, memory.recent, memory.pinned);
    _palettes->setArrangement(memory.showsPalettesAsGrid ? PaletteEntriesView::Arrangement::grid
                                                         : PaletteEntriesView::Arrangement::list);
    _commands.stayOnTop().setChecked(memory.onTop);
    _parts.layOut();
}

PanelMemory PanelWindow::memory(Place place) const
{
    PanelMemory memory;
    // A window that was never shown has no place of its own.
    if (place == Place::included && testAttribute(Qt::WA_WState_Created))
        memory.geometry = saveGeometry();
    if (const PanelPage* page = _parts.pages.current()) memory.page = page->identifier();
    memory.form = _exchange.form();
    memory.picks = _exchange.picks();
    memory.showsPalettesAsGrid = _palettes->arrangement() == PaletteEntriesView::Arrangement::grid;
    memory.onTop = windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    memory.color = _colors.foreground();
    memory.background = _colors.background();
    memory.recent = _colors.recent();
    memory.pinned = _colors.pinned();
    return memory;
}

}  // namespace vantorel
