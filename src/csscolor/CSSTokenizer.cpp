#include "csscolor/CSSTokenizer.h"

#include "text/ASCII.h"
#include "text/HexDigits.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

namespace vantorel {
namespace {

constexpr bool isNameStart(char16_t c)
{
    return isLetter(c) || c == u'_' || c >= 0x80;
}

using CharacterTable = std::array<bool, 0x80>;

constexpr CharacterTable charactersOfNames()
{
    CharacterTable table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto c = static_cast<char16_t>(i);
        table[i] = isNameStart(c) || isDigit(c) || c == u'-';
    }
    return table;
}

/// Which characters of ASCII can be part of a name.
constexpr CharacterTable nameCharacters = charactersOfNames();

bool isNameCharacter(char16_t c)
{
    return c >= nameCharacters.size() || nameCharacters[c];
}

bool isSign(char16_t c)
{
    return c == u'+' || c == u'-';
}

/// Returns the integer at the beginning of a text, including its sign. Huge values are limited to
/// one that is still far larger than the length of any text.
std::int64_t exponentOf(std::u16string_view text)
{
    constexpr std::int64_t farAway = 1'000'000'000'000'000;
    const bool negative = text.front() == u'-';
    if (isSign(text.front())) text.remove_prefix(1);
    std::int64_t value = 0;
    for (const char16_t c : text)
        value = std::min(value * 10 + (c - u'0'), farAway);
    return negative ? -value : value;
}

/// Returns the value of a number of few digits without an exponent, as nearly all are;
/// `std::nullopt` for others. The digits and the power of ten are both exact in double precision,
/// so their quotient is the double nearest to the number, as it is with std::from_chars.
std::optional<double> valueOfFewDigits(std::u16string_view text)
{
    // Below 2^53 with any digits.
    constexpr std::size_t mostDigits = 15;
    static constexpr std::array<double, mostDigits + 1> powersOfTen{
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const bool negative = text.front() == u'-';
    if (isSign(text.front())) text.remove_prefix(1);
    if (text.size() > mostDigits) return std::nullopt;
    std::int64_t digits = 0;
    std::size_t fraction = 0;
    bool afterPoint = false;
    for (const char16_t c : text) {
        if (isDigit(c)) {
            digits = digits * 10 + (c - u'0');
            if (afterPoint) ++fraction;
        } else if (c == u'.') {
            afterPoint = true;
        } else {
            return std::nullopt;
        }
    }
    return static_cast<double>(negative ? -digits : digits) / powersOfTen[fraction];
}

/// Returns the value of a CSS number (CSS Syntax 3, section 4.3.13). For values out of range,
/// std::from_chars does not report whether they are too large or too small, and a text may have
/// millions of digits. So it gets only the significant digits, in a form that is always in range.
double numberValue(std::u16string_view text)
{
    if (const auto value = valueOfFewDigits(text)) return *value;
    constexpr std::size_t mostDigits = 40;
    constexpr std::int64_t pastLargest = 40;
    constexpr std::int64_t pastSmallest = -300;
    std::array<char, mostDigits + 16> buffer{};
    std::size_t digits = 0;
    std::int64_t exponent = 0;
    bool afterPoint = false;
    const bool negative = text.front() == u'-';
    std::size_t place = isSign(text.front()) ? 1 : 0;
    for (; place < text.size() && (isDigit(text[place]) || text[place] == u'.'); ++place) {
        const char16_t c = text[place];
        if (c == u'.') {
            afterPoint = true;
        } else if (digits == 0 && c == u'0') {
            if (afterPoint) --exponent;
        } else if (digits < mostDigits) {
            buffer[digits++] = static_cast<char>(c);
            if (afterPoint) --exponent;
        } else if (!afterPoint) {
            ++exponent;
        }
    }
    if (digits == 0) return 0;
    if (place < text.size()) exponent += exponentOf(text.substr(place + 1));
    const std::int64_t magnitude = exponent + static_cast<std::int64_t>(digits);
    if (magnitude < pastSmallest) return 0;
    double value = largestCSSNumber;
    if (magnitude < pastLargest) {
        char* const bufferEnd = buffer.data() + buffer.size();
        char* end = buffer.data() + digits;
        *end++ = 'e';
        end = std::to_chars(end, bufferEnd, exponent).ptr;
        std::from_chars(buffer.data(), end, value);
    }
    value = std::min(value, largestCSSNumber);
    return negative ? -value : value;
}

/// Returns the kind of a token by its first character, if this cannot begin a number or a name.
std::optional<CSSTokenKind> kindOfPunctuation(char16_t c)
{
    switch (c) {
        case u'#':
            return CSSTokenKind::hash;
        case u',':
            return CSSTokenKind::comma;
        case u'/':
            return CSSTokenKind::slash;
        case u':':
            return CSSTokenKind::colon;
        case u';':
            return CSSTokenKind::semicolon;
        case u'(':
            return CSSTokenKind::openParenthesis;
        case u')':
            return CSSTokenKind::closeParenthesis;
        default:
            return std::nullopt;
    }
}

}  // namespace

bool isCSSWhiteSpace(char16_t character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r' ||
           character == u'\f';
}

void CSSTokenizer::readNext(CSSToken& token)
{
    token.number = 0;
    token.name.clear();
    const bool blanksEnd = skipBlanks();
    token.begin = _place;
    if (!blanksEnd) {
        token.kind = CSSTokenKind::unclosedComment;
        _place = _text.size();
    } else if (_place == _text.size()) {
        token.kind = CSSTokenKind::end;
    } else if (const auto kind = kindOfPunctuation(at(_place))) {
        token.kind = *kind;
        ++_place;
        if (kind == CSSTokenKind::hash) readName(token.name);
    } else if (startsNumber(_place)) {
        skipNumber();
        token.number = numberValue(_text.substr(token.begin, _place - token.begin));
        token.kind = CSSTokenKind::number;
        if (at(_place) == u'%') {
            token.kind = CSSTokenKind::percentage;
            ++_place;
        } else if (startsName(_place)) {
            token.kind = CSSTokenKind::dimension;
            readName(token.name);
        }
    } else if (startsName(_place)) {
        token.kind = CSSTokenKind::name;
        readName(token.name);
        if (at(_place) == u'(') {
            token.kind = CSSTokenKind::function;
            ++_place;
        }
    } else {
        token.kind = CSSTokenKind::other;
        ++_place;
    }
    token.end = _place;
}

bool CSSTokenizer::skipBlanks()
{
    for (;;) {
        while (isCSSWhiteSpace(at(_place)))
            ++_place;
        if (at(_place) != u'/' || at(_place + 1) != u'*') return true;
        const std::size_t close = _text.find(u"*/", _place + 2);
        if (close == std::u16string_view::npos) return false;
        _place = close + 2;
    }
}

/// Returns NUL also past the end of the text. No token contains NUL.
char16_t CSSTokenizer::at(std::size_t index) const
{
    return index < _text.size() ? _text[index] : u'\0';
}

bool CSSTokenizer::startsEscape(std::size_t index) const
{
    const char16_t escaped = at(index + 1);
    return at(index) == u'\\' && index + 1 < _text.size() && escaped != u'\n' && escaped != u'\r' &&
           escaped != u'\f';
}

bool CSSTokenizer::startsName(std::size_t index) const
{
    if (at(index) == u'-') ++index;
    return isNameStart(at(index)) || at(index) == u'-' || startsEscape(index);
}

bool CSSTokenizer::startsNumber(std::size_t index) const
{
    if (isSign(at(index))) ++index;
    if (at(index) == u'.') ++index;
    return isDigit(at(index));
}

/// `name` must be empty.
void CSSTokenizer::readName(std::u16string& name)
{
    for (;;) {
        const std::size_t begin = _place;
        while (isNameCharacter(at(_place)))
            ++_place;
        name += _text.substr(begin, _place - begin);
        if (!startsEscape(_place)) break;
        appendEscaped(name);
    }
    std::ranges::transform(name, name.begin(), lowerCase<char16_t>);
}

void CSSTokenizer::appendEscaped(std::u16string& name)
{
    constexpr std::size_t mostHexDigits = 6;
    ++_place;
    if (!isHexDigit(at(_place))) {
        name += at(_place);
        ++_place;
        return;
    }
    char32_t character = 0;
    for (std::size_t i = 0; i < mostHexDigits && isHexDigit(at(_place)); ++i) {
        character = character * 16 + hexDigitValue(at(_place));
        ++_place;
    }
    appendUtf16(name, character == 0 ? char32_t{replacementCharacter} : character);
    if (at(_place) == u'\r' && at(_place + 1) == u'\n') ++_place;
    if (isCSSWhiteSpace(at(_place))) ++_place;
}

void CSSTokenizer::skipNumber()
{
    const auto skipDigits = [this] {
        while (isDigit(at(_place)))
            ++_place;
    };
    if (isSign(at(_place))) ++_place;
    skipDigits();
    if (at(_place) == u'.' && isDigit(at(_place + 1))) {
        ++_place;
        skipDigits();
    }
    if (lowerCase(at(_place)) != u'e') return;
    const std::size_t exponent = isSign(at(_place + 1)) ? _place + 2 : _place + 1;
    if (!isDigit(at(exponent))) return;
    _place = exponent;
    skipDigits();
}

}  // namespace vantorel
