#pragma once

#include "host/HostColor.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace vantorel {

/// What the panel keeps from one start to the next, beside the settings of its pages.
struct PanelMemory {
    /// As QWidget::saveGeometry writes it; empty for the place that the desktop chooses.
    QByteArray geometry;
    QString page;
    bool onTop = false;
    HostColor color = HostColor::whiteColor();
    HostColor background = HostColor::whiteColor();
    std::vector<HostColor> recent;
};

/// From `Vantorel/panel.ini` in the folder of the user's configuration; what is missing or damaged
/// there has the values above.
[[nodiscard]] PanelMemory readPanelMemory();
/// The whole file at once. False where it could not be written, of which a line has been written to
/// standard error; what was kept before is still there.
bool writePanelMemory(const PanelMemory& memory);

}  // namespace vantorel
