#pragma once

#include "hosts/gtk/GtkHostView.h"

#include <functional>

namespace vantorel {

/// The part of a dialog that holds the page.
class GtkPageHolder final : public GtkMirrored<HostView> {
public:
    /// `sizeDidChange` is called when the dialog has given the holder another size.
    explicit GtkPageHolder(std::function<void()> sizeDidChange);

    /// The dialog gives at least this size, which the holder takes at once. In points.
    void setLeastSize(HostSize size);
    /// Takes the holder out of the dialog; the page keeps its widgets.
    void takeOut();

private:
    void takeSize(int width, int height);

    std::function<void()> _sizeDidChange;
};

}  // namespace vantorel
