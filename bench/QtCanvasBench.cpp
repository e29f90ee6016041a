#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtView.h"
#include "view/SliderGeometry.h"
#include "view/WheelGeometry.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

/// Painting on Qt's raster canvas, beside the plain cost of the same shapes through QPainter.
namespace {

using namespace vantorel;

constexpr HostRect bounds{0, 0, 240, 194};

QImage newImage()
{
    return {240, 194, QImage::Format_ARGB32_Premultiplied};
}

std::vector<HostRect> sliderCells()
{
    const HostRect matrix = sliderMatrixRect(bounds);
    std::vector<HostRect> cells;
    for (int component = 0; component < 3; ++component) {
        for (int digit = 0; digit < 2; ++digit) {
            for (int value = 0; value < 16; ++value) {
                cells.push_back(
                    sliderCellRect(matrix, sliderCellSize(matrix), {component, digit, value}));
            }
        }
    }
    return cells;
}

void slider(benchmark::State& state)
{
    QImage image = newImage();
    QPainter painter(&image);
    QtCanvas canvas(painter, bounds);
    const auto cells = sliderCells();
    HostBezierPath path;
    for (auto _ : state) {
        for (const HostRect& cell : cells) {
            if (state.range(0) == 0) {
                painter.fillRect(widgetRect(cell, bounds), QColor(200, 100, 50));
            } else {
                path.removeAllPoints();
                path.appendBezierPathWithRect(cell);
                canvas.fill(path, HostColor::colorWithCalibratedRed(0.8, 0.4, 0.2, 1));
            }
        }
    }
}
BENCHMARK(slider)->ArgName("canvas")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void wheel(benchmark::State& state)
{
    QImage image = newImage();
    QPainter painter(&image);
    painter.setPen(Qt::NoPen);
    QtCanvas canvas(painter, bounds);
    const auto cells = wheelCells(wheelPlace({234, 185}, 17));
    HostBezierPath path;
    for (auto _ : state) {
        for (const WheelCell& cell : cells) {
            const auto& [a, b, c] = cell.corners;
            if (state.range(0) == 0) {
                const QPointF corners[] = {widgetPoint(a, bounds), widgetPoint(b, bounds),
                                           widgetPoint(c, bounds)};
                painter.setBrush(QColor(cell.red, cell.green, cell.blue));
                painter.drawPolygon(corners, 3, Qt::WindingFill);
            } else {
                path.removeAllPoints();
                path.moveToPoint(a);
                path.lineToPoint(b);
                path.lineToPoint(c);
                path.closePath();
                canvas.fill(path, HostColor::colorWithCalibratedRed(
                                      cell.red / 255.0, cell.green / 255.0, cell.blue / 255.0, 1));
            }
        }
    }
}
BENCHMARK(wheel)->ArgName("canvas")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
