#include "documents/VariableResolver.h"

#include "documents/StyleBytes.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr int deepest = 24;

/// Returns the end of a name that begins at `place`.
std::size_t endOfName(std::string_view text, std::size_t place, std::size_t end)
{
    while (place < end && isStyleNameByte(text[place]))
        ++place;
    return place;
}

std::size_t skipBlanks(std::string_view text, std::size_t place, std::size_t end)
{
    while (place < end && isStyleBlank(text[place]))
        ++place;
    return place;
}

/// Returns the place of the ")" that closes a parenthesis, or `end`. `place` is after the "(".
std::size_t closingParenthesis(std::string_view text, std::size_t place, std::size_t end)
{
    std::size_t depth = 1;
    for (; place < end; ++place) {
        if (text[place] == '(') ++depth;
        if (text[place] == ')' && --depth == 0) return place;
    }
    return end;
}

bool isVarFunction(std::string_view text, std::size_t place, std::size_t end)
{
    return place + 4 <= end && equalsLowerCase(text.substr(place, 4), "var(") &&
           (place == 0 || !isStyleNameByte(text[place - 1]));
}

}  // namespace

std::size_t VariableResolver::KeyHash::operator()(const Key& key) const
{
    const std::uint64_t scope = std::uint64_t{key.scope.part} << 32 | key.scope.block;
    return std::hash<std::string_view>{}(key.name) ^
           static_cast<std::size_t>(scope * 0x9E3779B97F4A7C15U);
}

VariableResolver::VariableResolver(std::string_view text, const std::vector<PlacedPart>& parts)
    : _text(text), _parts(parts)
{
    for (std::size_t i = 0; i < parts.size(); ++i)
        addDefinitions(static_cast<std::uint32_t>(i), parts[i]);
}

void VariableResolver::addDefinitions(std::uint32_t index, const PlacedPart& placed)
{
    for (const auto& definition : placed.part->definitions) {
        const DocumentDeclaration& declaration = placed.part->declarations[definition.declaration];
        const Scope scope =
            declaration.block == notInDocument ? Scope{} : Scope{index, declaration.block};
        const std::string_view name =
            _text.substr(placed.begin + declaration.name.begin, declaration.name.length());
        auto& ofName = _byScope[{scope, name}];
        if (definition.isDefault && !ofName.empty()) continue;
        const std::size_t number = _definitions.size();
        ofName.push_back(number);
        _first.try_emplace(name, number);
        _definitions.push_back(
            {placed.begin + declaration.name.begin,
             {placed.begin + declaration.value.begin, placed.begin + declaration.value.end},
             scope});
    }
}

VariableResolver::Scope VariableResolver::scopeAround(Scope scope) const
{
    const std::uint32_t parent = _parts[scope.part].part->blocks[scope.block].parent;
    return parent == notInDocument ? Scope{} : Scope{scope.part, parent};
}

VariableResolver::Definition* VariableResolver::find(std::string_view name, Scope scope,
                                                     std::size_t place)
{
    const bool isScss = name.starts_with('$');
    for (;; scope = scopeAround(scope)) {
        const auto found = _byScope.find({scope, name});
        if (found != _byScope.end()) {
            const auto& numbers = found->second;
            if (!isScss) return &_definitions[numbers.back()];
            const auto after = std::ranges::lower_bound(
                numbers, place, {}, [this](std::size_t i) { return _definitions[i].place; });
            if (after != numbers.begin()) return &_definitions[*std::prev(after)];
            if (scope == Scope{}) return &_definitions[numbers.front()];
        }
        if (scope == Scope{}) break;
    }
    if (!name.starts_with("--")) return nullptr;
    const auto first = _first.find(name);
    return first == _first.end() ? nullptr : &_definitions[first->second];
}

