#include "hosts/gtk/CairoCanvas.h"

#include "hosts/gtk/GtkHostDrag.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

namespace vantorel {
namespace {

constexpr std::uint32_t white = 0xFFFFFFFF;
constexpr std::uint32_t black = 0xFF000000;

/// A picture of 20 by 20 points, white at first.
class Picture {
public:
    explicit Picture(double ratio)
        : _pixels(static_cast<int>(20 * ratio)),
          _surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, _pixels, _pixels)),
          _ratio(ratio)
    {
        cairo_surface_set_device_scale(_surface.get(), ratio, ratio);
        const CairoContext cairo(cairo_create(_surface.get()));
        cairo_set_source_rgb(cairo.get(), 1, 1, 1);
        cairo_paint(cairo.get());
    }

    template <class Paint>
    void paint(const Paint& paint)
    {
        const CairoContext cairo(cairo_create(_surface.get()));
        CairoCanvas canvas(cairo.get(), {0, 0, 20, 20}, _ratio);
        paint(canvas);
        cairo_surface_flush(_surface.get());
    }

    [[nodiscard]] int pixels() const { return _pixels; }
    [[nodiscard]] std::uint32_t pixel(int x, int y) const
    {
        const unsigned char* row = cairo_image_surface_get_data(_surface.get()) +
                                   y * cairo_image_surface_get_stride(_surface.get());
        return reinterpret_cast<const std::uint32_t*>(row)[x];
    }
    /// In points, y down.
    [[nodiscard]] std::uint32_t at(double x, double y) const
    {
        return pixel(static_cast<int>(x * _ratio), static_cast<int>(y * _ratio));
    }

private:
    int _pixels;
    CairoSurface _surface;
    double _ratio;
};

HostBezierPath line()
{
    HostBezierPath path;
    path.moveToPoint({2.3, 17.6});
    path.lineToPoint({8.3, 17.6});
    path.lineToPoint({8.3, 8.6});
    path.lineToPoint({14.3, 2.6});
    return path;
}

TEST(CairoCanvasTest, AdjacentRectanglesLeaveNoSeam)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        Picture picture(ratio);
        picture.paint([](HostCanvas& canvas) {
            for (int i = 0; i < 7; ++i) {
                HostBezierPath path;
                path.appendBezierPathWithRect({0, i * 20.0 / 7, 20, 20.0 / 7});
                canvas.fill(path, HostColor::blackColor());
            }
        });
        for (int y = 0; y < picture.pixels(); ++y)
            ASSERT_EQ(picture.pixel(5, y), black) << y << " at " << ratio;
    }
}

TEST(CairoCanvasTest, AdjacentTrianglesLeaveNoSeamAndNoGrey)
{
    Picture picture(1);
    picture.paint([](HostCanvas& canvas) {
        for (int i = 0; i < 12; ++i) {
            HostBezierPath path;
            path.moveToPoint({10, 10});
            for (const int corner : {i, i + 1}) {
                path.lineToPoint(
                    {10 + 40 * std::cos(corner * M_PI / 6), 10 + 40 * std::sin(corner * M_PI / 6)});
            }
            path.closePath();
            canvas.fill(path, HostColor::blackColor());
        }
    });
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            ASSERT_EQ(picture.pixel(x, y), black) << x << ' ' << y;
}

