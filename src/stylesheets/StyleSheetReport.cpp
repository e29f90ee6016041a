#include "stylesheets/StyleSheetReport.h"

#include "color/ChannelConversion.h"
#include "colormath/DeltaE2000.h"
#include "csscolor/ColorSpaces.h"
#include "csscolor/Contrast.h"
#include "text/ASCII.h"
#include "text/Trimming.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <tuple>

namespace vantorel {
namespace {

std::array<std::uint8_t, 4> bytesOfColor(const HostColor& color)
{
    const auto c = color.calibratedRGB().value_or(HostColor::Components{});
    return {nearestByte(c.red), nearestByte(c.green), nearestByte(c.blue), nearestByte(c.alpha)};
}

ColorTriple labOf(const SheetColor& color)
{
    return convertedColor({color.bytes[0] / 255.0, color.bytes[1] / 255.0, color.bytes[2] / 255.0},
                          ColorSpace::srgb, ColorSpace::lab);
}

bool isVariable(std::string_view name)
{
    return name.starts_with("--") || name.starts_with('$') || name.starts_with('@');
}

bool isNamed(std::string_view name, std::string_view wanted)
{
    return equalIgnoringCase(name, wanted);
}

/// Whether a colour is all of a declaration's value.
bool isWholeValue(const DocumentColor& color, const DocumentDeclaration& declaration,
                  std::string_view text)
{
    const auto isSpace = [](char c) { return isBlank(c) || c == '\n' || c == '\r'; };
    return trimmed(declaration.value.in(text), isSpace) == color.range.in(text) &&
           declaration.value.begin <= color.range.begin;
}

/// The colours in a declaration's value, without those inside others.
using OuterColors = std::vector<const DocumentColor*>;

/// What a rule says about its text. `notInDocument` stands for no declaration.
struct RuleColors {
    std::uint32_t color = notInDocument;
    std::uint32_t background = notInDocument;
};

}  // namespace

/// Finds the lines of places in a text.
class SheetLines {
public:
    explicit SheetLines(std::string_view text)
    {
        for (std::size_t end = text.find('\n'); end != std::string_view::npos;
             end = text.find('\n', end + 1))
            _ends.push_back(end);
    }

    [[nodiscard]] std::size_t lineAt(std::size_t place) const
    {
        const auto next = std::ranges::lower_bound(_ends, place);
        return 1 + static_cast<std::size_t>(next - _ends.begin());
    }

private:
    std::vector<std::size_t> _ends;
};

HostColor SheetColor::hostColor() const
{
    return HostColor::colorWithCalibratedRed(bytes[0] / 255.0, bytes[1] / 255.0, bytes[2] / 255.0,
                                             bytes[3] / 255.0);
}

void StyleSheetReport::add(std::string_view text, DocumentLanguage language,
                           const SnippetReaders* snippets)
{
    const DocumentColors found = findColors(text, language, snippets);
    const SheetLines lines(text);
    for (const DocumentColor& color : found.colors) {
        const auto bytes = bytesOfColor(color.color);
        const auto [place, isNew] = _places.try_emplace(bytes, _colors.size());
        if (isNew) {
            SheetColor& first = _colors.emplace_back();
            first.bytes = bytes;
            first.first = {_files, lines.lineAt(color.range.begin)};
        }
        SheetColor& counted = _colors[place->second];
        ++counted.count;
        if (color.declaration == notInDocument) continue;
        const DocumentDeclaration& declaration = found.declarations[color.declaration];
        std::string name(declaration.name.in(text));
        if (isVariable(name) && isWholeValue(color, declaration, text) &&
            std::ranges::find(counted.variables, name) == counted.variables.end()) {
            counted.variables.push_back(std::move(name));
        }
    }
    addContrasts(found, text, lines);
    ++_files;
}

void StyleSheetReport::addContrasts(const DocumentColors& found, std::string_view text,
                                    const SheetLines& lines)
{
    std::vector<OuterColors> colors(found.declarations.size());
    for (const DocumentColor& color : found.colors) {
        if (color.declaration == notInDocument) continue;
        OuterColors& others = colors[color.declaration];
        if (others.empty() || others.back()->range.end <= color.range.begin)
            others.push_back(&color);
    }
    std::vector<RuleColors> rules(found.blocks.size());
    for (std::uint32_t i = 0; i < found.declarations.size(); ++i) {
        const DocumentDeclaration& declaration = found.declarations[i];
        if (declaration.block == notInDocument) continue;
        const std::string_view name = declaration.name.in(text);
        RuleColors& rule = rules[declaration.block];
        if (isNamed(name, "color")) rule.color = i;
        if (isNamed(name, "background") || isNamed(name, "background-color")) rule.background = i;
    }
    for (const RuleColors& rule : rules) {
        if (rule.color == notInDocument || rule.background == notInDocument) continue;
        if (colors[rule.color].size() != 1) continue;
        const DocumentColor& foreground = *colors[rule.color].front();
        std::optional<LowContrast> lowest;
        for (const DocumentColor* background : colors[rule.background]) {
            const auto ratio = contrastRatio(foreground.color, background->color);
            if (!ratio || contrastVerdicts(*ratio).normalTextAA) continue;
            if (lowest && lowest->ratio <= *ratio) continue;
            lowest = LowContrast{{}, foreground.color, background->color, *ratio};
        }
        if (!lowest) continue;
        lowest->place = {_files, lines.lineAt(foreground.range.begin)};
        _lowContrasts.push_back(*lowest);
    }
}

std::vector<SheetColor> StyleSheetReport::colors() const
{
    std::vector<SheetColor> sorted = _colors;
    std::ranges::stable_sort(sorted, std::ranges::greater{}, &SheetColor::count);
    return sorted;
}

std::vector<NearDoubles> StyleSheetReport::nearDoubles(const std::vector<SheetColor>& colors)
{
    std::vector<ColorTriple> lab(colors.size());
    std::ranges::transform(colors, lab.begin(), labOf);
    std::vector<std::size_t> byLightness(colors.size());
    std::iota(byLightness.begin(), byLightness.end(), 0);
    std::ranges::sort(byLightness, {}, [&](std::size_t place) { return lab[place][0]; });
    // The weight of lightness is largest for black and white.
    constexpr double farthest = leastDifference * 1.75;
    std::vector<NearDoubles> doubles;
    for (std::size_t i = 0; i < byLightness.size(); ++i) {
        const std::size_t one = byLightness[i];
        for (std::size_t j = i + 1; j < byLightness.size(); ++j) {
            const std::size_t other = byLightness[j];
            if (lab[other][0] - lab[one][0] > farthest) break;
            if (colors[one].bytes[3] != colors[other].bytes[3] ||
                !mayDifferByLessThan(leastDifference, lab[one], lab[other])) {
                continue;
            }
            const double difference = deltaE2000(lab[one], lab[other]);
            if (difference >= leastDifference) continue;
            doubles.push_back({std::min(one, other), std::max(one, other), difference});
        }
    }
    std::ranges::sort(doubles, [](const NearDoubles& left, const NearDoubles& right) {
        return std::tie(left.difference, left.first, left.second) <
               std::tie(right.difference, right.first, right.second);
    });
    return doubles;
}

}  // namespace vantorel
