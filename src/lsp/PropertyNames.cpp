#include "lsp/PropertyNames.h"

#include "documents/StyleBytes.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

/// Returns a name of small letters, digits and hyphens.
std::string tidyName(std::string_view proposal)
{
    std::string name;
    for (const char c : proposal) {
        if (isLetterOrDigit(c)) {
            name += lowerCase(c);
        } else if (!name.empty() && name.back() != '-') {
            name += '-';
        }
    }
    while (!name.empty() && name.back() == '-')
        name.pop_back();
    return "--" + (name.empty() ? "color" : name);
}

bool isInText(std::string_view text, std::string_view name)
{
    for (std::size_t place = text.find(name); place != std::string_view::npos;
         place = text.find(name, place + 1)) {
        const std::size_t end = place + name.size();
        if (end == text.size() || !isStyleNameByte(text[end])) return true;
    }
    return false;
}

/// Returns a name that is not in the text; `std::nullopt` if many similar ones are.
std::optional<std::string> newName(std::string_view text, std::string_view proposal)
{
    const std::string first = tidyName(proposal);
    if (!isInText(text, first)) return first;
    constexpr int mostNames = 100;
    for (int number = 2; number < mostNames; ++number) {
        std::string name = first + "-" + std::to_string(number);
        if (!isInText(text, name)) return name;
    }
    return std::nullopt;
}

bool isValueOfVariable(const OpenDocument& document, const OpenDocument::Found& color)
{
    if (color.color.declaration == notInDocument) return false;
    const ColorDocument::Place where = document.colors().partAt(color.range.begin);
    const DocumentDeclaration& declaration = where.part->declarations[color.color.declaration];
    const char first = document.text()[where.begin + declaration.name.begin];
    const bool isCustom =
        document.text().compare(where.begin + declaration.name.begin, 2, "--") == 0;
    return isCustom || first == '$' || first == '@';
}

/// Returns the place after the "{" of the first `:root` rule.
std::optional<std::size_t> placeInRoot(std::string_view text)
{
    for (std::size_t place = text.find(":root"); place != std::string_view::npos;
         place = text.find(":root", place + 1)) {
        std::size_t brace = place + 5;
        while (brace < text.size() && isStyleBlank(text[brace]))
            ++brace;
        if (brace < text.size() && text[brace] == '{') return brace + 1;
    }
    return std::nullopt;
}

std::size_t afterBlanks(std::string_view text, std::size_t place)
{
    for (;;) {
        while (place < text.size() && isStyleBlank(text[place]))
            ++place;
        const std::string_view start = text.substr(place, 2);
        if (start != "/*" && start != "//") return place;
        const std::size_t end = start == "/*" ? text.find("*/", place + 2) : text.find('\n', place);
        if (end == std::string_view::npos) return text.size();
        place = end + (start == "/*" ? 2 : 1);
    }
}

/// Returns the place of the first rule: after `@charset`, `@import` and others that must be first.
std::size_t placeOfRules(std::string_view text)
{
    constexpr std::array<std::string_view, 5> firstRules{"@charset", "@import", "@use", "@forward",
                                                         "@layer"};
    std::size_t end = 0;
    for (;;) {
        const std::string_view rest = text.substr(afterBlanks(text, end));
        const bool isFirst = std::ranges::any_of(
            firstRules, [&](std::string_view rule) { return rest.starts_with(rule); });
        const std::size_t stop = rest.find_first_of(";{");
        if (!isFirst || stop == std::string_view::npos || rest[stop] == '{') break;
        end = text.size() - rest.size() + stop + 1;
    }
    if (end == 0) return 0;
    const std::size_t lineFeed = text.find('\n', end);
    return lineFeed == std::string_view::npos ? text.size() : lineFeed + 1;
}

}  // namespace

std::optional<NamedProperty> namedProperty(const OpenDocument& document,
                                           const OpenDocument::Found& color,
                                           std::string_view proposal)
{
    if (!isStyleSheet(document.language()) || color.color.usesVariables ||
        isValueOfVariable(document, color)) {
        return std::nullopt;
    }
    const std::string_view text = document.text();
    auto name = newName(text, proposal);
    if (!name) return std::nullopt;
    NamedProperty property;
    property.name = *std::move(name);
    const std::string definition = property.name + ": " + std::string(color.range.in(text)) + ";";
    if (const auto place = placeInRoot(text)) {
        property.place = *place;
        property.declaration = "\n  " + definition;
    } else {
        property.place = placeOfRules(text);
        property.declaration = ":root {\n  " + definition + "\n}\n\n";
    }
    return property;
}

}  // namespace vantorel
