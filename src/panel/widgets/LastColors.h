#pragma once

#include "host/HostColor.h"
#include "panel/widgets/FocusVisibility.h"
#include "panel/widgets/LastColorsPlaces.h"
#include "panel/widgets/PixelGrid.h"
#include "panel/widgets/ThemeColors.h"

#include <QMenu>
#include <QToolButton>
#include <QWidget>

#include <optional>
#include <vector>

namespace vantorel {

/// The last colours: the pinned ones, a rule, then the others with the newest first, as many as
/// fit. A row, or a grid where there is the height for one. A click chooses a colour, a drag takes
/// it to another program or moves it among the pinned ones.
///
/// Keyboard: arrows, Home and End move, Return and Space choose, P pins and unpins, Ctrl+Left and
/// Ctrl+Right move a pinned colour. The menu key and a right click open the menu of a colour.
class LastColors final : public QWidget {
    Q_OBJECT

public:
    explicit LastColors(QWidget* parent = nullptr);

    /// Shows each colour once.
    void setColors(std::vector<HostColor> pinned, std::vector<HostColor> recent);
    /// Sets the sentence that is shown while there are no colours.
    void setEmptyHint(const QString& sentence);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    // What assistive technology is shown of the swatches.

    [[nodiscard]] int shownCount() const { return static_cast<int>(_places.swatches.size()); }
    [[nodiscard]] int current() const { return _current; }
    [[nodiscard]] const HostColor& colorAt(int index) const;
    [[nodiscard]] bool isPinned(int index) const;
    [[nodiscard]] QRect rectOf(int index) const;
    [[nodiscard]] int indexAt(QPoint point) const { return _places.swatchAt(point); }
    [[nodiscard]] QToolButton& menuButton() const { return *_button; }
    [[nodiscard]] const QString& emptyHint() const { return _emptyHint; }
    void choose(int index);
    void makeCurrent(int index);
    void openMenu(int index);

signals:
    void chosen(const HostColor& color);
    void pinRequested(const HostColor& color, bool pinned);
    void pinnedReordered(const std::vector<HostColor>& pinned);
    void keepAsListRequested();
    /// The user wants to be rid of the colours that are not pinned.
    void clearRequested();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    [[nodiscard]] bool isEmpty() const { return _pinned.empty() && _others.empty(); }
    void placeParts();
    void paintHint(QPainter& painter) const;
    /// Paints a line where a dropped colour would be among the pinned ones.
    void paintDropMark(QPainter& painter, std::size_t place, const PixelGrid& grid,
                       const ThemeColors& theme) const;
    void showToolTip(QPoint at, QPoint screenAt);
    void showMenu(QPoint screenAt);
    void togglePin(int index);
    /// Moves the current colour among the pinned ones.
    void movePin(int step);
    /// Returns the index that a dragged colour gets among the pinned ones when dropped at a point.
    [[nodiscard]] std::optional<std::size_t> pinPlaceAt(QPointF point) const;
    void setDropPlace(std::optional<std::size_t> place);

    std::vector<HostColor> _pinned;
    std::vector<HostColor> _others;
    QString _emptyHint;
    QToolButton* _button;
    LastColorsPlaces _places;
    int _current = 0;
    FocusVisibility _focus;
    int _pressed = -1;
    QPoint _pressedAt;
    /// The colour of the drag that began here.
    std::optional<HostColor> _dragged;
    std::optional<std::size_t> _dropPlace;
};

}  // namespace vantorel
