#include "Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace vantorel {
namespace {

HostColor gray(double level, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(level, level, level, alpha);
}

HostBezierPath rect(HostRect place)
{
    HostBezierPath path;
    path.appendBezierPathWithRect(place);
    return path;
}

/// Cells side by side, as in the Palette, with outlines of two widths.
void paintCells(HostCanvas& canvas)
{
    for (int row = 0; row < 7; ++row) {
        for (int column = 0; column < 9; ++column) {
            canvas.fill(rect({3 + column * 10.3, 4 + row * 8.7, 10.3, 8.7}),
                        HostColor::colorWithCalibratedRed(row / 6.0, column / 8.0, 0.5, 1));
        }
    }
    HostBezierPath outline = rect({23.6, 21.4, 10.3, 8.7});
    outline.setLineWidth(3);
    canvas.stroke(outline, gray(0));
    outline.setLineWidth(1);
    canvas.stroke(outline, gray(1));
}

/// Triangles around a point, as in the Wheel.
void paintWheel(HostCanvas& canvas)
{
    constexpr int parts = 24;
    const auto corner = [](int part) {
        const double angle = part * 2 * M_PI / parts;
        return HostPoint{50 + 38 * std::cos(angle), 35 + 31 * std::sin(angle)};
    };
    for (int part = 0; part < parts; ++part) {
        HostBezierPath path;
        path.moveToPoint({50, 35});
        path.lineToPoint(corner(part));
        path.lineToPoint(corner(part + 1));
        path.closePath();
        canvas.fill(path, HostColor::colorWithCalibratedRed(part / 23.0, 1 - part / 23.0, 0.3, 1));
    }
}

/// Open lines and outlines, opaque and translucent.
void paintLines(HostCanvas& canvas)
{
    for (const double alpha : {1.0, 0.5}) {
        const double top = alpha < 1 ? 30 : 60;
        HostBezierPath line;
        line.moveToPoint({5.3, top});
        line.lineToPoint({30.3, top});
        line.lineToPoint({30.3, top - 12.6});
        line.lineToPoint({52.1, top - 20.4});
        canvas.stroke(line, gray(0, alpha));
        HostBezierPath shape;
        shape.moveToPoint({60.5, top});
        shape.lineToPoint({90.5, top - 6});
        shape.lineToPoint({70.5, top - 22});
        shape.closePath();
        shape.setLineWidth(2);
        canvas.stroke(shape, gray(0.2, alpha));
    }
}

HostPixels chequered(HostPixelSize size, std::uint32_t alpha)
{
    HostPixels pixels(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            pixels.row(y)[x] = HostPixels::translucent(static_cast<std::uint32_t>(x * 7 & 255),
                                                       static_cast<std::uint32_t>(y * 11 & 255),
                                                       (x + y) % 2 == 0 ? 255U : 0U, alpha);
        }
    }
    return pixels;
}

/// Pictures of the device's own pixels.
void paintOwnPixels(HostCanvas& canvas)
{
    for (const auto& [place, alpha] : std::vector<std::pair<HostRect, std::uint32_t>>{
             {{4.3, 5.6, 40, 30}, 255}, {{50.2, 7.7, 31.3, 22.2}, 255}, {{4, 44, 86, 12.5}, 128}}) {
        canvas.drawPixels(chequered(canvas.pixelSizeOf(place), alpha), place);
    }
}

void paintStretchedPixels(HostCanvas& canvas)
{
    canvas.drawPixels(chequered({4, 3}, 255), {50.2, 5.6, 40, 30});
    canvas.drawPixels(chequered({8, 1}, 128), {4, 44, 86, 12.5});
}

const std::vector<Scene>& scenes()
{
    static const std::vector<Scene> all{
        {"cells", {100, 70}, paintCells},
        {"wheel", {100, 70}, paintWheel},
        {"lines", {100, 70}, paintLines},
        {"own pixels", {100, 72}, paintOwnPixels},
        {"stretched pixels", {100, 72}, paintStretchedPixels},
    };
    return all;
}

/// The largest difference of a channel.
int distance(std::uint32_t a, std::uint32_t b)
{
    int largest = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        const auto channel = [shift](std::uint32_t pixel) {
            return static_cast<int>(pixel >> shift & 0xFF);
        };
        largest = std::max(largest, std::abs(channel(a) - channel(b)));
    }
    return largest;
}

/// The two libraries decide otherwise on single pixels of slanted edges, but on nothing else.
TEST(CanvasComparisonTest, QtAndCairoPaintTheSamePictures)
{
    constexpr int closeEnough = 40;
    for (const Scene& scene : scenes()) {
        const bool isExact = scene.name == "cells" || scene.name == "own pixels";
        for (const double ratio : {1.0, 1.25, 2.0}) {
            // Edges of other shapes fall between the pixels.
            if (ratio == 1.25 && !scene.name.ends_with("pixels")) continue;
            const PaintedScene qt = paintWithQt(scene, ratio);
            const PaintedScene cairo = paintWithCairo(scene, ratio);
            ASSERT_EQ(qt.pixels.size(), cairo.pixels.size());
            std::size_t different = 0;
            for (std::size_t i = 0; i < qt.pixels.size(); ++i)
                different += distance(qt.pixels[i], cairo.pixels[i]) > closeEnough ? 1U : 0U;
            const double share =
                static_cast<double>(different) / static_cast<double>(qt.pixels.size());
            EXPECT_LT(share, isExact ? 1e-9 : 0.01) << scene.name << " at " << ratio;
        }
    }
}

}  // namespace
}  // namespace vantorel
