#pragma once

#include "host/HostColor.h"
#include "panel/widgets/FocusVisibility.h"
#include "panel/widgets/LastColorsDrags.h"
#include "panel/widgets/LastColorsOrder.h"
#include "panel/widgets/LastColorsPlaces.h"

#include <QToolButton>
#include <QWidget>

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

    // What its drags and assistive technology use.

    [[nodiscard]] const LastColorsOrder& order() const { return _order; }
    [[nodiscard]] const LastColorsPlaces& places() const { return _places; }
    /// As many of the colours as fit are shown.
    [[nodiscard]] int shownCount() const { return static_cast<int>(_places.swatches.size()); }
    [[nodiscard]] int current() const { return _current; }
    [[nodiscard]] QRect rectOf(int index) const;
    [[nodiscard]] QToolButton& menuButton() const { return *_button; }
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
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void placeParts();
    void showToolTip(QPoint at, QPoint screenAt);
    void showMenu(QPoint screenAt);
    void togglePin(int index);
    /// Moves the current colour among the pinned ones.
    void movePin(int step);

    LastColorsOrder _order;
    QString _emptyHint;
    QToolButton* _button;
    LastColorsDrags* _drags;
    LastColorsPlaces _places;
    int _current = 0;
    FocusVisibility _focus;
};

}  // namespace vantorel
