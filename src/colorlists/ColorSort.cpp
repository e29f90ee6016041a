#include "colorlists/ColorSort.h"

#include <algorithm>
#include <cstdint>
#include <numeric>

namespace vantorel {
namespace {

/// Returns the top four bits of a channel's 8-bit value. Negative channels and NaN count as 0; a
/// channel beyond the integers keeps the bits of the largest one.
std::uint64_t quantized(double channel)
{
    constexpr double pastLargest = 18446744073709551616.0;
    const double value = channel * 255;
    if (!(value >= 1)) return 0;
    const std::uint64_t whole =
        value < pastLargest ? static_cast<std::uint64_t>(value) : ~std::uint64_t{0};
    return whole & 0xF0;
}

/// Returns the quantised components as one number, most significant first: green, blue, red.
std::uint64_t sortKey(const HostColor& color)
{
    const auto rgb = color.calibratedRGB();
    if (!rgb) return 0;
    return quantized(rgb->green) << 16 | quantized(rgb->blue) << 8 | quantized(rgb->red);
}

int compareKeys(std::uint64_t a, std::uint64_t b)
{
    if (a == b) return 0;
    return a > b ? -1 : 1;
}

}  // namespace

int colorSortFunc(const std::u16string& keyA, const std::u16string& keyB, const HostColorList& list)
{
    const auto key = [&](const std::u16string& name) {
        const auto color = list.colorWithKey(name);
        return color ? sortKey(*color) : 0;
    };
    return compareKeys(key(keyA), key(keyB));
}

int colorSortFunc(const HostColor& colorA, const HostColor& colorB)
{
    return compareKeys(sortKey(colorA), sortKey(colorB));
}

std::vector<std::size_t> sortedColorIndexes(const HostColorList& list)
{
    const std::size_t count = list.allKeys().size();
    std::vector<std::uint64_t> keys(count);
    for (std::size_t i = 0; i < count; ++i)
        keys[i] = sortKey(list.colorAtIndex(i));
    std::vector<std::size_t> indexes(count);
    std::iota(indexes.begin(), indexes.end(), std::size_t{0});
    std::stable_sort(indexes.begin(), indexes.end(),
                     [&](std::size_t a, std::size_t b) { return keys[a] > keys[b]; });
    return indexes;
}

}  // namespace vantorel
