#include "colormath/Differences.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantorel {
namespace {

constexpr double darkestDistinct = 0.35;
constexpr double lightestDistinct = 0.9;

ColorTriple oklabOf(const CSSColorValue& color)
{
    return convertedColor(color.components, color.space, ColorSpace::oklab);
}

/// Like `oklabOf`, with 0 for what is not a number, which has no order.
ColorTriple comparableOklabOf(const CSSColorValue& color)
{
    ColorTriple oklab = oklabOf(color);
    for (double& component : oklab)
        if (std::isnan(component)) component = 0;
    return oklab;
}

double squaredDistance(const ColorTriple& first, const ColorTriple& second)
{
    double sum = 0;
    for (std::size_t i = 0; i < first.size(); ++i)
        sum += (first[i] - second[i]) * (first[i] - second[i]);
    return sum;
}

struct Candidate {
    CSSColorValue color;
    ColorTriple oklab;
    /// The squared distance to the nearest colour of the list.
    double distance;
};

std::vector<Candidate> distinctCandidates()
{
    constexpr int levels = 16;
    constexpr auto level = [](int number) { return number / (levels - 1.0); };
    std::vector<Candidate> candidates;
    for (int i = 0; i < levels * levels * levels; ++i) {
        CSSColorValue color;
        color.components = {level(i / levels / levels), level(i / levels % levels),
                            level(i % levels)};
        const ColorTriple oklab = oklabOf(color);
        if (oklab[0] < darkestDistinct || oklab[0] > lightestDistinct) continue;
        candidates.push_back({color, oklab, std::numeric_limits<double>::infinity()});
    }
    return candidates;
}

void keepDistanceFrom(const ColorTriple& oklab, std::vector<Candidate>& candidates)
{
    for (Candidate& candidate : candidates)
        candidate.distance = std::min(candidate.distance, squaredDistance(candidate.oklab, oklab));
}

const Candidate& mostColorful(const std::vector<Candidate>& candidates)
{
    return *std::ranges::max_element(candidates, {}, [](const Candidate& candidate) {
        return candidate.oklab[1] * candidate.oklab[1] + candidate.oklab[2] * candidate.oklab[2];
    });
}

}  // namespace

NearestColor::NearestColor(std::span<const CSSColorValue> colors)
{
    _entries.reserve(colors.size());
    for (std::size_t i = 0; i < colors.size(); ++i)
        _entries.push_back({comparableOklabOf(colors[i]), i});
    std::ranges::sort(_entries, {}, [](const Entry& entry) { return entry.oklab[0]; });
}

std::size_t NearestColor::placeFor(const CSSColorValue& color) const
{
    const ColorTriple oklab = comparableOklabOf(color);
    std::size_t nearest = 0;
    double distance = std::numeric_limits<double>::infinity();
    // Returns false if the entry, and so all beyond it, differs too much by its lightness alone.
    const auto compare = [&](const Entry& entry) {
        const double step = entry.oklab[0] - oklab[0];
        if (step * step > distance) return false;
        const double other = squaredDistance(oklab, entry.oklab);
        if (other < distance || (other == distance && entry.place < nearest)) {
            distance = other;
            nearest = entry.place;
        }
        return true;
    };
    auto above = std::ranges::lower_bound(_entries, oklab[0], {},
                                          [](const Entry& entry) { return entry.oklab[0]; });
    auto below = above;
    bool goesUp = true;
    bool goesDown = true;
    while (goesUp || goesDown) {
        goesUp = goesUp && above != _entries.end() && compare(*above++);
        goesDown = goesDown && below != _entries.begin() && compare(*--below);
    }
    return nearest;
}

std::vector<CSSColorValue> withDistinctColors(std::vector<CSSColorValue> colors, std::size_t count)
{
    std::vector<Candidate> candidates = distinctCandidates();
    for (const CSSColorValue& color : colors)
        keepDistanceFrom(oklabOf(color), candidates);
    while (colors.size() < count) {
        const Candidate next =
            colors.empty() ? mostColorful(candidates)
                           : *std::ranges::max_element(candidates, {}, &Candidate::distance);
        colors.push_back(next.color);
        keepDistanceFrom(next.oklab, candidates);
    }
    return colors;
}

}  // namespace vantorel
