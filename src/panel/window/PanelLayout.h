#pragma once

#include <QRect>
#include <QSize>

/// The places of the panel's parts. Everything is in pixels, and left to right; the window mirrors
/// it.
namespace vantorel {

/// What the places depend on.
struct PanelRoom {
    QSize window;
    /// The least size of the page that is shown.
    QSize leastPage;
    /// What the lines below the field need to show a message; 0 without a message.
    int message = 0;
    /// The height of a bar at the bottom of the window; 0 without one.
    int foot = 0;
    /// The height of the line about plug-ins that were left out, at the very bottom; 0 without one.
    int problems = 0;
};

/// A part without room has an empty place.
struct PanelPlaces {
    QRect band;
    QRect field;
    /// The button that picks from the screen.
    QRect pick;
    QRect lines;
    QRect forms;
    QRect pages;
    QRect page;
    QRect lastColors;
    QRect foot;
    QRect problems;
};

/// One column below 480 points of width; from there on two, if the page has room in its own. A low
/// window gives up the last colours, the second line and a part of the band, in this order.
[[nodiscard]] PanelPlaces panelPlaces(const PanelRoom& room);

/// Returns the size of the window in which the page has a size, whatever is in `room.window`. At
/// least the page's least size.
[[nodiscard]] QSize windowForPage(const PanelRoom& room, QSize page);

/// Returns the least size of the window. Its height is less for a width with two columns.
[[nodiscard]] QSize leastWindow(const PanelRoom& room);

}  // namespace vantorel
