#pragma once

#include "panel/window/PanelColors.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace vantorel {

/// What the panel keeps from one start to the next, beside the settings of its pages.
struct PanelMemory {
    /// As QWidget::saveGeometry writes it; empty for the place that the desktop chooses.
    QByteArray geometry;
    /// The identifier of a page. From an older panel it is the page's name in the language of then.
    QString page;
    bool onTop = false;
    /// The form of the field and of copies, as `ColorExchange::form`.
    QString form;
    HostColor color = PanelColors::firstColor();
    HostColor background = HostColor::whiteColor();
    std::vector<HostColor> recent;
    /// In the user's order.
    std::vector<HostColor> pinned;
    /// Whether the Palettes page shows a list as a grid.
    bool showsPalettesAsGrid = false;
    /// How many colours were picked from the screen, as `ColorExchange::picks`.
    int picks = 0;

    bool operator==(const PanelMemory&) const = default;
};

/// Reads `Vantorel/Panel.plist` in the folder of the user's configuration, or `Vantorel/panel.ini`,
/// in which older panels kept the same, if there is no such file. What is missing or damaged there
/// has the values above.
[[nodiscard]] PanelMemory readPanelMemory();
/// Replaces the whole file at once. Returns false if it could not be written, after a line on
/// standard error; the previous file is then still there.
bool writePanelMemory(const PanelMemory& memory);
/// Changes what differs between `memory` and `base`, which this process has read or written before.
/// Everything else keeps the value that another panel may have given it since, and no panel's last
/// colours are lost.
bool changePanelMemory(const PanelMemory& base, const PanelMemory& memory);

}  // namespace vantorel
