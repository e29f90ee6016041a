#pragma once

#include "colormath/SeenPixels.h"

#include <QGraphicsEffect>
#include <QWidget>

namespace vantorel {

/// Shows a window as it looks to people who see colours in this way.
class VisionEffect final : public QGraphicsEffect {
    Q_OBJECT

public:
    /// The window must outlive the effect.
    VisionEffect(ColorVision vision, const QWidget& window);

protected:
    void draw(QPainter* painter) override;

private:
    SeenPixels _seen;
    const QWidget& _window;
};

}  // namespace vantorel