std::optional<ColorLiteral> VariableResolver::resolve(std::size_t part, const DocumentColor& color)
{
    const std::size_t begin = _parts[part].begin;
    const TextRange range{begin + color.range.begin, begin + color.range.end};
    const Scope scope = color.block == notInDocument
                            ? Scope{}
                            : Scope{static_cast<std::uint32_t>(part), color.block};
    const std::string_view text = range.in(_text);
    if (text.front() == '$' || text.front() == '@') {
        Definition* const definition = find(text, scope, range.begin);
        return definition == nullptr ? std::nullopt : colorOf(*definition);
    }
    if (color.form == WrittenForm::variable) {
        const std::size_t nameBegin = skipBlanks(_text, range.begin + 4, range.end);
        const std::size_t nameEnd = endOfName(_text, nameBegin, range.end);
        Definition* const definition =
            find(_text.substr(nameBegin, nameEnd - nameBegin), scope, range.begin);
        if (definition != nullptr) {
            if (auto known = colorOf(*definition)) return known;
        }
    }
    return colorOf(range, scope);
}

std::optional<ColorLiteral> VariableResolver::colorOf(Definition& definition)
{
    if (!definition.isResolved) {
        definition.isResolved = true;
        definition.color = colorOf(definition.value, definition.scope);
    }
    return definition.color;
}

std::optional<ColorLiteral> VariableResolver::colorOf(TextRange range, Scope scope)
{
    if (range.length() > longestColorLiteral) return std::nullopt;
    const std::string_view text = range.in(_text);
    if (text.find_first_of("$@(") == std::string_view::npos) return colorLiteral(text);
    Expansion expansion;
    if (!expand(expansion, range, scope, 0)) return std::nullopt;
    return colorLiteral(expansion.text);
}

bool VariableResolver::append(Expansion& expansion, std::string_view text) const
{
    if (expansion.text.size() + text.size() > longestColorLiteral) return false;
    expansion.text += text;
    return true;
}

/// Appends a text in which the values of variables replace their names. Returns false if one has no
/// value, or if the text becomes too long.
bool VariableResolver::expand(Expansion& expansion, TextRange range, Scope scope, int depth)
{
    if (depth > deepest || --expansion.budget < 0) return false;
    std::size_t copied = range.begin;
    std::size_t place = range.begin;
    const auto copy = [&] { return append(expansion, _text.substr(copied, place - copied)); };
    while (place < range.end) {
        const char c = _text[place];
        if ((c == '$' || c == '@') && place + 1 < range.end && isStyleNameByte(_text[place + 1])) {
            if (!copy()) return false;
            const std::size_t end = endOfName(_text, place + 1, range.end);
            if (!expandVariable(expansion, {place, end}, scope, depth)) return false;
            copied = place = end;
        } else if (isVarFunction(_text, place, range.end)) {
            if (!copy()) return false;
            const std::size_t end = closingParenthesis(_text, place + 4, range.end);
            if (!expandVar(expansion, {place + 4, end}, scope, depth)) return false;
            copied = place = std::min(end + 1, range.end);
        } else if ((c == '#' && _text.substr(place, 2) == "#{") || c == '}') {
            // The braces of an interpolation are left out.
            if (!copy()) return false;
            place += c == '#' ? 2 : 1;
            copied = place;
        } else {
            ++place;
        }
    }
    return copy();
}

bool VariableResolver::expandVariable(Expansion& expansion, TextRange name, Scope scope, int depth)
{
    const Definition* const definition = find(name.in(_text), scope, name.begin);
    return definition != nullptr &&
           expand(expansion, definition->value, definition->scope, depth + 1);
}

/// Appends the value of `var(ARGUMENTS)`. If there is none, appends the fallback.
bool VariableResolver::expandVar(Expansion& expansion, TextRange arguments, Scope scope, int depth)
{
    const std::size_t nameBegin = skipBlanks(_text, arguments.begin, arguments.end);
    const std::size_t nameEnd = endOfName(_text, nameBegin, arguments.end);
    const std::string_view name = _text.substr(nameBegin, nameEnd - nameBegin);
    const std::size_t length = expansion.text.size();
    if (const Definition* const definition = find(name, scope, nameBegin)) {
        if (expand(expansion, definition->value, definition->scope, depth + 1)) return true;
        expansion.text.resize(length);
    }
    const std::size_t comma = skipBlanks(_text, nameEnd, arguments.end);
    if (comma >= arguments.end || _text[comma] != ',') return false;
    const std::size_t fallback = skipBlanks(_text, comma + 1, arguments.end);
    return expand(expansion, {fallback, arguments.end}, scope, depth + 1);
}

}  // namespace vantorel
