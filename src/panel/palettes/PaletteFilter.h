#pragma once

#include "hosts/qt/ClipboardLineEdit.h"
#include "panel/palettes/PaletteEntriesView.h"

namespace vantorel {

/// The field that filters the rows of a colour list by name or hex code.
class PaletteFilter final : public ClipboardLineEdit {
    Q_OBJECT

public:
    /// `view` must outlive the field.
    PaletteFilter(QWidget* parent, PaletteEntriesView& view);

    /// Carries out a key of the field: Escape clears it, Down leads to the rows. Returns false if
    /// the key is another one, or has no use now.
    bool performKey(const QKeyEvent& event);

signals:
    /// The view shows other rows.
    void filtered();

private:
    PaletteEntriesView& _view;
};

}  // namespace vantorel
