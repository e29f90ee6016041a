#include "documents/StyleScanner.h"

#include "documents/CodeSyntax.h"
#include "documents/ColorLiterals.h"
#include "documents/StyleBytes.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

/// Functions whose arguments are words and strings.
bool hasWordsAsArguments(std::string_view function)
{
    constexpr std::array<std::string_view, 8> functions{
        "attr", "counter", "counters", "env", "format", "local", "selector", "target-counter"};
    return std::ranges::any_of(
        functions, [&](std::string_view each) { return equalsLowerCase(function, each); });
}

bool startsAddress(std::string_view function)
{
    return equalsLowerCase(function, "url") || equalsLowerCase(function, "url-prefix") ||
           equalsLowerCase(function, "domain");
}

}  // namespace

std::size_t StyleScanner::scanRules(std::size_t begin, std::size_t end, std::size_t leastEnd)
{
    _place = begin;
    _end = end;
    scanStatements(leastEnd);
    return _place;
}

void StyleScanner::scanDeclarations(TextRange range)
{
    _place = range.begin;
    _end = range.end;
    _blocks.open(at(_place) == '{' ? _place + 1 : _place);
    scanStatements(_end);
}

void StyleScanner::scanValue(TextRange name, TextRange value)
{
    _place = value.begin;
    _end = value.end;
    _start = none;
    while (_place < _end)
        scanOne();
    const auto declaration = static_cast<std::uint32_t>(_part.declarations.size());
    const std::size_t before = _part.colors.size();
    keepCandidates(Kept::all, declaration);
    if (_part.colors.size() > before) _part.declarations.push_back({name, value, notInDocument});
    _brackets.clear();
    _candidates.clear();
}

void StyleScanner::scanStatements(std::size_t leastEnd)
{
    while (_place < _end) {
        const char c = _text[_place];
        if (c == '}' && _brackets.closeInterpolation()) {
            ++_place;
        } else if (c == ';' || c == '{' || c == '}') {
            endStatement(c);
            ++_place;
            if (_place >= leastEnd && _blocks.isEmpty()) return;
        } else {
            scanOne();
        }
    }
    endStatement('\0');
    _blocks.closeAll(_place);
}

bool StyleScanner::startsLineComment() const
{
    return at(_place + 1) == '/' && _language != DocumentLanguage::css;
}

/// Skips or reads one token, which may be a single byte. Always moves the place.
void StyleScanner::scanOne()
{
    const char c = _text[_place];
    if (isStyleBlank(c)) {
        ++_place;
        return;
    }
    if (c == '/' && (at(_place + 1) == '*' || startsLineComment())) {
        skipComment();
        return;
    }
    if (_start == none) _start = _place;
    switch (c) {
        case '"':
        case '\'':
            skipString();
            return;
        case '(':
        case '[':
            _brackets.open({c, _brackets.areNamesHidden(), false, notInDocument});
            ++_place;
            return;
        case ')':
        case ']':
            ++_place;
            closeBracket();
            return;
        case ':':
            if (_brackets.isEmpty() && _colon == none) _colon = _place;
            ++_place;
            return;
        case '!':
            if (_brackets.isEmpty() && _flag == none) _flag = _place;
            ++_place;
            if (_text.substr(_place, 7) == "default") _isDefault = true;
            while (isStyleNameByte(at(_place)))
                ++_place;
            return;
        case '#':
            readHash();
            return;
        case '$':
        case '@':
            readVariable();
            return;
        case '.':
        case '%':
        case '&':
            // A number, or a class, a member, a placeholder or a part of a selector.
            ++_place;
            if (at(_place) == '$') ++_place;
            while (isStyleNameByte(at(_place)))
                ++_place;
            return;
        default:
            break;
    }
    const bool isSignedNumber =
        (c == '-' || c == '+') && (isDigit(at(_place + 1)) || at(_place + 1) == '.');
    if (isDigit(c) || isSignedNumber) {
        readNumber();
    } else if (isStyleNameByte(c)) {
        readName();
    } else {
        ++_place;
    }
}

void StyleScanner::skipComment()
{
    if (_text[_place + 1] == '*') {
        const std::size_t close = _text.substr(0, _end).find("*/", _place + 2);
        _place = close == std::string_view::npos ? _end : close + 2;
    } else {
        _place = std::min(_text.find('\n', _place), _end);
    }
}

/// A string ends with its line if it is not closed.
void StyleScanner::skipString()
{
    const char quote = _text[_place++];
    while (_place < _end) {
        const char c = _text[_place++];
        if (c == quote || c == '\n') return;
        if (c == '\\') ++_place;
    }
    _place = _end;
}

