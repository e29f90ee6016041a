#pragma once

#include <QColor>
#include <QWidget>

namespace vantorel {

/// Shows the panel's colour: its left half opaque, its right half over a chequered ground.
class ColorWell final : public QWidget {
public:
    explicit ColorWell(QWidget* parent = nullptr);
    void setColor(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor _color = Qt::white;
};

}  // namespace vantorel
