#pragma once

#include "screenpick/DesktopPicture.h"

#include <QWidget>

class QSinglePointEvent;

namespace vantorel {

class Magnifier;

/// Covers one screen with its picture, paints the lens over it, and passes events to the magnifier.
class MagnifierOverlay final : public QWidget {
public:
    /// The magnifier must outlive the overlay. `parent` is the first overlay, null for that one.
    MagnifierOverlay(Magnifier& magnifier, const DesktopPicture::Screen& screen, QWidget* parent);

    /// `pixels` are of this screen.
    void updatePixels(const QRect& pixels);
    [[nodiscard]] const DesktopPicture::Screen& picture() const { return _picture; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] QPoint desktopPixelOf(const QSinglePointEvent& event) const;

    Magnifier& _magnifier;
    DesktopPicture::Screen _picture;
    int _wheelAngle = 0;
};

}  // namespace vantorel
