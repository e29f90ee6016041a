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

Magnified magnifiedAt(const DesktopPicture& picture, QPoint pixel)
{
    Magnified magnified;
    magnified.pixel = pixel;
    magnified.averaged = {pixel, QSize(1, 1)};
    magnified.color = picture.colorAt(pixel).value_or(Qt::black);
    return magnified;
}

View viewOf(const MagnifierLens& lens, const Magnified& magnified, double ratio,
            const QPalette& palette = QPalette())
{
    const DesktopPicture picture = desktop();
    const DesktopPicture::Screen& screen = picture.screens().front();
    View view{QImage(screenSize, QImage::Format_RGB32), {}};
    view.image.fill(Qt::red);
    QPainter painter(&view.image);
    lens.paint(painter, picture, screen, magnified, ratio, palette);
    view.bounds = lens.bounds(screen, magnified, ratio);
    return view;
}

/// The lens on a red background.
View lensAt(QPoint pixel, double ratio = 1, int zoom = 0, const QPalette& palette = QPalette())
{
    MagnifierLens lens;
    lens.zoom(zoom);
    return viewOf(lens, magnifiedAt(desktop(), pixel), ratio, palette);
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

TEST(MagnifierLens, framesWhatIsAveraged)
{
    Magnified magnified = magnifiedAt(desktop(), {300, 200});
    magnified.averaged = {299, 199, 3, 3};
    const QImage image = viewOf(MagnifierLens(), magnified, 1).image;
    // A cell of 10 to each side of the middle one.
    EXPECT_EQ(image.pixelColor(284, 200), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(283, 200), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(315, 200), QColor(Qt::white));
    EXPECT_NE(image.pixelColor(294, 200), QColor(Qt::white));
}

TEST(MagnifierLens, theLabelHasRoomForTheSizeOfTheAverage)
{
    const DesktopPicture picture = desktop();
    const DesktopPicture::Screen& screen = picture.screens().front();
    Magnified single = magnifiedAt(picture, {300, 200});
    Magnified average = single;
    average.averaged = {200, 150, 300, 100};
    const QImage without = viewOf(MagnifierLens(), single, 1).image;
    const QImage with = viewOf(MagnifierLens(), average, 1).image;
    // In the middle of the label's height, at its left end, which has moved.
    const int y = 200 + 88 + 8 + 14;
    const auto firstOfLabel = [](const QImage& image) {
        int x = 0;
        while (image.pixelColor(x, y) == QColor(Qt::red))
            ++x;
        return x;
    };
    EXPECT_LT(firstOfLabel(with), firstOfLabel(without) - 20);
    EXPECT_TRUE(MagnifierLens().bounds(screen, average, 1).contains(firstOfLabel(with), y));
}

TEST(MagnifierLens, theNameHasALineOfItsOwnAndKeepsTheSizeOfTheLabel)
{
    for (const QPoint pixel : {QPoint(300, 200), QPoint(0, 499), QPoint(599, 0)}) {
        Magnified magnified = magnifiedAt(desktop(), pixel);
        const QRect withoutName = viewOf(MagnifierLens(), magnified, 1).bounds;
        magnified.hasName = true;
        const View nameless = viewOf(MagnifierLens(), magnified, 1);
        magnified.name = QStringLiteral("\u2248 lightgoldenrodyellow");
        View named = viewOf(MagnifierLens(), magnified, 1);
        EXPECT_FALSE(named.image == nameless.image) << "the name is painted";
        EXPECT_EQ(named.bounds, nameless.bounds);
        EXPECT_EQ(named.bounds.height(), withoutName.height() + 16);
        QPainter(&named.image).fillRect(named.bounds, Qt::red);
        QImage red = named.image;
        red.fill(Qt::red);
        EXPECT_TRUE(named.image == red) << pixel.x() << ", " << pixel.y();
    }
}

TEST(MagnifierLens, notesAreOnTheScreenAndWithinTheBounds)
{
    for (const QPoint pixel : {QPoint(300, 200), QPoint(0, 0), QPoint(599, 499), QPoint(0, 499)}) {
        for (const bool hasPicked : {false, true}) {
            Magnified magnified = magnifiedAt(desktop(), pixel);
            const View without = viewOf(MagnifierLens(), magnified, 1);
            magnified.showsHints = true;
            if (hasPicked) magnified.picked.assign(20, QColor(Qt::green));
            View with = viewOf(MagnifierLens(), magnified, 1);
            EXPECT_TRUE(
                QRect(QPoint(), screenSize).contains(with.bounds.adjusted(14, 14, -14, -14)));
            EXPECT_FALSE(with.image == without.image);
            QPainter(&with.image).fillRect(with.bounds, Qt::red);
            QImage red = with.image;
            red.fill(Qt::red);
            EXPECT_TRUE(with.image == red) << pixel.x() << ", " << pixel.y();
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
    MagnifierLens().paint(painter, picture, picture.screens().front(),
                          magnifiedAt(picture, {598, 200}), 1, QPalette());
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

TEST(DesktopPicture, averagesLightOnAllScreens)
{
    QImage black(2, 1, QImage::Format_RGB32);
    black.fill(Qt::black);
    QImage white(2, 1, QImage::Format_ARGB32_Premultiplied);
    white.fill(Qt::white);
    const DesktopPicture picture({{nullptr, {0, 0}, black}, {nullptr, {2, 0}, white}});
    EXPECT_EQ(picture.averageOf({0, 0, 4, 1}), QColor(188, 188, 188)) << "half the light";
    EXPECT_EQ(picture.averageOf({2, -5, 100, 100}), QColor(Qt::white));
    EXPECT_EQ(picture.averageOf({10, 10, 3, 3}), std::nullopt);
    EXPECT_EQ(picture.averageOf({3, 0, 1, 1}), QColor(Qt::white));
}

TEST(DesktopPicture, showsNoTransparency)
{
    QImage clear(1, 1, QImage::Format_ARGB32);
    clear.fill(QColor(10, 20, 30, 0));
    EXPECT_EQ(DesktopPicture({{nullptr, {}, clear}}).colorAt({0, 0}), QColor(10, 20, 30));
}

}  // namespace
}  // namespace vantorel
