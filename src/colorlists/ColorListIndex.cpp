#include "colorlists/ColorListIndex.h"

#include "color/ChannelConversion.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <optional>

namespace vantorel {
namespace {

/// The maximum difference of components between close colours. A cell has the same width, so the
/// colours close to a given one are in its cell or in a neighbour.
constexpr int closeness = 16;
constexpr int cellsAcross = 256 / closeness;
constexpr std::size_t cellCount = std::size_t{cellsAcross} * cellsAcross * cellsAcross;

using Steps = std::array<std::int16_t, 3>;

std::size_t cellIndex(int red, int green, int blue)
{
    const int index = (red * cellsAcross + green) * cellsAcross + blue;
    return static_cast<std::size_t>(index);
}

std::size_t cellOf(const Steps& steps)
{
    return cellIndex(steps[0] / closeness, steps[1] / closeness, steps[2] / closeness);
}

/// Returns `std::nullopt` for a colour outside the colour cube.
std::optional<Steps> stepsOf(const HostColor::Components& rgb)
{
    Steps steps{};
    const std::array<double, 3> channels{rgb.red, rgb.green, rgb.blue};
    for (std::size_t i = 0; i < channels.size(); ++i) {
        const std::int64_t value = truncatedSigned(channels[i] * 255);
        if (value < 0 || value > 255) return std::nullopt;
        steps[i] = static_cast<std::int16_t>(value);
    }
    return steps;
}

/// Returns a component; of those to which no colour in the cube is close, the smallest.
int limited(std::uint64_t component)
{
    constexpr auto pastLastClose = std::uint64_t{cellsAcross + 1} * closeness;
    return static_cast<int>(std::min(component, pastLastClose));
}

}  // namespace

void ColorListIndex::update(const std::shared_ptr<const HostColorList>& list)
{
    if (list == _list && (!list || list->revision() == _revision)) return;
    if (!list) {
        *this = {};
        return;
    }
    _list = list;
    _revision = list->revision();
    _outsideCube.clear();
    std::vector<Entry> entries;
    for (std::size_t place = 0; place < list->allKeys().size(); ++place) {
        const auto rgb = list->colorAtIndex(place).calibratedRGB();
        if (!rgb) continue;
        if (const auto steps = stepsOf(*rgb)) {
            entries.push_back({*steps, static_cast<std::uint32_t>(place)});
        } else {
            _outsideCube.push_back(place);
        }
    }
    sortIntoCells(entries);
}

/// Sorts the entries by cell, using a counting sort.
void ColorListIndex::sortIntoCells(const std::vector<Entry>& entries)
{
    _cellStarts.assign(cellCount + 1, 0);
    for (const Entry& entry : entries)
        ++_cellStarts[cellOf(entry.steps) + 1];
    std::partial_sum(_cellStarts.begin(), _cellStarts.end(), _cellStarts.begin());
    std::vector<std::uint32_t> next = _cellStarts;
    _entries.resize(entries.size());
    for (const Entry& entry : entries)
        _entries[next[cellOf(entry.steps)]++] = entry;
}

void ColorListIndex::addPlacesInCells(const QTXHexColorSpec& color,
                                      std::vector<std::size_t>& places) const
{
    const std::array<int, 3> wanted{limited(color.redHexComp()), limited(color.greenHexComp()),
                                    limited(color.blueHexComp())};
    const auto isClose = [&](const Entry& entry) {
        return std::abs(entry.steps[0] - wanted[0]) <= closeness &&
               std::abs(entry.steps[1] - wanted[1]) <= closeness &&
               std::abs(entry.steps[2] - wanted[2]) <= closeness;
    };
    const auto firstCell = [&](std::size_t i) { return std::max(wanted[i] / closeness - 1, 0); };
    const auto lastCell = [&](std::size_t i) {
        return std::min(wanted[i] / closeness + 1, cellsAcross - 1);
    };
    for (int red = firstCell(0); red <= lastCell(0); ++red) {
        for (int green = firstCell(1); green <= lastCell(1); ++green) {
            // Cells that differ only in blue are adjacent.
            const std::uint32_t begin = _cellStarts[cellIndex(red, green, firstCell(2))];
            const std::uint32_t end = _cellStarts[cellIndex(red, green, lastCell(2)) + 1];
            for (std::uint32_t i = begin; i < end; ++i) {
                if (isClose(_entries[i])) places.push_back(_entries[i].place);
            }
        }
    }
}

std::vector<std::size_t> ColorListIndex::placesNear(const QTXHexColorSpec& color) const
{
    std::vector<std::size_t> places;
    if (!_list) return places;
    const auto isNear = [&](std::size_t place) {
        const HostColor& entry = _list->colorAtIndex(place);
        return color.isEqualToColor(entry) || color.isCloseToColor(entry);
    };
    addPlacesInCells(color, places);
    std::copy_if(_outsideCube.begin(), _outsideCube.end(), std::back_inserter(places), isNear);
    std::sort(places.begin(), places.end());
    return places;
}

}  // namespace vantorel
