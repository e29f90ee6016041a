#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace vantorel {
namespace {

TEST(QtCanvasTest, AdjacentRectanglesLeaveNoSeam)
{
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        QImage image(QSize(60, 60) * ratio, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::green);
        {
            QPainter painter(&image);
            QtCanvas canvas(painter, {0, 0, 60, 60});
            for (int i = 0; i < 17; ++i) {
                HostBezierPath path;
                path.appendBezierPathWithRect({0, i * 60.0 / 17, 60, 60.0 / 17});
                canvas.fill(path, HostColor::blackColor());
            }
        }
        for (int y = 0; y < image.height(); ++y) {
            ASSERT_EQ(image.pixelColor(5, y), QColor(Qt::black)) << y << " at " << ratio;
        }
    }
}

TEST(QtCanvasTest, OddColoursAndPathsAreHarmless)
{
    QImage image(10, 10, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtCanvas canvas(painter, {0, 0, 10, 10});
    HostBezierPath path;
    canvas.fill(path, HostColor::blackColor());
    path.lineToPoint({5, 5});
    path.closePath();
    canvas.stroke(path, HostColor::colorWithCalibratedRed(-1, 1e9, std::nan(""), 7));
    path.appendBezierPathWithRect({0, 0, 10, 10});
    canvas.fill(path, HostColor::patternColor());
    canvas.drawText({u"a\nb", 9, HostColor::blackColor()}, {0, 0});
    EXPECT_EQ(qColorFrom(HostColor::colorWithCalibratedRed(-1, 2, std::nan(""), 1)),
              QColor(0, 255, 0));
}

/// A line with horizontal, vertical and slanted pieces, on white.
QImage drawnLine(const HostColor& color, qreal ratio)
{
    QImage image(QSize(20, 20) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtCanvas canvas(painter, {0, 0, 20, 20});
    HostBezierPath path;
    path.moveToPoint({2.3, 17.6});
    path.lineToPoint({8.3, 17.6});
    path.lineToPoint({8.3, 8.6});
    path.lineToPoint({14.3, 2.6});
    canvas.stroke(path, color);
    return image;
}

int countOf(const QImage& image, const QColor& color)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

TEST(QtCanvasTest, HorizontalAndVerticalLinesAreCrispAndSlantedOnesSmooth)
{
    for (const qreal ratio : {1.0, 2.0}) {
        const QImage image = drawnLine(HostColor::blackColor(), ratio);
        const auto at = [&](double x, double y) {
            return image.pixelColor(static_cast<int>(x * ratio), static_cast<int>(y * ratio));
        };
        const QColor black(Qt::black);
        const QColor white(Qt::white);
        EXPECT_EQ(at(5, 2.4), black) << ratio;
        EXPECT_EQ(at(5, 1.4), white) << ratio;
        EXPECT_EQ(at(5, 3.9), white) << ratio;
        EXPECT_EQ(at(8.3, 2.4), black) << ratio;  // the corner
        EXPECT_EQ(at(8.3, 8), black) << ratio;
        EXPECT_EQ(at(7, 8), white) << ratio;
        EXPECT_EQ(at(9.9, 8), white) << ratio;
        EXPECT_EQ(at(8.3, 11.4), black) << ratio;  // where the slanted piece begins
        EXPECT_LT(at(11.3, 14.4).red(), 128) << ratio;
        // Grey pixels are those beside the slanted piece.
        const int grey =
            image.width() * image.height() - countOf(image, black) - countOf(image, white);
        EXPECT_GT(grey, 5 * ratio);
        EXPECT_LT(grey, 30 * ratio);
    }
}

TEST(QtCanvasTest, ATranslucentLinePaintsNoPixelTwice)
{
    const QImage image = drawnLine(HostColor::colorWithCalibratedRed(0, 0, 0, 0.5), 1);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ASSERT_GE(image.pixelColor(x, y).red(), 126) << x << ' ' << y;
    }
}

}  // namespace
}  // namespace vantorel
