#pragma once

#include "panel/palettes/PaletteEntriesModel.h"
#include "panel/widgets/ColorClipboard.h"

#include <QLabel>
#include <QListView>

namespace vantorel {

/// The rows of a colour list: a swatch, the name, the hex code where there is room. A click or
/// Return takes a colour, a double click or F2 renames it, a drag moves it in the list or carries
/// it away. Only what is seen is painted, so a list may be as long as it likes.
class PaletteEntriesView final : public QListView {
    Q_OBJECT

public:
    explicit PaletteEntriesView(QWidget* parent);

    [[nodiscard]] PaletteEntriesModel& entriesModel() { return _model; }
    /// Shows a text where rows would be; an empty one takes it away.
    void setNote(const QString& note);

    /// Ascending.
    [[nodiscard]] std::vector<std::size_t> selectedPlaces() const;
    /// Selects entries, and shows the first.
    void selectPlaces(const std::vector<std::size_t>& places);
    /// The place of the entry that the keyboard is at; the end of the list where there is none.
    [[nodiscard]] std::size_t currentPlace() const;
    /// Lets the user type a name for the entry at a place.
    void renameAt(std::size_t place);

signals:
    /// The user takes the colour at a place.
    void colorChosen(std::size_t place);
    /// The user drags the selected entries before a place.
    void selectionMoved(std::size_t before);
    /// Something else is dropped before a place. `offer` has a colour, a message that says why
    /// there is none, or both.
    void colorDropped(const vantorel::ColorOffer& offer, std::size_t before);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void takeDrag(QDragMoveEvent& event);
    /// The row before which a drop at a point goes.
    [[nodiscard]] int dropRowAt(QPoint point) const;
    [[nodiscard]] std::size_t placeBeforeRow(int row) const;
    void setDropRow(int row);
    void placeNote();

    PaletteEntriesModel& _model;
    QLabel* _note;
    QPersistentModelIndex _pressed;
    /// Where a line shows what a drop would do; -1 for none.
    int _dropRow = -1;
};

}  // namespace vantorel
