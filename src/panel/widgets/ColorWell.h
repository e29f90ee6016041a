#pragma once

#include "host/HostColor.h"
#include "panel/widgets/ColorClipboard.h"

#include <QColor>
#include <QWidget>

namespace vantorel {

/// Shows a colour: opaque in the left half, over a checkerboard in the right half. Colours can be
/// dropped on it and dragged out of it.
class ColorWell final : public QWidget {
    Q_OBJECT

public:
    explicit ColorWell(const QString& name, QWidget* parent = nullptr);

    void setColor(const HostColor& color);

signals:
    /// A colour was dropped, or data that is not a colour.
    void dropped(const ColorOffer& offer);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void setDropIsNear(bool flag);

    HostColor _color = HostColor::whiteColor();
    QPoint _pressedAt;
    bool _dropIsNear = false;
};

}  // namespace vantorel
