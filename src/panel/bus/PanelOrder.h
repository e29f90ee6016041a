#pragma once

#include "panel/bus/ActivationToken.h"
#include "result/Result.h"

#include <QString>

#include <functional>
#include <optional>

namespace vantorel {

/// The order of a start of the program to the panel, be it the running one or its own.
struct PanelOrder {
    enum class Step {
        /// Show the window.
        show,
        /// Pick a colour from the screen, without showing the window.
        pick,
        pickAndCopy,
        /// Copy the panel's colour, without showing the window.
        copy,
    };

    /// Takes a line of output.
    using Say = std::function<void(const QString&)>;

    Step step = Step::show;
    /// The colour to set first, as a CSS text.
    std::optional<QString> color;
    /// For `copy`: the name of a form in `ColorExchange::colorTexts`, or empty for the text of a
    /// drag.
    QString form;
    ActivationToken token;
};

/// Why the panel could not carry out an order. The kind decides the exit status and the name of the
/// D-Bus error.
struct PanelError {
    enum class Kind { notAColor, noSuchForm, cancelled, notPossible };

    Kind kind = Kind::notPossible;
    Message message;

    bool operator==(const PanelError&) const = default;
};

/// A text, such as the picked colour or the copied text, which may be empty; or an error.
using PanelAnswer = Result<QString, PanelError>;

}  // namespace vantorel
