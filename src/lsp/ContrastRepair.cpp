#include "lsp/ContrastRepair.h"

#include "colortext/ByteColor.h"
#include "csscolor/Contrast.h"
#include "csscolor/GamutMapping.h"
#include "documents/StyleBytes.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

constexpr double enoughContrast = 4.5;

bool hasEnoughContrast(const HostColor& color, const HostColor& background)
{
    return contrastRatio(color, background).value_or(0) >= enoughContrast;
}

CSSColorValue oklchOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    CSSColorValue value;
    value.components = {rgb.red, rgb.green, rgb.blue};
    value = converted(value, ColorSpace::oklch);
    value.isMissing = {};
    return value;
}

HostColor withLightness(CSSColorValue oklch, double lightness)
{
    oklch.components[0] = lightness;
    const auto [red, green, blue] = mappedIntoSRGB(oklch).components;
    return byteColorOf(HostColor::colorWithCalibratedRed(red, green, blue, 1)).hostColor();
}

/// The colours of a rule.
struct RuleColors {
    std::optional<OpenDocument::Found> text;
    std::optional<OpenDocument::Found> background;
};

/// Returns the innermost block around a place of a part.
std::uint32_t blockAt(const DocumentPart& part, std::size_t place)
{
    std::uint32_t innermost = notInDocument;
    for (std::size_t i = 0; i < part.blocks.size(); ++i) {
        const TextRange& range = part.blocks[i].range;
        if (range.begin <= place && place <= range.end) innermost = static_cast<std::uint32_t>(i);
    }
    return innermost;
}

RuleColors colorsOfRule(const OpenDocument& document, std::size_t place)
{
    RuleColors rule;
    const ColorDocument::Place where = document.colors().partAt(place);
    const DocumentPart& part = *where.part;
    const std::uint32_t block = blockAt(part, place - where.begin);
    if (block == notInDocument) return rule;
    const std::string_view text = std::string_view(document.text()).substr(where.begin);
    for (const DocumentColor& color : part.colors) {
        const bool counts = color.block == block && color.declaration != notInDocument &&
                            !color.color.isPattern() && color.color.alphaComponent() >= 1;
        if (!counts) continue;
        const DocumentDeclaration& declaration = part.declarations[color.declaration];
        const std::string_view name = declaration.name.in(text);
        const bool isWhole = declaration.value == color.range;
        const OpenDocument::Found found{
            color, {where.begin + color.range.begin, where.begin + color.range.end}};
        // Of several declarations, the last counts.
        if (isWhole && equalsLowerCase(name, "color")) rule.text = found;
        if (isWhole &&
            (equalsLowerCase(name, "background") || equalsLowerCase(name, "background-color"))) {
            rule.background = found;
        }
    }
    return rule;
}

}  // namespace

std::optional<HostColor> readableColor(const HostColor& color, const HostColor& background)
{
    if (hasEnoughContrast(color, background)) return color;
    const CSSColorValue oklch = oklchOf(color);
    const double lightness = std::clamp(oklch.components[0], 0.0, 1.0);
    std::optional<HostColor> best;
    double leastChange = 2;
    for (const double farthest : {0.0, 1.0}) {
        if (!hasEnoughContrast(withLightness(oklch, farthest), background)) continue;
        // The contrast grows with the distance from the colour, except for steps of bytes.
        double tooNear = lightness;
        double enough = farthest;
        constexpr int steps = 24;
        for (int i = 0; i < steps; ++i) {
            const double middle = (tooNear + enough) / 2;
            (hasEnoughContrast(withLightness(oklch, middle), background) ? enough : tooNear) =
                middle;
        }
        if (std::abs(enough - lightness) >= leastChange) continue;
        leastChange = std::abs(enough - lightness);
        best = withLightness(oklch, enough);
    }
    return best;
}

std::optional<ContrastRepair> contrastRepair(const OpenDocument& document, std::size_t place,
                                             const WrittenColors& writer)
{
    const RuleColors rule = colorsOfRule(document, place);
    if (!rule.text || !rule.background) return std::nullopt;
    const HostColor& background = rule.background->color.color;
    if (hasEnoughContrast(rule.text->color.color, background)) return std::nullopt;
    const auto readable = readableColor(rule.text->color.color, background);
    if (!readable) return std::nullopt;
    std::string text = writer.textLike(*rule.text, *readable);
    // Forms with few digits may denote a neighbour that just misses the limit.
    const auto reading = readCSSColor(text);
    if (!reading || !hasEnoughContrast(byteColorOf(reading->color).hostColor(), background))
        text = writer.textInForm(CSSColorForm::hex, *readable);
    return ContrastRepair{rule.text->range, std::move(text),
                          contrastRatio(*readable, background).value_or(0)};
}

}  // namespace vantorel
