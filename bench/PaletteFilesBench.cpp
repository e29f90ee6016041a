#include "BenchLists.h"
#include "colorlists/PaletteFile.h"
#include "colorlists/PaletteFileStore.h"
#include "hosts/posix/PosixFiles.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

/// Palette files on the disk. Each run has a store that has read nothing yet.
namespace {

using namespace vantorel;

/// A folder of the user's data that ends with this.
class DataFolder {
public:
    DataFolder() { std::filesystem::create_directories(palettes()); }
    DataFolder(const DataFolder&) = delete;
    DataFolder& operator=(const DataFolder&) = delete;
    ~DataFolder() { std::filesystem::remove_all(_path); }

    [[nodiscard]] std::string path() const { return _path.string(); }
    void addPalette(const std::string& name, int count) const
    {
        std::ofstream file(palettes() / (name + ".gpl"));
        file << "GIMP Palette\nName: " << name << "\nColumns: 0\n";
        for (int i = 0; i < count; ++i) {
            file << (i * 37) % 255 << ' ' << (i * 101) % 255 << ' ' << (i * 7 + i / 255) % 255
                 << "\tname " << i << '\n';
        }
    }

private:
    [[nodiscard]] std::filesystem::path palettes() const { return _path / "Vantorel/Palettes"; }

    std::filesystem::path _path =
        std::filesystem::temp_directory_path() / "vantorel-bench-palettes";
};

void listPalettes(benchmark::State& state)
{
    const DataFolder folder;
    const auto count = static_cast<int>(state.range(0));
    for (int i = 0; i < count; ++i)
        folder.addPalette("Palette " + std::to_string(i), 256);
    for (auto _ : state) {
        PosixFiles files(folder.path());
        PaletteFileStore store(files);
        if (store.availableColorLists().size() != static_cast<std::size_t>(count)) {
            state.SkipWithError("lists are missing");
        }
    }
}
BENCHMARK(listPalettes)->ArgName("files")->Arg(10)->Arg(1000)->Unit(benchmark::kMillisecond);

void loadPalette(benchmark::State& state)
{
    const DataFolder folder;
    const auto count = static_cast<std::size_t>(state.range(0));
    folder.addPalette("Bench", static_cast<int>(count));
    for (auto _ : state) {
        PosixFiles files(folder.path());
        PaletteFileStore store(files);
        const auto list = store.colorListNamed(u"Bench");
        if (!list || list->allKeys().size() != count) state.SkipWithError("names are missing");
    }
}
BENCHMARK(loadPalette)->ArgName("names")->Arg(256)->Arg(30000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
