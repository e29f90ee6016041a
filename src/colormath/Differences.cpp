#include "colormath/Differences.h"

#include <algorithm>
#include <limits>

namespace vantorel {
namespace {

constexpr double darkestDistinct = 0.35;
constexpr double lightestDistinct = 0.9;

ColorTriple oklabOf(const CSSColorValue& color)
{
    return convertedColor(color.components, color.space, ColorSpace::oklab);
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

NearestColor::NearestColor(std::span<const CSSColorValue> colors) : _oklab(colors.size())
{
    std::ranges::transform(colors, _oklab.begin(), oklabOf);
}

std::size_t NearestColor::placeFor(const CSSColorValue& color) const
{
    const ColorTriple oklab = oklabOf(color);
    const auto nearest = std::ranges::min_element(
        _oklab, {}, [&](const ColorTriple& other) { return squaredDistance(oklab, other); });
    return static_cast<std::size_t>(nearest - _oklab.begin());
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
