#include "panel/window/PanelLayout.h"

#include "hosts/qt/TextScale.h"
#include "panel/widgets/ColorFacts.h"

#include <algorithm>

namespace vantorel {
namespace {

// In points.
constexpr int margin = 12;
/// Pages have margins of their own, so that their contents begin at the window's.
constexpr int pageMargin = 2;
constexpr int groupGap = 8;
constexpr int partGap = 4;
constexpr int bandHeight = 64;
constexpr int tallBandHeight = 84;
constexpr int leastBandHeight = 40;
constexpr int fieldHeight = 32;
constexpr int pagesHeight = 32;
constexpr int lastColorsHeight = 28;
constexpr int lastColorsGrid = 76;
constexpr int narrowestTwoColumns = 480;
constexpr int columnGap = 24;
constexpr int leastColumn = 200;
constexpr int widestColumn = 320;

/// The heights of the parts above and below the page in one column.
struct Heights {
    int band = scaled(bandHeight);
    int lines = ColorFacts::heightOfBoth();
    int lastColors = scaled(lastColorsHeight);

    [[nodiscard]] int above() const
    {
        return scaled(margin) + band + scaled(groupGap) + scaled(fieldHeight) + scaled(partGap) +
               lines + scaled(partGap) + scaled(pagesHeight);
    }
    [[nodiscard]] int below() const
    {
        return lastColors > 0 ? scaled(groupGap) + lastColors + scaled(margin) : scaled(pageMargin);
    }
    [[nodiscard]] int sum() const { return above() + below(); }
};

/// A message must be read, whatever the page has to give up for it.
Heights fullHeights(const PanelRoom& room)
{
    Heights heights;
    heights.lines = std::max(heights.lines, room.message);
    return heights;
}

/// Without what a low window can do without.
Heights leastHeights(const PanelRoom& room)
{
    Heights heights;
    heights.lastColors = 0;
    heights.lines = std::max(ColorFacts::lineHeight(), room.message);
    heights.band = scaled(leastBandHeight);
    return heights;
}

/// Takes `excess` from the parts that a low window can do without, one after the other.
Heights reducedBy(int excess, const PanelRoom& room)
{
    const Heights least = leastHeights(room);
    Heights heights = fullHeights(room);
    const int whole = heights.sum();
    const auto remaining = [&] { return excess - (whole - heights.sum()); };
    if (remaining() > 0) heights.lastColors = least.lastColors;
    if (remaining() > 0) heights.lines = least.lines;
    if (remaining() > 0) heights.band = std::max(least.band, heights.band - remaining());
    return heights;
}

int otherHeights(const PanelRoom& room)
{
    return room.foot + room.problems;
}

/// The width of the left column, in steps so that its contents do not change with each pixel.
int columnWidth(int windowWidth)
{
    const int step = scaled(4);
    const int wanted = (windowWidth - 2 * scaled(margin) - scaled(columnGap)) * 2 / 5;
    return std::clamp(wanted - wanted % step, scaled(leastColumn), scaled(widestColumn));
}

/// Where the page begins in two columns.
int pageLeft(int windowWidth)
{
    return scaled(margin) + columnWidth(windowWidth) + scaled(columnGap) - scaled(margin) +
           scaled(pageMargin);
}

int pageWidthInTwoColumns(int windowWidth)
{
    return windowWidth - pageLeft(windowWidth) - scaled(pageMargin);
}

bool hasTwoColumns(const PanelRoom& room, int windowWidth)
{
    return windowWidth >= scaled(narrowestTwoColumns) &&
           pageWidthInTwoColumns(windowWidth) >= room.leastPage.width();
}

int heightsBesidePage(const PanelRoom& room)
{
    return scaled(margin) + scaled(pagesHeight) + scaled(pageMargin) + otherHeights(room);
}

/// The height of what the left of two columns always shows.
int leastColumnHeight(const PanelRoom& room)
{
    return scaled(margin) + scaled(tallBandHeight) + scaled(groupGap) + scaled(fieldHeight) +
           scaled(partGap) + std::max(ColorFacts::heightOfBoth(), room.message) + scaled(margin);
}

/// Places the field and the button beside it.
void placeField(PanelPlaces& places, int top, int left, int width)
{
    const int height = scaled(fieldHeight);
    places.field = {left, top, width - height - scaled(partGap), height};
    places.pick = {left + width - height, top, height, height};
}

PanelPlaces inOneColumn(const PanelRoom& room)
{
    PanelPlaces places;
    const int left = scaled(margin);
    const int width = room.window.width() - 2 * left;
    const int height = room.window.height() - otherHeights(room);
    const int wanted = fullHeights(room).sum() + room.leastPage.height();
    const Heights heights = reducedBy(wanted - height, room);
    int top = scaled(margin);
    places.band = {left, top, width, heights.band};
    top += heights.band + scaled(groupGap);
    placeField(places, top, left, width);
    top += scaled(fieldHeight) + scaled(partGap);
    places.lines = {left, top, width, heights.lines};
    top += heights.lines + scaled(partGap);
    places.pages = {left, top, width, scaled(pagesHeight)};
    top += scaled(pagesHeight);
    const int bottom = height - heights.below();
    places.page = {scaled(pageMargin), top, room.window.width() - 2 * scaled(pageMargin),
                   std::max(bottom - top, 0)};
    if (heights.lastColors > 0)
        places.lastColors = {left, bottom + scaled(groupGap), width, heights.lastColors};
    return places;
}

PanelPlaces inTwoColumns(const PanelRoom& room)
{
    PanelPlaces places;
    const int left = scaled(margin);
    const int width = columnWidth(room.window.width());
    const int height = room.window.height() - otherHeights(room);
    const int lines = std::max(ColorFacts::heightOfBoth(), room.message);
    int top = scaled(margin);
    places.band = {left, top, width, scaled(tallBandHeight)};
    top += scaled(tallBandHeight) + scaled(groupGap);
    placeField(places, top, left, width);
    top += scaled(fieldHeight) + scaled(partGap);
    places.lines = {left, top, width, lines};
    top += lines + scaled(margin);
    const int bottom = height - scaled(margin);
    const int grid = std::min(scaled(lastColorsGrid), bottom - top);
    if (grid >= scaled(lastColorsHeight)) places.lastColors = {left, bottom - grid, width, grid};
    const int forms = bottom - grid - scaled(margin) - top;
    if (forms > 0) places.forms = {left, top, width, forms};

    const int pageX = pageLeft(room.window.width());
    const int pageWidth = pageWidthInTwoColumns(room.window.width());
    const int inset = scaled(margin) - scaled(pageMargin);
    const int pageTop = scaled(margin) + scaled(pagesHeight);
    places.pages = {pageX + inset, scaled(margin), pageWidth - 2 * inset, scaled(pagesHeight)};
    places.page = {pageX, pageTop, pageWidth, std::max(height - pageTop - scaled(pageMargin), 0)};
    return places;
}

}  // namespace

PanelPlaces panelPlaces(const PanelRoom& room)
{
    const int width = room.window.width();
    PanelPlaces places = hasTwoColumns(room, width) ? inTwoColumns(room) : inOneColumn(room);
    const int bottom = room.window.height() - otherHeights(room);
    if (room.foot > 0) places.foot = {0, bottom, width, room.foot};
    if (room.problems > 0) places.problems = {0, bottom + room.foot, width, room.problems};
    return places;
}

QSize windowForPage(const PanelRoom& room, QSize page)
{
    const QSize wanted = page.expandedTo(room.leastPage);
    const int width = wanted.width() + 2 * scaled(pageMargin);
    if (!hasTwoColumns(room, width))
        return {width, wanted.height() + fullHeights(room).sum() + otherHeights(room)};
    // The left column grows in steps, so the width is found by trying; a step of it is the most by
    // which two neighbouring widths of the page differ.
    int wider = width;
    while (pageWidthInTwoColumns(wider) != wanted.width())
        ++wider;
    return {wider, wanted.height() + heightsBesidePage(room)};
}

QSize leastWindow(const PanelRoom& room)
{
    const int width = room.leastPage.width() + 2 * scaled(pageMargin);
    if (hasTwoColumns(room, room.window.width())) {
        return {width, std::max(room.leastPage.height() + heightsBesidePage(room),
                                leastColumnHeight(room) + otherHeights(room))};
    }
    return {width, room.leastPage.height() + leastHeights(room).sum() + otherHeights(room)};
}

}  // namespace vantorel
