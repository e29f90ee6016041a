#pragma once

#include "panel/bus/PanelOrder.h"

#include <QColor>
#include <QSize>
#include <QStringList>

#include <optional>

namespace vantorel {

/// What the command line says.
struct PanelOptions {
    std::optional<QColor> color;
    /// The key of a page; which ones there are depends on the plug-ins.
    std::optional<QString> page;
    /// slider, palette or wheel
    std::optional<QString> mode;
    /// The size of the page, in points.
    std::optional<QSize> size;
    std::optional<QString> screenshot;
    std::optional<QString> theme;
    /// Stands for the folder of the user's data, where settings and colour lists are.
    std::optional<QString> dataFolder;
    bool settingsFace = false;
    bool printColor = false;
    /// Let the user choose one colour, print it and end.
    bool choice = false;
    QStringList plugins;
    PanelOrder::Step step = PanelOrder::Step::show;
    /// With the step `copy`: as in `PanelOrder`.
    QString copyForm;
    /// Start a panel even where one runs.
    bool another = false;
    /// Start without a window, for calls over D-Bus.
    bool service = false;
    /// The options given that a panel that runs already cannot follow, as they are written.
    QStringList forStartsOnly;
};

struct PanelCommandLine {
    PanelOptions options;
    /// What to print and end with: a message, and the exit status.
    std::optional<int> exitStatus;
    QString message;
};

/// Reads the arguments, the program's name first. Needs no application object.
[[nodiscard]] PanelCommandLine readCommandLine(const QStringList& arguments);

}  // namespace vantorel
