#include "colortext/ColorInCode.h"

#include "text/ASCII.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace vantorel {
namespace {

constexpr double largestByte = 255;

struct Number {
    double value = 0;
    bool isFraction = false;
    /// 0 for decimals.
    std::size_t hexDigits = 0;
};

/// Reads the numbers of a line. Words, such as names, casts and types, are skipped.
class NumberReader {
public:
    explicit NumberReader(std::u16string_view line) : _rest(line) {}

    /// Returns `std::nullopt` if the line does more with its numbers than to list or divide them.
    std::optional<std::vector<Number>> read()
    {
        while (!_rest.empty()) {
            const char16_t c = _rest.front();
            if (isDigit(c)) {
                if (!add(number())) return std::nullopt;
            } else if (isLetter(c) || c == u'_') {
                skipWhile([](char16_t next) { return isLetterOrDigit(next) || next == u'_'; });
            } else {
                constexpr std::u16string_view known = u" \t,;:=.@()[]{}";
                if (c == u'/') {
                    _divides = true;
                } else if (known.find(c) == std::u16string_view::npos) {
                    return std::nullopt;
                }
                _rest.remove_prefix(1);
            }
        }
        return _numbers;
    }

private:
    template <class Test>
    std::u16string_view skipWhile(const Test& test)
    {
        const auto end = std::find_if_not(_rest.begin(), _rest.end(), test);
        const auto skipped = _rest.substr(0, static_cast<std::size_t>(end - _rest.begin()));
        _rest.remove_prefix(skipped.size());
        return skipped;
    }

    Number number()
    {
        Number number;
        if (_rest.starts_with(u"0x") || _rest.starts_with(u"0X")) {
            _rest.remove_prefix(2);
            const auto digits = skipWhile(isHexDigit<char16_t>);
            number.hexDigits = digits.size();
            for (const char16_t digit : digits)
                number.value = number.value * 16 + hexDigitValue(digit);
            return number;
        }
        for (const char16_t digit : skipWhile(isDigit<char16_t>))
            number.value = number.value * 10 + (digit - u'0');
        if (_rest.starts_with(u'.')) {
            _rest.remove_prefix(1);
            number.isFraction = true;
            double unit = 1;
            for (const char16_t digit : skipWhile(isDigit<char16_t>))
                number.value += (digit - u'0') * (unit /= 10);
        }
        if (_rest.starts_with(u'f')) _rest.remove_prefix(1);
        return number;
    }

    bool add(const Number& number)
    {
        constexpr std::size_t most = 4;
        if (!std::exchange(_divides, false)) {
            _numbers.push_back(number);
            return _numbers.size() <= most;
        }
        if (_numbers.empty() || number.value <= 0) return false;
        Number& dividend = _numbers.back();
        dividend = {dividend.value / number.value, true};
        return true;
    }

    std::u16string_view _rest;
    std::vector<Number> _numbers;
    bool _divides = false;
};

/// Returns a channel as a fraction, or `std::nullopt` if it is too large.
std::optional<double> fractionOf(const Number& number)
{
    const double fraction = number.isFraction ? number.value : number.value / largestByte;
    return fraction <= 1 ? std::optional(fraction) : std::nullopt;
}

std::optional<HostColor> colorOfOneNumber(const Number& number)
{
    if (number.hexDigits != 6 && number.hexDigits != 8) return std::nullopt;
    const auto bits = static_cast<std::uint32_t>(number.value);
    const auto channel = [bits](int shift) { return (bits >> shift & 0xFFU) / largestByte; };
    return HostColor::colorWithCalibratedRed(channel(16), channel(8), channel(0),
                                             number.hexDigits == 8 ? channel(24) : 1);
}

}  // namespace

CSSColor cssColorOf(const HostColor& color)
{
    CSSColor result;
    result.color = color;
    result.value = cssValueOf(color);
    return result;
}

std::optional<HostColor> colorInCode(std::u16string_view line)
{
    if (line.find_first_of(u"([{") == std::u16string_view::npos) return std::nullopt;
    const auto numbers = NumberReader(line).read();
    if (!numbers) return std::nullopt;
    if (numbers->size() == 1) return colorOfOneNumber(numbers->front());
    if (numbers->size() < 3) return std::nullopt;
    std::vector<double> channels;
    for (const Number& number : *numbers) {
        const auto fraction = fractionOf(number);
        if (!fraction) return std::nullopt;
        channels.push_back(*fraction);
    }
    return HostColor::colorWithCalibratedRed(channels[0], channels[1], channels[2],
                                             channels.size() == 4 ? channels[3] : 1);
}

std::u16string_view declaredValue(std::u16string_view text)
{
    const std::size_t start = text.find_first_not_of(u" \t\r\n");
    const std::size_t colon = text.find(u':');
    if (start == std::u16string_view::npos || colon == std::u16string_view::npos ||
        colon == start) {
        return text;
    }
    const auto name = text.substr(start, colon - start);
    const bool isName = std::all_of(name.begin(), name.end(), [](char16_t c) {
        return isLetterOrDigit(c) ||
               std::u16string_view(u"_-$@ ").find(c) != std::u16string_view::npos;
    });
    return isName ? text.substr(colon + 1) : text;
}

std::optional<HostColor> colorInSnippets(std::u16string_view text, const SnippetReaders& snippets)
{
    if (const auto line = snippets.matchOf(text)) return line->color;
    if (startsCSSColorFunction(text)) return std::nullopt;
    std::optional<HostColor> color;
    for (const SnippetMatch& match : snippets.matchesIn(text)) {
        if (color && *color != match.color) return std::nullopt;
        color = match.color;
    }
    return color;
}

const SnippetReaders& builtInSnippetReaders()
{
    static const SnippetReaders readers(QTXCodeSnippet::buildDefaultCodeSnippets());
    return readers;
}

Result<CSSColor> colorInText(std::u16string_view text, const SnippetReaders& snippets)
{
    Result<CSSColor> css = readCSSColor(text);
    if (css) return css;
    if (auto declared = readCSSColor(declaredValue(text))) return declared;
    if (const auto color = colorInSnippets(text, snippets)) return cssColorOf(*color);
    if (const auto color = colorInCode(text)) return cssColorOf(*color);
    return css.error();
}

}  // namespace vantorel
