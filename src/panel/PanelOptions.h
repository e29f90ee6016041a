#pragma once

#include "host/HostColor.h"
#include "panel/bus/PanelOrder.h"

#include <QSize>
#include <QStringList>

#include <optional>

namespace vantorel {

/// The options of the command line.
struct PanelOptions {
    /// May be outside sRGB.
    std::optional<HostColor> color;
    /// The key of a page. The plug-ins decide which keys exist.
    std::optional<QString> page;
    /// slider, palette or wheel
    std::optional<QString> mode;
    /// The size of the page, in points.
    std::optional<QSize> size;
    std::optional<QString> screenshot;
    std::optional<QString> theme;
    /// Replaces the user's data folder, which has the settings and colour lists.
    std::optional<QString> dataFolder;
    bool settingsFace = false;
    bool printColor = false;
    /// Let the user choose one colour, print it and exit.
    bool choice = false;
    QStringList plugins;
    PanelOrder::Step step = PanelOrder::Step::show;
    /// For the step `copy`, as in `PanelOrder`.
    QString copyForm;
    /// Start a panel even if one is running.
    bool another = false;
    /// Start without a window, for calls over D-Bus.
    bool service = false;
    /// The given options that a running panel cannot apply, as they are written.
    QStringList forStartsOnly;
};

struct PanelCommandLine {
    PanelOptions options;
    /// If set, print `message` and exit with this status.
    std::optional<int> exitStatus;
    QString message;
};

/// Reads the arguments, of which the first is the program's name. Needs no application object.
[[nodiscard]] PanelCommandLine readCommandLine(const QStringList& arguments);

}  // namespace vantorel
