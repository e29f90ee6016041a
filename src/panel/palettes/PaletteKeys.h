#pragma once

#include "panel/palettes/PaletteCommands.h"
#include "panel/palettes/PaletteFilter.h"

namespace vantorel {

/// Decides which keys are commands of the Palettes page and which belong to the control that has
/// the focus.
class PaletteKeys final : public QObject {
public:
    /// Watches all controls that `page` has now. `page` owns this object; `commands` and `filter`
    /// must live as long.
    PaletteKeys(QWidget& page, const PaletteCommands& commands, PaletteFilter& filter);

    /// Carries out the command for a key that no control has used. Returns false if there is none.
    [[nodiscard]] bool perform(const QKeyEvent& event) const { return perform(event, false); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] bool perform(const QKeyEvent& event, bool inField) const;
    /// Returns whether a text field needs the keys of editing, above all those of undo, itself.
    [[nodiscard]] bool editsText(const QObject* control) const;

    QWidget& _page;
    const PaletteCommands& _commands;
    PaletteFilter& _filter;
};

}  // namespace vantorel
