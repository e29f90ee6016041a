#pragma once

#include "host/HostColor.h"

#include <QWidget>

#include <vector>

namespace vantorel {

/// A row of the recent colours, the newest first, as many as fit. A click selects one, a drag takes
/// it to another program. Keyboard: Left, Right, Home and End move, Space and Return select.
class RecentColors final : public QWidget {
    Q_OBJECT

public:
    explicit RecentColors(QWidget* parent = nullptr);

    void setColors(std::vector<HostColor> colors);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    /// The user has selected one of the colours.
    void chosen(const HostColor& color);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] int shownCount() const;
    /// The index of the colour at a point, or -1.
    [[nodiscard]] int indexAt(QPoint point) const;
    [[nodiscard]] QRect rectOfColor(int index) const;
    void choose(int index);
    void setCurrent(int index);

    std::vector<HostColor> _colors;
    int _current = 0;
    int _pressed = -1;
    QPoint _pressedAt;
};

}  // namespace vantorel
