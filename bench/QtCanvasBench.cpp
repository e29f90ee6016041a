#include "BenchLists.h"
#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtView.h"
#include "testing/driver/DriverSession.h"
#include "testing/headless/MemoryFiles.h"
#include "view/SliderGeometry.h"
#include "view/WheelGeometry.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

/// Drawing the colours view whole on Qt's raster canvas ("view" 1), beside the plain cost of
/// filling as many shapes one by one through QPainter ("view" 0): the ground with its frame, and
/// the cells or swatches. The slider's cursors count as the bars that they are, its six leader
/// lines as two bars each; their slanted ends, which are smooth, count as nothing.
namespace {

using namespace vantorel;

/// The picker with a list, in a mode; the view is drawn on an image of its size.
class DrawnView {
public:
    DrawnView(PickViewMode mode, int listSize, int rings)
    {
        DriverPanel::Options options;
        options.files = std::make_unique<MemoryFiles>();
        options.lists.push_back(listOfSize(listSize));
        _panel = std::make_unique<DriverPanel>(std::move(options));
        QTXHexSettings& settings = _panel->picker().hexSettings();
        settings.setHexColorList(u"Bench");
        settings.setPickViewMode(mode);
        settings.setNColorCubeRings(rings);
        _panel->picker().syncPanel();
        _image = QImage(static_cast<int>(bounds().width), static_cast<int>(bounds().height),
                        QImage::Format_ARGB32_Premultiplied);
        _painter.begin(&_image);
        _painter.setPen(Qt::NoPen);
    }

    [[nodiscard]] HostRect bounds() { return view().bounds(); }
    /// The size of the rectangle that the modes draw in, in points.
    [[nodiscard]] HostSize modeSize() { return {bounds().width - 6, bounds().height - 9}; }
    [[nodiscard]] QPainter& painter() { return _painter; }
    [[nodiscard]] const QImage& image() const { return _image; }

    void draw()
    {
        QtCanvas canvas(_painter, bounds());
        _panel->picker().hexColorsView().drawRect(canvas);
    }

private:
    [[nodiscard]] HeadlessCustomView& view() { return *_panel->customView("_hexColorsView"); }

    std::unique_ptr<DriverPanel> _panel;
    QImage _image;
    QPainter _painter;
};

void fillRects(QPainter& painter, const std::vector<QRectF>& rects)
{
    int shade = 0;
    for (const QRectF& rect : rects)
        painter.fillRect(rect, QColor(++shade & 255, 100, 50));
}

void addFrame(std::vector<QRectF>& rects, const QRectF& rect)
{
    const auto across = rect.width();
    rects.emplace_back(rect.left(), rect.top(), across, 1);
    rects.emplace_back(rect.left(), rect.bottom() - 1, across, 1);
    rects.emplace_back(rect.left(), rect.top() + 1, 1, rect.height() - 2);
    rects.emplace_back(rect.right() - 1, rect.top() + 1, 1, rect.height() - 2);
}

/// What every mode has behind its shapes.
std::vector<QRectF> ground(const DrawnView& view)
{
    const QRectF whole = QRectF(view.image().rect()).adjusted(1, 1, -1, -1);
    std::vector<QRectF> rects{whole};
    addFrame(rects, whole);
    return rects;
}

void slider(benchmark::State& state)
{
    DrawnView view(PickViewMode::slider, 17, 8);
    std::vector<QRectF> cells = ground(view);
    const HostRect matrix = sliderMatrixRect(view.bounds());
    for (int cell = 0; cell < 96; ++cell) {
        cells.push_back(widgetRect(
            sliderCellRect(matrix, sliderCellSize(matrix), {cell / 32, cell / 16 % 2, cell % 16}),
            view.bounds()));
    }
    // Each of the six columns has a cursor of two colours.
    const QRectF someCell = cells.back();
    for (int cursor = 0; cursor < 12; ++cursor)
        addFrame(cells, someCell);
    for (int leader = 0; leader < 6; ++leader) {
        cells.emplace_back(someCell.left(), someCell.top(), someCell.width(), 1);
        cells.emplace_back(someCell.left(), someCell.top(), 1, view.bounds().height / 2);
    }
    for (auto _ : state) {
        if (state.range(0) == 0) {
            fillRects(view.painter(), cells);
        } else {
            view.draw();
        }
    }
}
BENCHMARK(slider)->ArgName("view")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void palette(benchmark::State& state)
{
    const auto count = static_cast<std::size_t>(state.range(1));
    DrawnView view(PickViewMode::palette, static_cast<int>(count), 8);
    const PaletteGrid grid = paletteGrid(count, view.modeSize());
    std::vector<QRectF> swatches = ground(view);
    for (std::size_t i = 0; i < count; ++i) {
        swatches.push_back(
            widgetRect(paletteSwatchRect(grid, i, view.modeSize().height), view.bounds()));
    }
    for (auto _ : state) {
        if (state.range(0) == 0) {
            fillRects(view.painter(), swatches);
        } else {
            view.draw();
        }
    }
}
BENCHMARK(palette)
    ->ArgNames({"view", "names"})
    ->ArgsProduct({{0, 1}, {17}})
    ->ArgsProduct({{0, 1}, {216}})
    ->ArgsProduct({{0, 1}, {30000}})
    ->Unit(benchmark::kMicrosecond);

void wheel(benchmark::State& state)
{
    const int rings = static_cast<int>(state.range(1));
    DrawnView view(PickViewMode::wheel, 17, rings);
    const auto cells = wheelCells(wheelPlace(view.modeSize(), rings));
    const std::vector<QRectF> behind = ground(view);
    for (auto _ : state) {
        if (state.range(0) == 1) {
            view.draw();
            continue;
        }
        fillRects(view.painter(), behind);
        for (const WheelCell& cell : cells) {
            const QPointF corners[] = {widgetPoint(cell.corners[0], view.bounds()),
                                       widgetPoint(cell.corners[1], view.bounds()),
                                       widgetPoint(cell.corners[2], view.bounds())};
            view.painter().setBrush(QColor(cell.red, cell.green, cell.blue));
            view.painter().drawPolygon(corners, 3, Qt::WindingFill);
        }
    }
}
BENCHMARK(wheel)
    ->ArgNames({"view", "rings"})
    ->ArgsProduct({{0, 1}, {4}})
    ->ArgsProduct({{0, 1}, {8}})
    ->ArgsProduct({{0, 1}, {17}})
    ->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
