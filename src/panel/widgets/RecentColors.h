#pragma once

#include "host/HostColor.h"

#include <QCoreApplication>
#include <QWidget>

#include <functional>
#include <vector>

namespace vantorel {

/// A row of the last colours, the newest first, as many as there is room for. A click takes one, a
/// drag carries it away. Keyboard: Left and Right, Home and End move, Space and Return take it.
class RecentColors final : public QWidget {
    Q_DECLARE_TR_FUNCTIONS(RecentColors)

public:
    using Choice = std::function<void(const HostColor&)>;

    explicit RecentColors(QWidget* parent = nullptr);

    void setColors(std::vector<HostColor> colors);
    void setChoice(Choice choice) { _choice = std::move(choice); }
    /// The place of the colour under a point, or -1.
    [[nodiscard]] int indexAt(QPoint point) const;
    [[nodiscard]] QRect rectOfColor(int index) const;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] int shownCount() const;
    void choose(int index);
    void setCurrent(int index);

    std::vector<HostColor> _colors;
    Choice _choice;
    int _current = 0;
    int _pressed = -1;
    QPoint _pressedAt;
};

}  // namespace vantorel
