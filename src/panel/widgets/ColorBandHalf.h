#pragma once

#include "host/HostColor.h"
#include "panel/widgets/ColorClipboard.h"
#include "panel/widgets/FocusVisibility.h"

#include <QWidget>

namespace vantorel {

/// One of the two colours of the band: a place for clicks, keys and drags. The band paints it,
/// because the two share an outline.
class ColorBandHalf final : public QWidget {
    Q_OBJECT

public:
    ColorBandHalf(const QString& name, QWidget* parent);

    [[nodiscard]] const HostColor& color() const { return _color; }
    /// `details` follow the colour's code in the tool tip and in the accessible description.
    void setColor(const HostColor& color, const QString& details = {});

    [[nodiscard]] bool showsFocus() const { return _focus.isShown(); }
    /// Whether a colour is being dragged over this half.
    [[nodiscard]] bool dropIsNear() const { return _dropIsNear; }
    /// Does what a click does.
    void choose() { emit chosen(); }

signals:
    /// A click, Return or Space.
    void chosen();
    void copyRequested();
    /// A colour was dropped, or data that is not a colour.
    void dropped(const ColorOffer& offer);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void setDropIsNear(bool flag);

    HostColor _color = HostColor::whiteColor();
    FocusVisibility _focus;
    bool _dropIsNear = false;
    /// Whether the button went down here, and no drag has begun since.
    bool _isPressed = false;
    QPoint _pressedAt;
};

}  // namespace vantorel
