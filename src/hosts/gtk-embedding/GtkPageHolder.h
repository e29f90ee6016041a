#pragma once

#include "hosts/gtk/GtkHostView.h"

#include <functional>

namespace vantorel {

/// The part of a dialog that holds the page.
class GtkPageHolder final : public GtkMirrored<HostView> {
public:
    /// `sizeDidChange` is called when the dialog has given the holder another size.
    explicit GtkPageHolder(std::function<void()> sizeDidChange);

    /// The dialog gives at least this size. In points.
    void setLeastSize(HostSize size);
    /// Asks the dialog for more room, and takes it at once. Returns how much the holder has grown.
    HostSize grow(HostSize growth);
    /// Takes the holder out of the dialog; the page keeps its widgets.
    void takeOut();

private:
    void takeSize(int width, int height);

    std::function<void()> _sizeDidChange;
    HostSize _leastSize;
};

}  // namespace vantorel
