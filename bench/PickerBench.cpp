#include "BenchLists.h"
#include "hosts/posix/PosixFiles.h"
#include "settings/SettingsFile.h"
#include "testing/driver/DriverSession.h"
#include "testing/headless/MemoryFiles.h"

#include <benchmark/benchmark.h>

#include <filesystem>

/// The picker on the headless desktop. The first row of each group is its baseline.
namespace {

using namespace vantorel;

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

/// Choosing the list: the name pop-up is filled anew, and the colour is matched.
void chooseList(benchmark::State& state)
{
    const auto panel = panelWithList(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        panel->picker().hexSettings().setHexColorList(u"CSS Keyword");
        panel->picker().syncPanel();
        panel->picker().hexSettings().setHexColorList(u"Bench");
        panel->picker().syncPanel();
        panel->desktop().journal().clear();
    }
}
BENCHMARK(chooseList)->Arg(17)->Arg(216)->Arg(30000)->Unit(benchmark::kMicrosecond);

/// What happens before the name menu opens for a colour that is close to entries of the list.
void openNameMenu(benchmark::State& state)
{
    const auto panel = panelWithList(static_cast<int>(state.range(0)));
    auto& popUp =
        *panel->desktop().interfaceFactory().control<HostPopUpButton>("hexColorNamePopUp");
    int step = 0;
    for (auto _ : state) {
        panel->picker().setColor(colorOfStep(++step));
        popUp.sendWillPopUp();
        panel->desktop().journal().clear();
    }
}
BENCHMARK(openNameMenu)->Arg(17)->Arg(216)->Arg(30000)->Unit(benchmark::kMicrosecond);

/// A click in the wheel: the search for the cell, and what a colour change brings.
void wheelClick(benchmark::State& state)
{
    const auto panel = panelWithList(17);
    panel->picker().hexSettings().setPickViewMode(PickViewMode::wheel);
    panel->picker().hexSettings().setNColorCubeRings(state.range(0));
    HeadlessCustomView& view = *panel->customView("_hexColorsView");
    const HostSize size = view.bounds().size();
    int step = 0;
    for (auto _ : state) {
        const HostPoint at{size.width / 2 + ++step % 40, size.height / 2};
        panel->panel().deliver(
            {{HostEventType::leftMouseDown, at, 0}, {HostEventType::leftMouseUp, at, 0}}, view);
        panel->desktop().journal().clear();
    }
}
BENCHMARK(wheelClick)->ArgName("rings")->Arg(4)->Arg(8)->Arg(17)->Unit(benchmark::kMicrosecond);

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
    SettingsMerge merge;
    initializeDefaults(files, settings, merge);
    for (auto _ : state)
        writeDefaults(files, settings, merge);
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
