#pragma once

#include "host/HostColor.h"

#include <optional>

namespace vantorel {

/// The colour of an embedded page, and what its dialog knows of it: which colours are only the
/// dialog's rounded echoes, and which ones the dialog still has to be given.
///
/// A page changes its colour in steps while the mouse is dragged. The dialog gets the last one
/// again as a final colour.
class PageColor {
public:
    /// `rounding`: see `EmbeddingTraits`.
    explicit PageColor(double rounding) : _rounding(rounding) {}

    [[nodiscard]] const HostColor& color() const { return _color; }

    /// The page begins with the dialog's colour.
    void beginWith(const HostColor& color) { _color = _dialogsColor = color; }
    /// The dialog has another colour. Returns false if that is only the page's colour after the
    /// dialog has rounded it. Otherwise, what the page has set before is not given to the dialog
    /// any more.
    bool setByDialog(const HostColor& color);
    /// The page has another colour. Returns false for none, and for one without components.
    bool setByPage(const std::optional<HostColor>& color);
    /// If false, as at first, the page's colours get the opacity of the dialog's colour.
    void setTakesOpacity(bool flag) { _takesOpacity = flag; }

    void stepsBegin() { _isInSteps = true; }
    void stepsEnd();
    [[nodiscard]] bool isInSteps() const { return _isInSteps; }

    /// Returns the colour to give to the dialog, as a step or as a final colour; `std::nullopt` if
    /// the dialog has it.
    [[nodiscard]] std::optional<HostColor> takeForDialog(bool isFinal);
    /// What the page has set until now is not given to the dialog any more.
    void keepFromDialog() { _isPending = false; }

private:
    double _rounding;
    HostColor _color = HostColor::whiteColor();
    /// The colour that the dialog has, before it rounded it.
    HostColor _dialogsColor = HostColor::whiteColor();
    /// Whether `_dialogsColor` was more than a step.
    bool _isFinal = true;
    /// Whether the page has set something since the dialog was last given a colour.
    bool _isPending = false;
    bool _isInSteps = false;
    bool _takesOpacity = false;
};

}  // namespace vantorel
