#pragma once

#include "panel/bus/ActivationToken.h"
#include "result/Result.h"

#include <QString>

#include <optional>

namespace vantorel {

/// What a start of the program wants from the panel, be it one that runs already or its own.
struct PanelOrder {
    enum class Step {
        /// Show the window.
        show,
        /// Pick a colour from the screen; the window stays as it is.
        pick,
        pickAndCopy,
        /// Copy the panel's colour; the window stays as it is.
        copy,
    };

    Step step = Step::show;
    /// The colour to have first, as a CSS text.
    std::optional<QString> color;
    /// For `copy`: the name of a form in `ColorExchange::colorTexts`, or empty for what a drag
    /// carries.
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

/// A text, such as the colour picked or what was copied, which may be empty; or why there is none.
using PanelAnswer = Result<QString, PanelError>;

}  // namespace vantorel
