#include "text/Decimals.h"

#include <algorithm>
#include <limits>

namespace vantorel {

std::string fixedText(double number, int decimals)
{
    // Numbers have far fewer digits than bits, so there is room for a sign, the decimal point and
    // the decimals.
    std::array<char, std::numeric_limits<double>::max_exponent> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                            std::chars_format::fixed, std::clamp(decimals, 0, 100));
    return {buffer.data(), end};
}

std::string shortFixedText(double number, int mostDecimals)
{
    std::string text = fixedText(number, mostDecimals);
    if (text.find('.') != std::string::npos) {
        text.resize(text.find_last_not_of('0') + 1);
        if (text.back() == '.') text.pop_back();
    }
    return text == "-0" ? "0" : text;
}

std::optional<std::size_t> nameNumber(std::u16string_view digits)
{
    constexpr std::size_t mostDigits = 9;
    if (digits.empty() || digits.size() > mostDigits || digits.front() == u'0') return std::nullopt;
    std::size_t number = 0;
    for (const char16_t c : digits) {
        if (!isDigit(c)) return std::nullopt;
        number = number * 10 + (c - u'0');
    }
    return number;
}

}  // namespace vantorel
