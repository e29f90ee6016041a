#pragma once

#include "hosts/qt/QtView.h"

#include <QColorDialog>

namespace vantorel {

/// The place of the page in a dialog, as a view that the page's own view fills.
class PageHolder final : public QtMirrored<HostView> {
public:
    PageHolder();

    /// Puts the holder beside the controls of a dialog, or below them if the dialog is not laid out
    /// as Qt's was. Returns false, without any effect, if the dialog has no layout.
    bool putInto(QColorDialog& dialog);
    /// Takes the holder out of the dialog, which gets its former size.
    void takeOut();

    /// The least size that a page gets, in points. The dialog usually gives it more height.
    void setMinimumSize(HostSize size);
    /// Asks the dialog for more room. Returns what it has given.
    HostSize grow(HostSize growth);

    /// Sets the function that is called when the dialog has given the holder another size.
    void setSizeDidChange(std::function<void()> reaction) { _sizeDidChange = std::move(reaction); }

private:
    class Widget;

    void followWidget();

    std::function<void()> _sizeDidChange;
};

}  // namespace vantorel
