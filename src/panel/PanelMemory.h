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
/// A failure is nothing to trouble the user with: the next start is as the first.
void writePanelMemory(const PanelMemory& memory);

}  // namespace vantorel