TEST(CairoCanvasTest, HorizontalAndVerticalLinesAreCrispAndSlantedOnesSmooth)
{
    for (const double ratio : {1.0, 2.0}) {
        Picture picture(ratio);
        picture.paint([](HostCanvas& canvas) { canvas.stroke(line(), HostColor::blackColor()); });
        EXPECT_EQ(picture.at(5, 2.4), black) << ratio;
        EXPECT_EQ(picture.at(5, 1.4), white) << ratio;
        EXPECT_EQ(picture.at(5, 3.9), white) << ratio;
        EXPECT_EQ(picture.at(8.3, 8), black) << ratio;
        EXPECT_EQ(picture.at(7, 8), white) << ratio;
        EXPECT_EQ(picture.at(9.9, 8), white) << ratio;
        EXPECT_LT(picture.at(11.3, 14.4) & 0xFF, 128U) << ratio;
        int grey = 0;
        for (int y = 0; y < picture.pixels(); ++y) {
            for (int x = 0; x < picture.pixels(); ++x) {
                const std::uint32_t pixel = picture.pixel(x, y);
                grey += pixel != black && pixel != white ? 1 : 0;
            }
        }
        EXPECT_GT(grey, 5 * ratio);
        EXPECT_LT(grey, 30 * ratio);
    }
}

TEST(CairoCanvasTest, ATranslucentLinePaintsNoPixelTwice)
{
    Picture picture(1);
    picture.paint([](HostCanvas& canvas) {
        canvas.stroke(line(), HostColor::colorWithCalibratedRed(0, 0, 0, 0.5));
    });
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            ASSERT_GE(picture.pixel(x, y) & 0xFF, 126U) << x << ' ' << y;
}

TEST(CairoCanvasTest, OddColoursAndPathsAreHarmless)
{
    Picture picture(1);
    picture.paint([](HostCanvas& canvas) {
        HostBezierPath path;
        canvas.fill(path, HostColor::blackColor());
        path.lineToPoint({5, 5});
        path.closePath();
        canvas.stroke(path, HostColor::colorWithCalibratedRed(-1, 1e9, std::nan(""), 0));
        path.appendBezierPathWithRect({0, 0, 10, 10});
        canvas.fill(path, HostColor::patternColor());
        canvas.drawText({u"", 9, HostColor::blackColor()}, {0, 0});
    });
    EXPECT_EQ(picture.pixel(5, 15), white);
}

TEST(CairoCanvasTest, TextIsAboveItsPlaceAndAsLargeAsMeasured)
{
    const HostText text{u"Mg", 12, HostColor::blackColor()};
    const HostSize size = sizeOfDrawnText(text);
    EXPECT_GT(size.width, 8);
    EXPECT_GT(size.height, 10);
    const HostText lines{u"Mg\nMg\n", 12, HostColor::blackColor()};
    EXPECT_NEAR(sizeOfDrawnText(lines).height, 2 * size.height, 1.5) << "the last break adds none";
    Picture picture(1);
    picture.paint([&](HostCanvas& canvas) { canvas.drawText(text, {0, 2}); });
    bool isPainted = false;
    for (int x = 0; x < 20; ++x) {
        EXPECT_EQ(picture.pixel(x, 19), white);
        for (int y = 0; y < 18; ++y)
            isPainted = isPainted || picture.pixel(x, y) != white;
    }
    EXPECT_TRUE(isPainted);
}

TEST(CairoCanvasTest, AnImageHasItsOpacity)
{
    HostImage image;
    image.size = {4, 4};
    image.fraction = 0.5;
    image.paint = [](HostCanvas& canvas) {
        HostBezierPath path;
        path.appendBezierPathWithRect({0, 0, 4, 4});
        canvas.fill(path, HostColor::blackColor());
    };
    const CairoSurface surface = surfaceOfImage(image, 2);
    EXPECT_EQ(cairo_image_surface_get_width(surface.get()), 8);
    const auto* first =
        reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(surface.get()));
    EXPECT_NEAR(static_cast<double>(*first >> 24), 128, 1);
}

TEST(GtkHostDragTest, AColourGoesInFourWordsOfSixteenBits)
{
    using Words = std::array<guint16, 4>;
    const auto color = HostColor::colorWithCalibratedRed(1, 0.5, std::nan(""), 7);
    EXPECT_EQ(colorWords(color), (Words{65535, 32768, 0, 65535}));
    EXPECT_EQ(colorWords(HostColor::patternColor()), std::nullopt);
}

}  // namespace
}  // namespace vantorel