/// Skips an address without quotation marks and its ")". The place is after the "(".
void StyleScanner::skipAddress()
{
    while (_place < _end) {
        const char c = _text[_place++];
        if (c == ')' || c == '\n') return;
        if (c == '\\') ++_place;
    }
    _place = _end;
}

void StyleScanner::readNumber()
{
    ++_place;
    while (isStyleNameByte(at(_place)) || at(_place) == '.' || at(_place) == '%')
        ++_place;
}

void StyleScanner::readName()
{
    const std::size_t begin = _place;
    while (isStyleNameByte(at(_place))) {
        // The byte after a "\" belongs to the name whatever it is.
        if (_text[_place] == '\\' && _place + 1 < _end) ++_place;
        ++_place;
    }
    if (at(_place) == '(') {
        readFunction(begin);
        return;
    }
    const char next = at(_place + 1);
    if (at(_place) == '.' && (isLetter(next) || next == '$')) return;  // A module of SCSS.
    if (_brackets.areNamesHidden()) return;
    if (begin > 0 && (_text[begin - 1] == '}' || at(_place) == '#')) return;  // Part of a name.
    if (!_brackets.isEmpty() && isFollowedByColon()) return;
    addCandidate(begin, Kind::name, false);
}

void StyleScanner::readFunction(std::size_t begin)
{
    const std::string_view name = _text.substr(begin, _place - begin);
    ++_place;
    if (startsAddress(name)) {
        while (isStyleBlank(at(_place)))
            ++_place;
        if (at(_place) != '"' && at(_place) != '\'') {
            skipAddress();
            return;
        }
    }
    StyleBrackets::Bracket bracket{'(', _brackets.areNamesHidden() || hasWordsAsArguments(name),
                                   false, notInDocument};
    const bool isVariable = equalsLowerCase(name, "var");
    const bool isOfCSS = begin == 0 || (_text[begin - 1] != '.' && _text[begin - 1] != '}');
    if (isOfCSS && !_brackets.isFull() && (isVariable || isColorFunctionName(name))) {
        bracket.candidate = static_cast<std::uint32_t>(_candidates.size());
        bracket.usesVariables = isVariable;
        addCandidate(begin, isVariable ? Kind::variable : Kind::function, false);
        _candidates.back().end = 0;
    }
    _brackets.open(bracket);
}

void StyleScanner::readHash()
{
    const std::size_t begin = _place++;
    if (at(_place) == '{') {
        ++_place;
        _brackets.open({'{', false, true, notInDocument});
        return;
    }
    bool isHex = true;
    while (isStyleNameByte(at(_place))) {
        isHex = isHex && isHexDigit(_text[_place]);
        ++_place;
    }
    const std::size_t digits = _place - begin - 1;
    if (isHex && digits >= 3 && digits <= 8) addCandidate(begin, Kind::hash, false);
}

/// Reads "$name" and "@name", or an interpolation.
void StyleScanner::readVariable()
{
    const std::size_t begin = _place++;
    const char sign = _text[begin];
    if (at(_place) == '{') {
        ++_place;
        if (sign == '$') {
            _place = endOfTemplateHole(_text, _place, _end);
        } else {
            _place = std::min(_text.find_first_of("};\n", _place), _end);
            if (at(_place) == '}') ++_place;
        }
        _brackets.addVariable();
        return;
    }
    while (isStyleNameByte(at(_place)))
        ++_place;
    const auto language = sign == '$' ? DocumentLanguage::scss : DocumentLanguage::less;
    const bool isVariable = _language == language && _place > begin + 1 && begin != _start;
    if (!isVariable || isFollowedByColon()) return;
    _brackets.addVariable();
    if (!_brackets.areNamesHidden()) addCandidate(begin, Kind::variable, true);
}

void StyleScanner::addCandidate(std::size_t begin, Kind kind, bool usesVariables)
{
    _candidates.push_back({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(_place),
                           kind, !_brackets.isEmpty(), usesVariables});
}

bool StyleScanner::isFollowedByColon() const
{
    std::size_t place = _place;
    while (isStyleBlank(at(place)))
        ++place;
    return at(place) == ':';
}

void StyleScanner::closeBracket()
{
    const auto bracket = _brackets.close();
    if (!bracket || bracket->candidate == notInDocument) return;
    Candidate& function = _candidates[bracket->candidate];
    function.end = static_cast<std::uint32_t>(_place);
    function.usesVariables = bracket->usesVariables;
}

}  // namespace vantorel
