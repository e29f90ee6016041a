#include "hosts/qt/QtCanvas.h"
#include "mix/MixPicker.h"
#include "testing/headless/HeadlessColorPanel.h"
#include "testing/headless/MemoryFiles.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cmath>

/// Drag steps on the page "Mix" of 900 x 600 points, from the mouse movement to the painted views,
/// beside the plain cost of copying a picture of the plane's size ("step" 0). "step" 1 is a drag in
/// the plane, and "step" 2 a drag of the third component, which changes the whole plane.
namespace {

using namespace vantorel;

constexpr HostSize pageSize{900, 600};

HeadlessDesktop::Options desktopOptions()
{
    HeadlessDesktop::Options options;
    options.files = std::make_unique<MemoryFiles>();
    return options;
}

class DrawnPage {
public:
    explicit DrawnPage(MixSpace space)
    {
        _panel.setPicker(&_picker);
        HostView* page = _picker.provideNewView(true);
        page->setFrame({0, 0, pageSize.width, pageSize.height});
        _picker.viewSizeChanged(page);
        const std::u16string name = nameOf(space);
        static_cast<void>(_picker.performAction(std::string(name.begin(), name.end()), nullptr));
        for (const char* view :
             {"mixPlane", "mixBar", "mixTrack1", "mixTrack2", "mixTrack3", "mixTrack4"}) {
            const HostSize size = viewNamed(view).bounds().size();
            _images.emplace_back(static_cast<int>(size.width), static_cast<int>(size.height),
                                 QImage::Format_ARGB32_Premultiplied);
            _views.push_back(&viewNamed(view));
        }
        draw();
    }
    DrawnPage(const DrawnPage&) = delete;
    DrawnPage& operator=(const DrawnPage&) = delete;
    ~DrawnPage() { _panel.setPicker(nullptr); }

    [[nodiscard]] const QImage& planeImage() const { return _images.front(); }

    /// Drags to a place of a view, in fractions.
    void drag(const char* name, double x, double y)
    {
        const HeadlessCustomView& view = viewNamed(name);
        view.content().mouseDragged({HostEventType::leftMouseDragged,
                                     {view.bounds().width * x, view.bounds().height * y},
                                     0});
        draw();
    }

private:
    HeadlessCustomView& viewNamed(const char* name)
    {
        return *_desktop.interfaceFactory().control<HeadlessCustomView>(name);
    }
    void draw()
    {
        for (std::size_t i = 0; i < _views.size(); ++i) {
            QPainter painter(&_images[i]);
            QtCanvas canvas(painter, _views[i]->bounds());
            _views[i]->content().drawRect(canvas);
        }
    }

    HeadlessDesktop _desktop{desktopOptions()};
    HeadlessColorPanel _panel{_desktop,
                              {0, 0, pageSize.width, pageSize.height},
                              HostColor::colorWithCalibratedRed(0.2, 0.5, 0.9, 1)};
    MixPicker _picker{0, _panel};
    std::vector<HeadlessCustomView*> _views;
    std::vector<QImage> _images;
};

void mixDrag(benchmark::State& state)
{
    DrawnPage page(static_cast<MixSpace>(state.range(0)));
    const QImage picture = page.planeImage().copy();
    QImage copy = picture.copy();
    double place = 0;
    for (auto _ : state) {
        // Another place at each step.
        place = std::fmod(place + 0.0137, 0.8);
        if (state.range(1) == 0) {
            QPainter(&copy).drawImage(0, 0, picture);
        } else if (state.range(1) == 1) {
            page.drag("mixPlane", 0.05 + place * 0.5, 0.4 + place * 0.3);
        } else {
            page.drag("mixBar", 0.5, 0.1 + place);
        }
    }
}
BENCHMARK(mixDrag)
    ->ArgNames({"space", "step"})
    ->ArgsProduct({{0}, {0, 1, 2}})
    ->ArgsProduct({{1}, {0, 1, 2}})
    ->ArgsProduct({{2}, {0, 1, 2}})
    ->ArgsProduct({{3}, {0, 1, 2}})
    ->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
