#pragma once

#include "panel/palettes/PaletteFilter.h"
#include "panel/palettes/PaletteSession.h"
#include "panel/widgets/MessageLabel.h"

#include <QObject>

namespace vantorel {

/// Changes the colours of the shown list as the user asks with commands, drops and typed names.
class PaletteEdits final : public QObject {
    Q_OBJECT

public:
    /// `page` owns this object; the others must live as long. The page selects in `view` what a
    /// step of the session has changed.
    PaletteEdits(QWidget& page, PaletteSession& session, PaletteFilter& filter,
                 PaletteEntriesView& view, MessageLabel& message);

    /// The panel's colour, which the user can add.
    void setColor(const HostColor& color) { _color = color; }

    /// Adds the panel's colour after the selected ones, and lets the user name it.
    void addPanelColor();
    /// Adds colours, named by their codes, after the selected ones.
    void addColors(const std::vector<HostColor>& colors);
    /// Gives the selected entries the panel's colour.
    void recolorSelected();
    /// Moves the selected entries up, for -1, or down, for 1.
    void stepSelected(int direction);
    /// Moves the selected entries to just before a place.
    void moveSelected(std::size_t before);
    void removeSelected();
    /// Lets the user type a name for the first selected entry.
    void beginRename();
    void rename(std::size_t place, const QString& name);
    /// Adds what the user has dropped before a place.
    void takeDrop(const ColorOffer& offer, std::size_t before);

private:
    /// Adds entries to the shown list, or to a new one if none is shown.
    void add(std::size_t before, const PaletteEntries& entries);
    /// The place after the selected entries, or the end of the list.
    [[nodiscard]] std::size_t placeForMore();

    PaletteSession& _session;
    PaletteFilter& _filter;
    PaletteEntriesView& _view;
    MessageLabel& _message;
    HostColor _color = HostColor::whiteColor();
};

}  // namespace vantorel
