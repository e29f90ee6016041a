#include "colormath/MainColors.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <numeric>
#include <random>
#include <vector>

/// The main colours of a picture of 12 megapixels, beside reading its pixels once ("colours" 0). It
/// must take less than 200 ms.
namespace {

using namespace vantorel;

constexpr int width = 4000;
constexpr int height = 3000;

/// A photograph has soft changes and noise, and fills many cells.
std::vector<std::uint32_t> picture()
{
    std::mt19937 random(12);
    std::vector<std::uint32_t> pixels;
    pixels.reserve(std::size_t{width} * height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const auto noise = static_cast<std::uint32_t>(random());
            const auto channel = [&](int base, int shift) {
                return static_cast<std::uint32_t>(base + static_cast<int>(noise >> shift & 15));
            };
            pixels.push_back(0xFF000000 | channel(x * 240 / width, 0) << 16 |
                             channel(y * 240 / height, 4) << 8 |
                             channel((x + y) * 240 / (width + height), 8));
        }
    }
    return pixels;
}

void mainColorsOfAPicture(benchmark::State& state)
{
    const std::vector<std::uint32_t> pixels = picture();
    const auto count = static_cast<std::size_t>(state.range(0));
    for (auto round : state) {
        if (count == 0) {
            benchmark::DoNotOptimize(std::accumulate(pixels.begin(), pixels.end(), 0U));
        } else {
            benchmark::DoNotOptimize(mainColors(pixels, count));
        }
    }
}

}  // namespace

BENCHMARK(mainColorsOfAPicture)
    ->ArgName("colours")
    ->Arg(0)
    ->Arg(8)
    ->Arg(24)
    ->Unit(benchmark::kMillisecond);
