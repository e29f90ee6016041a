#include "csscolor/CSSColorReader.h"

#include "csscolor/CSSCalculation.h"
#include "csscolor/CSSColorFunctions.h"
#include "csscolor/CSSColorReading.h"
#include "csscolor/CSSNamedColors.h"
#include "csscolor/GamutMapping.h"
#include "csscolor/Surroundings.h"
#include "result/HarmlessLine.h"
#include "text/HexDigits.h"
#include "text/Unicode.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

CSSColorReading readingOf(const ColorTriple& srgb, double alpha, CSSColorForm form)
{
    CSSColorReading reading;
    reading.value.components = srgb;
    reading.value.alpha = alpha;
    reading.form = form;
    return reading;
}

std::optional<CSSColorReading> readDigits(CSSParser& parser, std::u16string_view digits)
{
    const auto wrong = std::ranges::find_if(digits, [](char16_t c) { return !isHexDigit(c); });
    if (wrong != digits.end()) {
        const auto index = static_cast<std::size_t>(wrong - digits.begin());
        const std::size_t width = (*wrong & 0xFC00) == 0xD800 ? 2 : 1;
        return parser.fail(
            phrase("\"%1\" is not a hex digit", excerpt(digits.substr(index, width), width)),
            phrase("use digits 0 to 9 and letters a to f after the \"#\""));
    }
    const std::size_t count = digits.size();
    if (count != 3 && count != 4 && count != 6 && count != 8) {
        return parser.fail(
            phrase("A hex colour has 3, 4, 6 or 8 digits after the \"#\", not %1", count));
    }
    const bool isShort = count < 6;
    const auto channel = [&](std::size_t index) {
        const std::size_t width = isShort ? 1 : 2;
        if ((index + 1) * width > count) return 1.0;
        const int high = hexDigitValue(digits[index * width]);
        const int low = isShort ? high : hexDigitValue(digits[index * width + 1]);
        return (high * 16 + low) / 255.0;
    };
    return readingOf({channel(0), channel(1), channel(2)}, channel(3), CSSColorForm::hex);
}

/// Reads a hex code without "#". Tried before all other forms, because CSS would take some codes
/// for numbers, such as "1e3". Returns `std::nullopt` without an error if the text has another
/// form.
std::optional<CSSColorReading> readBareHex(CSSParser& parser)
{
    CSSTokenizer& tokens = parser.tokens();
    const std::u16string_view text = parser.text();
    if (!tokens.skipBlanks()) return std::nullopt;
    const std::size_t begin = tokens.place();
    std::size_t end = begin;
    while (end < text.size() && isHexDigit(text[end]))
        ++end;
    const std::u16string_view digits = text.substr(begin, end - begin);
    const std::u16string_view rest = text.substr(end, 2);
    const bool alone = rest.empty() || isCSSWhiteSpace(rest[0]) || rest[0] == u';' || rest == u"/*";
    if (!alone) return std::nullopt;
    if (digits.size() != 3 && digits.size() != 6) {
        const bool hasNumber = digits.find_first_of(u"0123456789") != std::u16string_view::npos;
        if (hasNumber) {
            parser.fail(
                phrase("A hex colour without \"#\" has 3 or 6 digits, not %1", digits.size()));
        }
        return std::nullopt;
    }
    tokens.moveTo(end);
    parser.advance();
    auto reading = readDigits(parser, digits);
    if (reading) reading->form = CSSColorForm::bareHex;
    return reading;
}

