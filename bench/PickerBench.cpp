#include "driver/DriverSession.h"
#include "hosts/headless/MemoryFiles.h"
#include "hosts/posix/PosixFiles.h"
#include "settings/SettingsFile.h"

#include <benchmark/benchmark.h>

#include <filesystem>

/// The picker on the headless desktop. The first row of each group is its baseline.
namespace {

using namespace vantorel;

std::shared_ptr<HostColorList> listOfSize(int count)
{
    auto list = std::make_shared<HostColorList>(u"Bench");
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        // Spread over the cube, off the colours that are set below.
        list->setColor(
            HostColor::colorWithCalibratedRed(((i * 37) % 255) / 255.0, ((i * 101) % 255) / 255.0,
                                              ((i * 7 + i / 255) % 255) / 255.0, 1),
            u"name " + std::u16string(number.begin(), number.end()));
    }
    return list;
}

std::unique_ptr<DriverPanel> panelWithList(int count)
{
    DriverPanel::Options options;
    options.files = std::make_unique<MemoryFiles>();
    options.lists.push_back(listOfSize(count));
    auto panel = std::make_unique<DriverPanel>(std::move(options));
    panel->picker().hexSettings().setHexColorList(u"Bench");
    panel->picker().syncPanel();
    return panel;
}

HostColor colorOfStep(int step)
{
    return HostColor::colorWithCalibratedRed((step % 256) / 255.0, 0.5, 0.25, 1);
}

void setColor(benchmark::State& state)
{
    const auto panel = panelWithList(static_cast<int>(state.range(0)));
    int step = 0;
    for (auto _ : state) {
        panel->picker().setColor(colorOfStep(++step));
        panel->desktop().journal().clear();
    }
}
BENCHMARK(setColor)->Arg(17)->Arg(216)->Arg(30000)->Unit(benchmark::kMicrosecond);

/// From the mouse's moves over red's high digit to the fields.
void dragStep(benchmark::State& state)
{
    const auto panel = panelWithList(static_cast<int>(state.range(0)));
    HeadlessCustomView& view = *panel->customView("_hexColorsView");
    int step = 0;
    for (auto _ : state) {
        const double y = 12 + 11.0 * (++step % 15);
        panel->panel().deliver(
            {{HostEventType::leftMouseDown, {24, y}, 0}, {HostEventType::leftMouseUp, {24, y}, 0}},
            view);
        panel->desktop().journal().clear();
    }
}
BENCHMARK(dragStep)->Arg(17)->Arg(216)->Arg(30000)->Unit(benchmark::kMicrosecond);

void drawRecorded(benchmark::State& state)
{
    const auto panel = panelWithList(216);
    panel->picker().hexSettings().setPickViewMode(static_cast<PickViewMode>(state.range(0)));
    HeadlessCustomView& view = *panel->customView("_hexColorsView");
    for (auto _ : state)
        benchmark::DoNotOptimize(view.draw());
}
BENCHMARK(drawRecorded)->Arg(124)->Arg(125)->Arg(126)->Unit(benchmark::kMicrosecond);

void writeSettings(benchmark::State& state)
{
    QTXHexSettings settings;
    settings.setCodeSnippets(QTXCodeSnippet::buildDefaultCodeSnippets());
    MemoryFiles memory;
    const auto folder = std::filesystem::temp_directory_path() / "vantorel-bench";
    std::filesystem::create_directories(folder);
    PosixFiles disk(folder.string());
    HostFiles& files = state.range(0) == 0 ? static_cast<HostFiles&>(memory) : disk;
    initializeDefaults(files, settings);
    for (auto _ : state)
        writeDefaults(files, settings);
    std::filesystem::remove_all(folder);
}
BENCHMARK(writeSettings)->ArgName("disk")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void startPicker(benchmark::State& state)
{
    for (auto _ : state) {
        DriverPanel::Options options;
        options.files = std::make_unique<MemoryFiles>();
        benchmark::DoNotOptimize(DriverPanel(std::move(options)).picker().currentMode());
    }
}
BENCHMARK(startPicker)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
