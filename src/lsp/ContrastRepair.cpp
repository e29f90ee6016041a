#include "lsp/ContrastRepair.h"

#include "colormath/ReadableColor.h"
#include "colortext/ByteColor.h"
#include "csscolor/Contrast.h"
#include "documents/StyleBytes.h"

namespace vantorel {
namespace {

constexpr double enoughContrast = 4.5;

bool hasEnoughContrast(const HostColor& color, const HostColor& background)
{
    return contrastRatio(color, background).value_or(0) >= enoughContrast;
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

std::optional<ContrastRepair> contrastRepair(const OpenDocument& document, std::size_t place,
                                             const WrittenColors& writer)
{
    const RuleColors rule = colorsOfRule(document, place);
    if (!rule.text || !rule.background) return std::nullopt;
    const HostColor& background = rule.background->color.color;
    if (hasEnoughContrast(rule.text->color.color, background)) return std::nullopt;
    const auto readable = nearestReadableColor(
        rule.text->color.color, enoughContrast,
        [&](const HostColor& color) { return contrastRatio(color, background).value_or(0); });
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
