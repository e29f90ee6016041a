#include "documents/ColorLiterals.h"

#include "csscolor/CSSColorFunctions.h"
#include "csscolor/CSSNamedColors.h"
#include "result/Result.h"
#include "text/ASCII.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

HostColor colorOfBytes(int red, int green, int blue, int alpha)
{
    constexpr double largest = 255;
    return HostColor::colorWithCalibratedRed(red / largest, green / largest, blue / largest,
                                             alpha / largest);
}

}  // namespace

std::optional<ColorLiteral> hexLiteral(std::string_view digits)
{
    const std::size_t count = digits.size();
    if (count != 3 && count != 4 && count != 6 && count != 8) return std::nullopt;
    if (!std::ranges::all_of(digits, isHexDigit<char>)) return std::nullopt;
    const std::size_t width = count < 6 ? 1 : 2;
    std::array channels{0, 0, 0, 255};
    for (std::size_t i = 0; i * width < count; ++i) {
        const int high = hexDigitValue(digits[i * width]);
        const int low = width == 1 ? high : hexDigitValue(digits[i * width + 1]);
        channels[i] = high * 16 + low;
    }
    return ColorLiteral{colorOfBytes(channels[0], channels[1], channels[2], channels[3]),
                        CSSColorForm::hex};
}

std::optional<ColorLiteral> nameLiteral(std::string_view name)
{
    constexpr std::size_t longestName = 20;  // "lightgoldenrodyellow"
    if (name.find('\\') != std::string_view::npos) {
        auto escaped = colorLiteral(name);
        return escaped && escaped->form == CSSColorForm::named ? escaped : std::nullopt;
    }
    if (name.size() < 3 || name.size() > longestName) return std::nullopt;
    if (const auto value = cssNamedColor(name)) {
        const auto byte = [&](unsigned shift) { return static_cast<int>(*value >> shift & 0xFF); };
        return ColorLiteral{colorOfBytes(byte(16), byte(8), byte(0), 255), CSSColorForm::named};
    }
    if (equalIgnoringCase(name, std::string_view("transparent")))
        return ColorLiteral{colorOfBytes(0, 0, 0, 0), CSSColorForm::named};
    return std::nullopt;
}

std::optional<ColorLiteral> colorLiteral(std::string_view text)
{
    if (text.empty() || text.size() > longestColorLiteral) return std::nullopt;
    if (text.front() == '#') {
        if (auto hex = hexLiteral(text.substr(1))) return hex;
    }
    const Result<CSSColor> reading = readCSSColor(text);
    if (!reading || reading->form == CSSColorForm::bareHex) return std::nullopt;
    return ColorLiteral{reading->color, reading->form};
}

bool isColorFunctionName(std::string_view name)
{
    constexpr std::size_t longestName = 10;  // "light-dark"
    if (name.size() < 3 || name.size() > longestName) return false;
    const std::u16string lower = lowerCased(widened(name));
    return lower == u"color-mix" || lower == u"light-dark" ||
           cssColorFunctionNamed(lower) != nullptr;
}

}  // namespace vantorel
