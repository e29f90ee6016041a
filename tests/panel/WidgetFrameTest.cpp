#include "panel/widgets/ColorWell.h"
#include "panel/widgets/RecentColors.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

/// Paints a white widget onto white at a scale, so that only its frame differs.
QImage pictureOf(QWidget& widget, QPoint place, double scale)
{
    QWidget parent;
    QPalette white = parent.palette();
    white.setColor(QPalette::Window, Qt::white);
    parent.setPalette(white);
    parent.resize(80, 40);
    widget.setParent(&parent);
    widget.move(place);
    widget.show();
    QImage picture(parent.size() * scale, QImage::Format_RGB32);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::white);
    parent.render(&picture);
    widget.setParent(nullptr);
    return picture;
}

bool isLine(const QImage& picture, QPoint middle, QPoint step)
{
    // The side is where it should be, give or take a pixel of rounding.
    for (int i = -2; i <= 2; ++i) {
        const QPoint point = middle + i * step;
        if (picture.rect().contains(point) && qGray(picture.pixel(point)) < 240) return true;
    }
    return false;
}

void expectFrame(const QImage& picture, const QRect& place, const std::string& what)
{
    const double scale = picture.devicePixelRatio();
    const auto at = [scale](QPointF point) { return (point * scale).toPoint(); };
    const QPointF middle = QRectF(place).center();
    EXPECT_TRUE(isLine(picture, at({place.x() + 0.5, middle.y()}), {1, 0})) << what << ", left";
    EXPECT_TRUE(isLine(picture, at({place.right() + 0.5, middle.y()}), {1, 0}))
        << what << ", right";
    EXPECT_TRUE(isLine(picture, at({middle.x(), place.y() + 0.5}), {0, 1})) << what << ", top";
    EXPECT_TRUE(isLine(picture, at({middle.x(), place.bottom() + 0.5}), {0, 1}))
        << what << ", bottom";
}

TEST(WidgetFrameTest, FramesAreWholeAtEveryScale)
{
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (int offset = 4; offset < 12; ++offset) {
            const std::string where = std::to_string(scale) + ", " + std::to_string(offset);
            ColorWell well(QStringLiteral("Well"), nullptr);
            well.resize(38, 20);
            well.setColor(HostColor::whiteColor());
            expectFrame(pictureOf(well, {offset, offset}, scale), {offset, offset, 38, 20},
                        "well at " + where);
            RecentColors recent(nullptr);
            recent.resize(38, 14);
            recent.setColors({HostColor::whiteColor()});
            expectFrame(pictureOf(recent, {offset, offset}, scale), {offset, offset, 14, 14},
                        "last colour at " + where);
        }
    }
}

}  // namespace
}  // namespace vantorel
