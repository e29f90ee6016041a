#include "scales/ScalesLayout.h"

#include "pageparts/Segments.h"

#include <algorithm>

namespace vantorel {
namespace {

// In points.
constexpr double margin = 10;
constexpr double edge = 4;
constexpr double choiceGap = 4;
constexpr double sectionGap = 8;
constexpr double columnGap = 24;
constexpr double leastColumn = 230;

using LeastHeight = std::function<double(std::size_t section, double width)>;

/// Sections below each other.
struct Column {
    std::size_t first = 0;
    std::size_t end = 0;
    HostRect place;

    [[nodiscard]] double leastHeight(const LeastHeight& heightOf) const
    {
        double height = 0;
        for (std::size_t i = first; i < end; ++i)
            height += heightOf(i, place.width) + (i > first ? sectionGap : 0);
        return height;
    }

    void addTo(ScalesFrames& frames, const LeastHeight& heightOf) const
    {
        // What is left over goes to all sections alike, but no farther than they can use it.
        constexpr double mostForSection = 40;
        const double leftOver = place.height - leastHeight(heightOf);
        const double more =
            std::clamp(leftOver / static_cast<double>(end - first), 0.0, mostForSection);
        double top = place.maxY();
        for (std::size_t i = first; i < end; ++i) {
            const double height = heightOf(i, place.width) + more;
            top -= height;
            frames.sections[i] = HostRect{place.x, top, place.width, height};
            top -= sectionGap;
        }
    }
};

}  // namespace

ScalesFrames scalesFrames(HostSize page, std::size_t count, std::size_t chosen,
                          const LeastHeight& leastHeight)
{
    const double width = std::max(page.width, leastScalesPage.width) - 2 * margin;
    const double height = std::max(page.height, leastScalesPage.height) - 2 * edge;
    const HostRect whole{margin, page.height - edge - height, width, height};
    ScalesFrames frames;
    frames.sections.resize(count);
    const auto placeAll = [&](const std::vector<Column>& columns) {
        for (const Column& column : columns)
            if (column.leastHeight(leastHeight) > height) return false;
        for (const Column& column : columns)
            column.addTo(frames, leastHeight);
        return true;
    };

    if (placeAll({{0, count, whole}})) return frames;
    const double half = (width - columnGap) / 2;
    // The left column ends with the section with which both are about equally high.
    const std::size_t middle = std::min<std::size_t>(2, count);
    if (half >= leastColumn &&
        placeAll({{0, middle, {whole.x, whole.y, half, height}},
                  {middle, count, {whole.x + half + columnGap, whole.y, half, height}}})) {
        return frames;
    }
    if (chosen >= count) return frames;
    frames.choice = HostRect{margin, whole.maxY() - Segments::height, width, Segments::height};
    HostRect rest = whole;
    rest.height -= Segments::height + choiceGap;
    Column shown{chosen, chosen + 1, rest};
    const auto fits = [&](const Column& column) {
        return column.leastHeight(leastHeight) <= rest.height;
    };
    while (shown.end < count && fits({shown.first, shown.end + 1, rest}))
        ++shown.end;
    while (shown.first > 0 && fits({shown.first - 1, shown.end, rest}))
        --shown.first;
    if (shown.end - shown.first == 1) {
        frames.sections[chosen] = rest;
    } else {
        shown.addTo(frames, leastHeight);
    }
    return frames;
}

}  // namespace vantorel
