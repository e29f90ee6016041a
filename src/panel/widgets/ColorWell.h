#pragma once

#include "host/HostColor.h"

#include <QColor>
#include <QWidget>

#include <functional>

namespace vantorel {

struct ColorOffer;

/// A colour, its left half opaque and its right half over a checkered ground. Colours are dropped
/// on it and dragged out of it.
class ColorWell final : public QWidget {
public:
    explicit ColorWell(const QString& name, QWidget* parent = nullptr);

    void setColor(const HostColor& color);
    /// Gets what is dropped, be it a colour or a reason why there is none.
    void setDropReaction(std::function<void(const ColorOffer&)> reaction)
    {
        _dropReaction = std::move(reaction);
    }

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
    std::function<void(const ColorOffer&)> _dropReaction;
    QPoint _pressedAt;
    bool _dropIsNear = false;
};

}  // namespace vantorel
