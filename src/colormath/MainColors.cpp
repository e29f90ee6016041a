#include "colormath/MainColors.h"

#include "csscolor/ColorConversions.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Bits of each channel that choose a cell.
constexpr int cellBits = 5;
constexpr std::size_t cellCount = std::size_t{1} << (3 * cellBits);
constexpr int mostRounds = 40;

struct Cell {
    std::uint32_t count = 0;
    std::uint64_t red = 0;
    std::uint64_t green = 0;
    std::uint64_t blue = 0;
};

/// Colours that have been counted together.
struct WeightedColor {
    std::uint32_t value = 0;
    double weight = 0;
    ColorTriple oklab{};
};

std::size_t cellOf(std::uint32_t pixel)
{
    constexpr std::uint32_t channel = (1U << cellBits) - 1;
    constexpr int shift = 8 - cellBits;
    return ((pixel >> (16 + shift)) & channel) << (2 * cellBits) |
           ((pixel >> (8 + shift)) & channel) << cellBits | ((pixel >> shift) & channel);
}

std::vector<WeightedColor> countedColors(std::span<const std::uint32_t> pixels)
{
    std::vector<Cell> cells(cellCount);
    constexpr std::uint32_t halfOpaque = 0x80000000;
    for (const std::uint32_t pixel : pixels) {
        if (pixel < halfOpaque) continue;
        Cell& cell = cells[cellOf(pixel)];
        ++cell.count;
        cell.red += pixel >> 16 & 0xFF;
        cell.green += pixel >> 8 & 0xFF;
        cell.blue += pixel & 0xFF;
    }
    std::vector<WeightedColor> colors;
    for (const Cell& cell : cells) {
        if (cell.count == 0) continue;
        const auto mean = [&](std::uint64_t sum) {
            return static_cast<std::uint32_t>((sum + cell.count / 2) / cell.count);
        };
        const std::uint32_t red = mean(cell.red);
        const std::uint32_t green = mean(cell.green);
        const std::uint32_t blue = mean(cell.blue);
        colors.push_back({red << 16 | green << 8 | blue, static_cast<double>(cell.count),
                          oklabFromSRGB({red / 255.0, green / 255.0, blue / 255.0})});
    }
    return colors;
}

double squareOfDistance(const ColorTriple& left, const ColorTriple& right)
{
    double sum = 0;
    for (std::size_t i = 0; i < left.size(); ++i)
        sum += (left[i] - right[i]) * (left[i] - right[i]);
    return sum;
}

/// Begins with the most frequent colour; each further one is far from the others and frequent.
std::vector<ColorTriple> firstMiddles(const std::vector<WeightedColor>& colors, std::size_t count)
{
    std::vector<ColorTriple> middles;
    std::vector<double> distances(colors.size(), 1);
    while (middles.size() < std::min(count, colors.size())) {
        std::size_t best = 0;
        double most = -1;
        for (std::size_t i = 0; i < colors.size(); ++i) {
            const double value = distances[i] * colors[i].weight;
            if (value <= most) continue;
            most = value;
            best = i;
        }
        const bool isFirst = middles.empty();
        middles.push_back(colors[best].oklab);
        for (std::size_t i = 0; i < colors.size(); ++i) {
            const double distance = squareOfDistance(colors[i].oklab, middles.back());
            distances[i] = isFirst ? distance : std::min(distances[i], distance);
        }
    }
    return middles;
}

/// Moves the middles until no colour changes its group. Returns the group of each colour.
std::vector<std::size_t> groupsOf(const std::vector<WeightedColor>& colors,
                                  std::vector<ColorTriple>& middles)
{
    std::vector<std::size_t> groups(colors.size(), middles.size());
    for (int round = 0; round < mostRounds; ++round) {
        bool hasChanged = false;
        std::vector<ColorTriple> sums(middles.size());
        std::vector<double> weights(middles.size());
        for (std::size_t i = 0; i < colors.size(); ++i) {
            std::size_t nearest = 0;
            double least = squareOfDistance(colors[i].oklab, middles[0]);
            for (std::size_t group = 1; group < middles.size(); ++group) {
                const double distance = squareOfDistance(colors[i].oklab, middles[group]);
                if (distance >= least) continue;
                least = distance;
                nearest = group;
            }
            hasChanged = hasChanged || groups[i] != nearest;
            groups[i] = nearest;
            weights[nearest] += colors[i].weight;
            for (std::size_t k = 0; k < 3; ++k)
                sums[nearest][k] += colors[i].oklab[k] * colors[i].weight;
        }
        if (!hasChanged) break;
        for (std::size_t group = 0; group < middles.size(); ++group) {
            if (weights[group] == 0) continue;
            for (std::size_t k = 0; k < 3; ++k)
                middles[group][k] = sums[group][k] / weights[group];
        }
    }
    return groups;
}

}  // namespace

std::vector<MainColor> mainColors(std::span<const std::uint32_t> pixels, std::size_t count)
{
    const std::vector<WeightedColor> colors = countedColors(pixels);
    if (colors.empty() || count == 0) return {};
    std::vector<ColorTriple> middles = firstMiddles(colors, count);
    const std::vector<std::size_t> groups = groupsOf(colors, middles);

    std::vector<MainColor> result(middles.size());
    std::vector<double> best(middles.size(), -1);
    double all = 0;
    for (std::size_t i = 0; i < colors.size(); ++i) {
        /// The squared distance at which a colour must be twice as frequent.
        constexpr double near = 0.05 * 0.05;
        const std::size_t group = groups[i];
        const double fitness =
            colors[i].weight / (1 + squareOfDistance(colors[i].oklab, middles[group]) / near);
        all += colors[i].weight;
        result[group].share += colors[i].weight;
        if (fitness <= best[group]) continue;
        best[group] = fitness;
        result[group].value = colors[i].value;
    }
    for (MainColor& color : result)
        color.share /= all;
    std::erase_if(result, [](const MainColor& color) { return color.share == 0; });
    std::stable_sort(
        result.begin(), result.end(),
        [](const MainColor& left, const MainColor& right) { return left.share > right.share; });
    return result;
}

}  // namespace vantorel
