#include "panel/window/PanelParts.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtToolButton.h"
#include "hosts/qt/TextScale.h"
#include "panel/window/TabOrder.h"

#include <QStyle>

#include <vector>

namespace vantorel {
namespace {

// In points.
constexpr int problemsPoints = 20;
constexpr int problemsTextPoints = 10;
constexpr int problemsMargin = 4;
constexpr int footPoints = 42;
constexpr int pickIconPoints = 16;

}  // namespace

PanelParts::PanelParts(QWidget& window)
    : band(new ColorBand(&window)),
      field(new ColorField(&window)),
      pick(new QtToolButton(&window)),
      facts(new ColorFacts(&window)),
      message(new MessageLabel(&window)),
      forms(new FormList(&window)),
      pageBar(new PageBar(&window)),
      pages(window),
      lastColors(new LastColors(&window)),
      problems(new PlainLabel(&window)),
      _window(window)
{
    pick->setObjectName(QStringLiteral("pick"));
    pick->setAutoRaise(false);
    pick->setIconSize(QSize(1, 1) * scaled(pickIconPoints));
    lastColors->setObjectName(QStringLiteral("lastColors"));
    problems->setVisible(false);
    problems->setFont(fontOfSize(problemsTextPoints));
    problems->setMargin(problemsMargin);
}

PanelRoom PanelParts::roomIn(QSize window) const
{
    PanelRoom room;
    room.window = window;
    if (const PanelPage* page = pages.current()) {
        const QSize least = page->minimumSize();
        room.leastPage = {scaled(least.width()), scaled(least.height())};
    }
    if (message->isVisibleTo(&_window)) {
        const int width = panelPlaces(room).lines.width();
        room.message = message->heightForWidth(width);
    }
    if (foot != nullptr) room.foot = scaled(footPoints);
    if (problems->isVisibleTo(&_window)) room.problems = scaled(problemsPoints);
    return room;
}

void PanelParts::layOut()
{
    const PanelRoom room = roomIn(_window.size());
    _window.setMinimumSize(leastWindow(room));
    const PanelPlaces places = panelPlaces(room);
    const auto mirrored = [this](const QRect& place) {
        return QStyle::visualRect(_window.layoutDirection(), _window.rect(), place);
    };
    const auto put = [&](QWidget& widget, const QRect& place) {
        widget.setGeometry(mirrored(place));
        widget.setVisible(!place.isEmpty());
    };
    const bool hasMessage = message->isVisibleTo(&_window);
    put(*band, places.band);
    put(*field, places.field);
    put(*pick, places.pick);
    // The slider needs a little more than its line.
    const QRect lines = places.lines.adjusted(0, 0, 0, scaled(2));
    put(*facts, hasMessage ? QRect() : lines);
    if (hasMessage) message->setGeometry(mirrored(places.lines));
    put(*forms, places.forms);
    put(*pageBar, places.pages.adjusted(-PageBar::bleed(), 0, PageBar::bleed(), 0));
    put(*lastColors, places.lastColors);
    if (foot != nullptr) put(*foot, places.foot);
    if (!places.problems.isEmpty()) problems->setGeometry(places.problems);
    pages.setGeometry(mirrored(places.page));
}

void PanelParts::orderTabs() const
{
    std::vector<const QWidget*> groups{band,  field,   pick,           facts,
                                       forms, pageBar, &pages.place(), lastColors};
    if (foot != nullptr) groups.push_back(foot);
    vantorel::orderTabs(_window, groups);
}

}  // namespace vantorel
