#include "screenpick/MagnifierLens.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace vantorel {
namespace {

constexpr QSize screenSize{600, 500};

/// Gives every pixel a different colour, none with a red above one half, so that red can mark
/// the background.
QImage pattern()
{
    QImage image(screenSize, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb((x / 256) * 16 + y / 256, x % 256, y % 256));
    }
    return image;
}

DesktopPicture desktop(QPoint origin = {})
{
    return DesktopPicture({{nullptr, origin, pattern()}});
}

struct View {
    QImage image;
    QRect bounds;
};

/// The lens on a red background.
View lensAt(QPoint pixel, double ratio = 1, int zoom = 0, const QPalette& palette = QPalette())
{
    const DesktopPicture picture = desktop();
    MagnifierLens lens;
    lens.zoom(zoom);
    View view{QImage(screenSize, QImage::Format_RGB32), {}};
    view.image.fill(Qt::red);
    QPainter painter(&view.image);
    lens.paint(painter, picture, picture.screens().front(), pixel, ratio, palette);
    view.bounds = lens.bounds(picture.screens().front(), pixel, ratio);
    return view;
}

/// The number of pixels to the right of `from` with its colour.
int runToTheRight(const QImage& image, QPoint from)
{
    int length = 0;
    while (image.pixel(from + QPoint(length, 0)) == image.pixel(from))
        ++length;
    return length;
}

TEST(MagnifierLens, showsThePixelAtItsCentreAsOneUniformCell)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const View view = lensAt({300, 200}, ratio);
        const QRgb wanted = pattern().pixel(300, 200);
        const int cell = static_cast<int>(10 * ratio);
        for (int y = 0; y < cell; ++y) {
            for (int x = 0; x < cell; ++x) {
                EXPECT_EQ(view.image.pixel(300 - cell / 2 + x, 200 - cell / 2 + y), wanted);
            }
        }
    }
}

TEST(MagnifierLens, framesTheCentreInBlackAndWhite)
{
    const View view = lensAt({300, 200});
    EXPECT_EQ(view.image.pixelColor(294, 200), QColor(Qt::white));
    EXPECT_EQ(view.image.pixelColor(293, 200), QColor(Qt::black));
    EXPECT_EQ(view.image.pixelColor(305, 200), QColor(Qt::white));
    EXPECT_EQ(view.image.pixelColor(306, 200), QColor(Qt::black));
}

TEST(MagnifierLens, showsTheNeighboursUnblurred)
{
    const View view = lensAt({300, 200});
    const QImage picture = pattern();
    // The middle of the cells three to each side.
    EXPECT_EQ(view.image.pixel(330, 200), picture.pixel(303, 200));
    EXPECT_EQ(view.image.pixel(270, 200), picture.pixel(297, 200));
    EXPECT_EQ(view.image.pixel(300, 230), picture.pixel(300, 203));
    EXPECT_EQ(view.image.pixel(321, 171), picture.pixel(302, 197));
    // A cell of 10 has one line of grid.
    EXPECT_EQ(runToTheRight(view.image, {326, 200}), 9);
}

TEST(MagnifierLens, zoomsWithinLimits)
{
    EXPECT_EQ(runToTheRight(lensAt({300, 200}, 1, 1).image, {293, 200}), 14);
    EXPECT_EQ(runToTheRight(lensAt({300, 200}, 1, 1000).image, {286, 200}), 28);
    EXPECT_EQ(runToTheRight(lensAt({300, 200}, 1, -1000).image, {298, 200}), 5);
}

TEST(MagnifierLens, paintsOnlyWithinItsBounds)
{
    for (const QPoint pixel : {QPoint(300, 200), QPoint(0, 0), QPoint(599, 499), QPoint(20, 480)}) {
        for (const double ratio : {1.0, 2.0}) {
            View view = lensAt(pixel, ratio);
            QPainter(&view.image).fillRect(view.bounds, Qt::red);
            QImage red = view.image;
            red.fill(Qt::red);
            EXPECT_TRUE(view.image == red) << pixel.x() << ", " << pixel.y() << " at " << ratio;
        }
    }
}

TEST(MagnifierLens, isEntirelyOnTheScreenAtEveryCorner)
{
    // With its label: 84 + 4 to each side, 8 + 28 below, and a margin of 4.
    const struct {
        QPoint pixel;
        QPoint middle;
    } rows[] = {
        {{0, 0}, {92, 92}},
        {{599, 0}, {508, 92}},
        {{0, 499}, {92, 372}},
        {{599, 499}, {508, 372}},
    };
    for (const auto& row : rows) {
        const View view = lensAt(row.pixel);
        EXPECT_EQ(view.image.pixel(row.middle), pattern().pixel(row.pixel))
            << row.pixel.x() << ", " << row.pixel.y();
        EXPECT_EQ(view.image.pixelColor(row.middle - QPoint(7, 0)), QColor(Qt::black))
            << "the frame is there";
        EXPECT_NE(view.image.pixelColor(row.pixel), QColor(Qt::black));
    }
}

TEST(MagnifierLens, showsTheNextScreenBesideTheEdge)
{
    QImage green(100, 500, QImage::Format_RGB32);
    green.fill(Qt::green);
    const DesktopPicture picture({{nullptr, {0, 0}, pattern()}, {nullptr, {600, 0}, green}});
    QImage image(screenSize, QImage::Format_RGB32);
    QPainter painter(&image);
    MagnifierLens().paint(painter, picture, picture.screens().front(), {598, 200}, 1, QPalette());
    // The middle is at (508, 200); two cells on, the other screen begins.
    EXPECT_EQ(image.pixel(518, 200), pattern().pixel(599, 200));
    EXPECT_EQ(image.pixelColor(529, 200), QColor(Qt::green));
}

TEST(MagnifierLens, takesItsBackgroundFromTheTheme)
{
    for (const char* ground : {"#efeff1", "#2b2c30"}) {
        const QColor color(ground);
        const View view = lensAt({300, 200}, 1, 0, QPalette(color, color));
        // The ring, and the label's left end.
        EXPECT_EQ(view.image.pixelColor(300, 200 - 86), color);
        EXPECT_EQ(view.image.pixelColor(300, 200 + 88 + 8 + 3), color);
    }
}

TEST(hexCodeOf, hasSixLowerCaseDigits)
{
    EXPECT_EQ(hexCodeOf(QColor(10, 171, 255)), QStringLiteral("#0aabff"));
}

TEST(DesktopPicture, findsPixelsOnEachScreenAndNoneBetween)
{
    QImage small(2, 1, QImage::Format_RGB32);
    small.fill(Qt::blue);
    const DesktopPicture picture({{nullptr, {0, 0}, pattern()}, {nullptr, {-2, 7}, small}});
    EXPECT_EQ(picture.colorAt({599, 499}), pattern().pixelColor(599, 499));
    EXPECT_EQ(picture.colorAt({-1, 7}), QColor(Qt::blue));
    EXPECT_EQ(picture.colorAt({-1, 8}), std::nullopt);
    EXPECT_EQ(picture.colorAt({600, 0}), std::nullopt);
}

TEST(DesktopPicture, showsNoTransparency)
{
    QImage clear(1, 1, QImage::Format_ARGB32);
    clear.fill(QColor(10, 20, 30, 0));
    EXPECT_EQ(DesktopPicture({{nullptr, {}, clear}}).colorAt({0, 0}), QColor(10, 20, 30));
}

}  // namespace
}  // namespace vantorel
