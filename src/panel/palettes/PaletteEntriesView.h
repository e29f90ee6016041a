#pragma once

#include "panel/palettes/PaletteEntriesModel.h"
#include "panel/palettes/PaletteGrid.h"
#include "panel/widgets/ColorClipboard.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QListView>

namespace vantorel {

/// The entries of a colour list, as rows with their names or as a grid of swatches. A click or
/// Return selects a colour for the panel, a double click or F2 renames it, a drag moves it in the
/// list or into other programs. Only visible entries are painted, so lists may have any length.
class PaletteEntriesView final : public QListView {
    Q_OBJECT

public:
    explicit PaletteEntriesView(QWidget* parent);

    enum class Arrangement { list, grid };
    /// Selection, focus and place in the list are kept.
    void setArrangement(Arrangement arrangement);
    [[nodiscard]] Arrangement arrangement() const { return _arrangement; }
    /// The places of the swatches when they are arranged as a grid.
    [[nodiscard]] PaletteGrid grid() const;

    [[nodiscard]] PaletteEntriesModel& entriesModel() { return _model; }
    /// Shows a text in place of rows. Pass an empty text to remove it.
    void setNote(const QString& note);

    /// Ascending.
    [[nodiscard]] std::vector<std::size_t> selectedPlaces() const;
    /// Selects entries and scrolls to the first.
    void selectPlaces(const std::vector<std::size_t>& places);
    /// The place of the entry with the keyboard focus, or the end of the list if there is none.
    [[nodiscard]] std::size_t currentPlace() const;
    /// Lets the user type a name for the entry at a place.
    void renameAt(std::size_t place);

signals:
    /// The user has chosen the colour at a place.
    void colorChosen(std::size_t place);
    /// The user has dragged the selected entries to just before a place.
    void selectionMoved(std::size_t before);
    /// Data of another program or control was dropped before a place. `offer` has a colour, a
    /// message that says why there is none, or both.
    void colorDropped(const vantorel::ColorOffer& offer, std::size_t before);
    /// In a grid, the name and code of the entry under the pointer, or of that with the keyboard
    /// focus; otherwise empty.
    void namedEntryChanged(const QString& nameAndCode);

protected:
    /// Shows the swatches of a grid above the edge of the scroll bar, which Qt raises whenever it
    /// places its parts.
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void updateGeometries() override;
    bool viewportEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    /// Whether a key belongs to a name that is being typed to search for it.
    [[nodiscard]] bool continuesSearch(const QKeyEvent& event) const;
    void takeDrag(QDragMoveEvent& event);
    /// The row before which a drop at a point inserts.
    [[nodiscard]] int dropRowAt(QPoint point) const;
    [[nodiscard]] std::size_t placeBeforeRow(int row) const;
    void setDropRow(int row);
    void placeNote();
    void arrange();
    void showNamed();
    /// The line that marks where a drop inserts.
    [[nodiscard]] QRect dropLine() const;

    PaletteEntriesModel& _model;
    QAbstractItemDelegate* _rows;
    QAbstractItemDelegate* _cells;
    Arrangement _arrangement = Arrangement::list;
    QLabel* _note;
    QPersistentModelIndex _pressed;
    QPersistentModelIndex _hovered;
    /// Since a letter was typed.
    QElapsedTimer _lastLetter;
    /// The row before which a line marks the target of a drop; -1 for none.
    int _dropRow = -1;
};

}  // namespace vantorel
