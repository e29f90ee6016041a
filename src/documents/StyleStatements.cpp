#include "documents/ColorLiterals.h"
#include "documents/StyleBytes.h"
#include "documents/StyleScanner.h"

#include <algorithm>
#include <array>

/// The end of a statement, when it is known what it was.
namespace vantorel {
namespace {

/// Rules with an expression.
constexpr std::array<std::string_view, 9> expressionRules{
    "@return", "@if", "@else", "@each", "@while", "@for", "@debug", "@warn", "@error"};
/// Rules with a name and arguments.
constexpr std::array<std::string_view, 7> argumentRules{
    "@include", "@mixin", "@function", "@use", "@forward", "@supports", "@container"};

/// Properties whose values are words of the author, which may be called like a colour.
constexpr std::array<std::string_view, 27> wordProperties{
    "anchor-name",
    "animation",
    "animation-name",
    "composes",
    "container",
    "container-name",
    "content",
    "counter-increment",
    "counter-reset",
    "counter-set",
    "font",
    "font-family",
    "font-feature-settings",
    "font-palette",
    "grid",
    "grid-area",
    "grid-column",
    "grid-row",
    "grid-template",
    "grid-template-areas",
    "grid-template-columns",
    "grid-template-rows",
    "page",
    "position-anchor",
    "transition-property",
    "view-transition-name",
    "will-change",
};

std::string_view withoutVendor(std::string_view property)
{
    if (property.size() < 2 || property[0] != '-' || property[1] == '-') return property;
    const std::size_t end = property.find('-', 1);
    return end == std::string_view::npos ? property : property.substr(end + 1);
}

bool hasWordsAsValue(std::string_view property)
{
    const std::string_view name = withoutVendor(property);
    return std::ranges::any_of(wordProperties,
                               [&](std::string_view each) { return equalsLowerCase(name, each); });
}

TextRange withoutBlanks(std::string_view text, TextRange range)
{
    while (range.begin < range.end && isStyleBlank(text[range.begin]))
        ++range.begin;
    while (range.begin < range.end && isStyleBlank(text[range.end - 1]))
        --range.end;
    return range;
}

bool startsProperty(char c)
{
    return isStyleNameByte(c) || c == '$' || c == '@' || c == '*';
}

}  // namespace

/// `end` is the byte that ends the statement, or NUL.
void StyleScanner::endStatement(char end)
{
    if (_start != none) {
        const Kept kept = keptCandidates(end);
        if (kept == Kept::inValue) {
            const TextRange name = nameOfDeclaration();
            const char first = _text[name.begin];
            const bool isVariable =
                first == '$' || first == '@' || _text.substr(name.begin, 2) == "--";
            const std::size_t valueEnd = std::max(std::min(_flag, _place), _colon + 1);
            const TextRange value = withoutBlanks(_text, {_colon + 1, valueEnd});
            const auto declaration = static_cast<std::uint32_t>(_part.declarations.size());
            const std::size_t before = _part.colors.size();
            keepCandidates(kept, declaration);
            if (isVariable) _part.definitions.push_back({declaration, _isDefault});
            if (isVariable || _part.colors.size() > before)
                _part.declarations.push_back({name, value, _blocks.current()});
        } else {
            keepCandidates(kept, notInDocument);
        }
    }
    if (end == '{') _blocks.open(_place + 1);
    if (end == '}') _blocks.close(_place);
    _start = none;
    _colon = none;
    _flag = none;
    _isDefault = false;
    _candidates.clear();
    _brackets.clear();
}

StyleScanner::Kept StyleScanner::keptCandidates(char end) const
{
    const char first = _text[_start];
    if (first == '@' && (_colon == none || _language != DocumentLanguage::less)) {
        std::size_t nameEnd = _start + 1;
        while (nameEnd < _place && isStyleNameByte(_text[nameEnd]))
            ++nameEnd;
        const std::string_view name = _text.substr(_start, nameEnd - _start);
        const auto isName = [&](std::string_view each) { return equalsLowerCase(name, each); };
        if (std::ranges::any_of(expressionRules, isName)) return Kept::all;
        return std::ranges::any_of(argumentRules, isName) ? Kept::inBrackets : Kept::none;
    }
    if (end == '{') return Kept::none;
    if (_colon != none && (startsProperty(first) || _text.substr(_start, 2) == "#{")) {
        const TextRange name = nameOfDeclaration();
        return hasWordsAsValue(name.in(_text)) ? Kept::none : Kept::inValue;
    }
    const bool isMixin = _language == DocumentLanguage::less && (first == '.' || first == '#');
    return isMixin ? Kept::inBrackets : Kept::none;
}

TextRange StyleScanner::nameOfDeclaration() const
{
    return withoutBlanks(_text, {_start, std::max(_start + 1, _colon)});
}

void StyleScanner::keepCandidates(Kept kept, std::uint32_t declaration)
{
    if (kept == Kept::none) return;
    for (const Candidate& candidate : _candidates) {
        const bool isKept =
            candidate.end != 0 &&
            (kept == Kept::all || (kept == Kept::inBrackets && candidate.isInBrackets) ||
             (kept == Kept::inValue && candidate.begin > _colon));
        if (isKept) keep(candidate, declaration);
    }
}

void StyleScanner::keep(const Candidate& candidate, std::uint32_t declaration)
{
    DocumentColor color;
    color.range = {candidate.begin, candidate.end};
    color.block = _blocks.current();
    color.declaration = declaration;
    const std::string_view written = color.range.in(_text);
    const bool isVariable = candidate.kind == Kind::variable;
    if (isVariable || candidate.usesVariables) {
        color.form = isVariable ? WrittenForm::variable : WrittenForm::css;
        color.color = HostColor::patternColor();
        color.usesVariables = true;
        if (color.range.length() > longestColorLiteral) return;
        _part.usesVariables = true;
    } else {
        const auto literal = candidate.kind == Kind::hash   ? hexLiteral(written.substr(1))
                             : candidate.kind == Kind::name ? nameLiteral(written)
                                                            : colorLiteral(written);
        if (!literal) return;
        color.color = literal->color;
        color.cssForm = literal->form;
    }
    _part.colors.push_back(color);
}

}  // namespace vantorel
