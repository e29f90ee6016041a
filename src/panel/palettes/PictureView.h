#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <optional>

namespace vantorel {

/// Shows a picture as large as there is room, and picks its pixels with the mouse or the keyboard.
class PictureView final : public QWidget {
    Q_OBJECT

public:
    /// The picture must not be null.
    PictureView(const QImage& picture, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

signals:
    /// The pointer, or the mark of the keyboard, is over a colour. Invalid outside the picture.
    void pointedAt(const QColor& color);
    void picked(const QColor& color);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// The place of the picture in the view.
    [[nodiscard]] QRect place() const;
    /// The colour of the pixel at a point of the view; invalid outside the picture and where it is
    /// transparent.
    [[nodiscard]] QColor colorAt(QPoint point) const;
    void setMark(QPoint mark);

    QImage _picture;
    /// The same, small enough to be scaled whenever the window changes its size.
    QImage _reduced;
    /// The picture at its size on the screen.
    QPixmap _scaled;
    /// The point of the view that the keyboard has reached.
    std::optional<QPoint> _mark;
};

}  // namespace vantorel