std::optional<CSSColorReading> readName(CSSParser& parser)
{
    const std::u16string name = parser.token().name;
    if (const auto value = cssNamedColor(name)) {
        parser.advance();
        const auto channel = [&](unsigned shift) { return ((*value >> shift) & 0xFF) / 255.0; };
        return readingOf({channel(16), channel(8), channel(0)}, 1, CSSColorForm::named);
    }
    const std::u16string written = parser.quoted();
    parser.advance();
    if (name == u"transparent") return readingOf({0, 0, 0}, 0, CSSColorForm::named);
    if (parser.is(CSSTokenKind::colon)) {
        return parser.fail(
            phrase("\"%1\" is a property, not part of the colour", written),
            phrase("give only its value, such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
    if (isContextualCSSColor(name)) {
        return parser.fail(
            phrase("The colour of \"%1\" depends on the page that uses it", written),
            phrase("write a fixed colour such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
    if (parser.is(CSSTokenKind::openParenthesis) && cssColorFunctionNamed(name) != nullptr) {
        return parser.fail(phrase("\"%1\" must be directly followed by its parenthesis", written),
                           writeAs(cssColorFunctionNamed(name)->example));
    }
    return parser.fail(
        phrase("\"%1\" is not a CSS colour name", written),
        phrase("write a colour such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
}

bool isColorFunction(std::u16string_view name)
{
    return name == u"color-mix" || name == u"light-dark" || cssColorFunctionNamed(name) != nullptr;
}

std::optional<CSSColorReading> readFunction(CSSParser& parser, CSSTheme theme)
{
    const std::u16string& name = parser.token().name;
    if (name == u"color-mix") return readColorMix(parser, theme);
    if (name == u"light-dark") return readLightDark(parser, theme);
    if (const CSSColorFunction* function = cssColorFunctionNamed(name))
        return readColorFunction(parser, theme, *function);
    if (dependsOnPage(name)) return failAtFunction(parser);
    return parser.fail(
        phrase("\"%1\" is not a supported colour function", parser.quotedFunction()),
        phrase("use rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch(), color(), color-mix() or "
               "light-dark()"));
}

/// Reads what may follow the colour: one ";".
bool readEnd(CSSParser& parser)
{
    parser.skip(CSSTokenKind::semicolon);
    if (parser.is(CSSTokenKind::end)) return true;
    parser.failAtToken(phrase("\"%1\" follows the colour", parser.quotedRest()),
                       phrase("give a single colour"));
    return false;
}

/// Sums and products can just miss the half between two bytes, which CSS rounds up: the channels of
/// hwb(120 30% 50%) are 76.5 and 127.5, so its bytes are 77 and 128. The channel must be 0..1.
double withExactHalf(double channel)
{
    constexpr double tolerance = 1e-9;
    const double byte = channel * cssChannelUnit;
    const double half = static_cast<int>(byte) + 0.5;
    if (byte >= half || half - byte > tolerance) return channel;
    double exact = half / cssChannelUnit;
    while (exact * cssChannelUnit < half)
        exact = std::nextafter(exact, 1);
    return exact;
}

/// Converts without passing through sRGB, which would lose the lightness of huge chromas.
ColorTriple oklabOf(const CSSColorValue& value)
{
    return convertedColor(value.components, value.space, ColorSpace::oklab);
}

CSSColor colorOf(const CSSColorReading& reading)
{
    const CSSColorValue& value = reading.value;
    const auto colorIs = [&](const ColorTriple& srgb, bool wasOutside) {
        return CSSColor{HostColor::colorWithCalibratedRed(srgb[0], srgb[1], srgb[2], value.alpha),
                        reading.form, wasOutside, value};
    };
    const bool isFromBytes = reading.form == CSSColorForm::named ||
                             reading.form == CSSColorForm::hex ||
                             reading.form == CSSColorForm::bareHex;
    if (isFromBytes) return colorIs(value.components, false);
    ColorTriple srgb = srgbFrom(value.space, value.components);
    const bool isOutside = isOutsideSRGB(srgb);
    if (reading.isSRGB) {
        // Browsers do not map colours that are sRGB by definition.
        srgb = clippedToSRGB(srgb);
        std::ranges::transform(srgb, srgb.begin(), withExactHalf);
    } else {
        srgb = isOutside ? srgbByReducedChroma(oklabOf(value)) : clippedToSRGB(srgb);
    }
    return colorIs(srgb, isOutside);
}

}  // namespace

std::optional<CSSColorReading> readColor(CSSParser& parser, CSSTheme theme)
{
    switch (parser.token().kind) {
        case CSSTokenKind::hash: {
            auto reading = readDigits(parser, parser.token().name);
            parser.advance();
            return reading;
        }
        case CSSTokenKind::name:
            return readName(parser);
        case CSSTokenKind::function:
            return readFunction(parser, theme);
        case CSSTokenKind::end:
            return parser.fail(
                phrase("The text contains no colour"),
                phrase("write one such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
        default:
            return parser.failAtToken(
                phrase("\"%1\" is not a colour", parser.quoted()),
                phrase("write one such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
}

Result<CSSColor> readCSSColor(std::u16string_view text, CSSTheme theme)
{
    CSSParser parser(withoutSurroundings(text));
    auto reading = readBareHex(parser);
    if (!reading && !parser.hasFailed()) {
        parser.advance();
        reading = readColor(parser, theme);
    }
    if (reading && readEnd(parser)) return colorOf(*reading);
    return parser.takeError();
}

Result<CSSColor> readCSSColor(std::string_view utf8, CSSTheme theme)
{
    return readCSSColor(std::u16string_view(utf16FromUtf8(utf8)), theme);
}

bool startsCSSColorFunction(std::u16string_view text)
{
    CSSToken token;
    CSSTokenizer(withoutSurroundings(text)).readNext(token);
    return token.kind == CSSTokenKind::function && isColorFunction(token.name);
}

}  // namespace vantorel
