#pragma once

#include "panel/palettes/PaletteEntriesModel.h"

#include <QCoreApplication>
#include <QListView>

#include <functional>

namespace vantorel {

/// The rows of a colour list: a swatch, the name, the hex code where there is room. A click or
/// Return takes a colour, a double click or F2 renames it, a drag moves it in the list or carries
/// it away. Only what is seen is painted, so a list may be as long as it likes.
class PaletteEntriesView final : public QListView {
    Q_DECLARE_TR_FUNCTIONS(PaletteEntriesView)

public:
    struct Reactions {
        /// Takes the colour at a place.
        std::function<void(std::size_t place)> choose;
        /// Moves the selected entries before a place.
        std::function<void(std::size_t before)> moveSelected;
        /// Something else is dropped before a place; gives whether it is of use.
        std::function<bool(const QMimeData& data, std::size_t before)> drop;
    };

    /// `model` must outlive the view.
    PaletteEntriesView(PaletteEntriesModel& model, Reactions reactions, QWidget* parent);

    /// Ascending.
    [[nodiscard]] std::vector<std::size_t> selectedPlaces() const;
    /// Selects entries, and shows the first.
    void selectPlaces(const std::vector<std::size_t>& places);
    /// The place of the entry that the keyboard is at; the end of the list where there is none.
    [[nodiscard]] std::size_t currentPlace() const;
    /// Lets the user type a name for the entry at a place.
    void renameAt(std::size_t place);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeDrag(QDragMoveEvent& event);
    /// The row before which a drop at a point goes.
    [[nodiscard]] int dropRowAt(QPoint point) const;
    [[nodiscard]] std::size_t placeBeforeRow(int row) const;
    void setDropRow(int row);

    PaletteEntriesModel& _model;
    Reactions _reactions;
    QPersistentModelIndex _pressed;
    /// Where a line shows what a drop would do; -1 for none.
    int _dropRow = -1;
};

}  // namespace vantorel
