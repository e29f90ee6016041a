#pragma once

#include "hosts/qt/QtView.h"

#include <QColorDialog>

namespace vantorel {

/// The place of the page in a dialog, as a view that the page's own view fills.
class PageHolder final : public QtMirrored<HostView> {
public:
    PageHolder();

    /// Puts the holder beside the controls of a dialog, or below them if the dialog is not laid out
    /// as Qt's was. The holder gets the preferred size in points, or as much of it as the screen
    /// has room for, but at least the other size. Returns false, without any effect, if the dialog
    /// has no layout.
    bool putInto(QColorDialog& dialog, HostSize preferred, HostSize least);
    /// Takes the holder out of the dialog, which gets its former size.
    void takeOut();

    /// Asks the dialog for more room, which it gives if the screen has it. Returns how much it has
    /// given.
    HostSize grow(HostSize growth);

    /// Sets the function that is called when the dialog has given the holder another size.
    void setSizeDidChange(std::function<void()> reaction) { _sizeDidChange = std::move(reaction); }

private:
    class Widget;

    void followWidget();
    /// Has the dialog give the holder a size in points, or less if the screen has no more room, but
    /// at least the size needed.
    void ask(HostSize wanted, HostSize needed);

    std::function<void()> _sizeDidChange;
};

}  // namespace vantorel
