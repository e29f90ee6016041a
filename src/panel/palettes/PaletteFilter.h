#pragma once

#include "hosts/qt/ClipboardLineEdit.h"
#include "panel/palettes/PaletteEntriesView.h"

namespace vantorel {

/// The field that filters the entries of a colour list by name or hex code. It is hidden until it
/// is opened, and again when it is left empty.
class PaletteFilter final : public ClipboardLineEdit {
    Q_OBJECT

public:
    /// `view` must outlive the field.
    PaletteFilter(QWidget* parent, PaletteEntriesView& view);

    /// Shows the field and gives it the focus.
    void open();
    /// Carries out a key of the field: Escape clears or hides it, Down leads to the rows. Returns
    /// false if the key is another one, or has no use now.
    bool performKey(const QKeyEvent& event);

signals:
    /// The view shows other rows.
    void filtered();

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    PaletteEntriesView& _view;
};

}  // namespace vantorel
