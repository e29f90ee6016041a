#include "csscolor/CSSColorReader.h"

#include "csscolor/CSSAngle.h"
#include "csscolor/CSSColorFunctions.h"
#include "csscolor/CSSNamedColors.h"
#include "csscolor/CSSTokenizer.h"
#include "csscolor/Surroundings.h"
#include "result/HarmlessLine.h"
#include "text/HexDigits.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

/// A piece of the text as messages quote it.
std::u16string quote(std::u16string_view text)
{
    constexpr std::size_t mostUnits = 24;
    return excerpt(text, mostUnits);
}

Phrase writeAs(std::u16string_view example)
{
    return phrase("write \"%1\"", example);
}

Phrase kindsOf(const CSSValueRule& rule)
{
    return rule.isHue ? phrase("an angle or a number") : phrase("a number or a percentage");
}

HostColor colorOf(const ColorTriple& srgb, double alpha)
{
    return HostColor::colorWithCalibratedRed(srgb[0], srgb[1], srgb[2], alpha);
}

/// One reading. The functions that return `std::nullopt` or false have set `_error`.
class Reader {
public:
    explicit Reader(std::u16string_view text) : _text(text), _tokens(text) {}

    Result<CSSColor> read()
    {
        const std::optional<CSSColor> color = readColor();
        if (color && readEnd()) return *color;
        return std::move(_error);
    }

private:
    std::nullopt_t fail(Phrase what, Phrase remedy = {})
    {
        _error = {std::move(what), std::move(remedy)};
        return std::nullopt;
    }
    void advance() { _token = _tokens.next(); }
    [[nodiscard]] bool is(CSSTokenKind kind) const { return _token.kind == kind; }
    [[nodiscard]] std::u16string_view source() const
    {
        return _text.substr(_token.begin, _token.end - _token.begin);
    }

    std::optional<CSSColor> readColor();
    bool readEnd();
    std::optional<CSSColor> readBareHex();
    std::optional<CSSColor> readHex();
    std::optional<CSSColor> readName();
    std::optional<CSSColor> readFunction();

    std::optional<PredefinedColorSpace> readColorSpace();
    std::optional<double> readAlpha(bool commas);
    std::optional<CSSValue> readValue(const CSSValueRule& rule, std::size_t valuesBefore);
    bool readSeparator(std::size_t index, bool& commas);
    bool checkLegacyValues(const std::array<CSSValue, 3>& values);
    bool readClosing();
    std::nullopt_t failMixed();
    std::nullopt_t failUnclosed();
    std::nullopt_t failUnclosedComment();

    std::u16string_view _text;
    CSSTokenizer _tokens;
    CSSToken _token;
    const CSSColorFunction* _function = nullptr;
    const std::array<CSSValueRule, 3>* _rules = nullptr;
    /// With its parentheses, e.g. "rgb()".
    std::u16string _functionName;
    Message _error;
};

/// Before any other form, since digits and "e" would be a number to CSS.
std::optional<CSSColor> Reader::readBareHex()
{
    if (!_tokens.skipBlanks()) return std::nullopt;
    const std::size_t begin = _tokens.place();
    std::size_t end = begin;
    while (end < _text.size() && isHexDigit(_text[end]))
        ++end;
    const std::u16string_view digits = _text.substr(begin, end - begin);
    const std::u16string_view rest = _text.substr(end, 2);
    const bool alone = rest.empty() || isCSSWhiteSpace(rest[0]) || rest[0] == u';' || rest == u"/*";
    if (!alone) return std::nullopt;
    if (digits.size() != 3 && digits.size() != 6) {
        const bool hasNumber = digits.find_first_of(u"0123456789") != std::u16string_view::npos;
        if (hasNumber) {
            fail(phrase("A hex colour without \"#\" has 3 or 6 digits, not %1", digits.size()));
        }
        return std::nullopt;
    }
    _token.name = digits;
    _tokens.moveTo(end);
    std::optional<CSSColor> color = readHex();
    if (color) color->form = CSSColorForm::bareHex;
    return color;
}

std::optional<CSSColor> Reader::readColor()
{
    if (std::optional<CSSColor> color = readBareHex(); color || !_error.what.isEmpty())
        return color;
    advance();
    switch (_token.kind) {
        case CSSTokenKind::hash:
            return readHex();
        case CSSTokenKind::name:
            return readName();
        case CSSTokenKind::function:
            return readFunction();
        case CSSTokenKind::unclosedComment:
            return failUnclosedComment();
        case CSSTokenKind::end:
            return fail(phrase("The text holds no colour"),
                        phrase("write one such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
        default:
            return fail(phrase("\"%1\" is no colour", quote(source())),
                        phrase("write one such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
}

/// Everything behind the colour.
bool Reader::readEnd()
{
    advance();
    if (is(CSSTokenKind::semicolon)) advance();
    if (is(CSSTokenKind::end)) return true;
    if (is(CSSTokenKind::unclosedComment)) {
        failUnclosedComment();
    } else {
        fail(phrase("\"%1\" follows the colour", quote(_text.substr(_token.begin))),
             phrase("give one colour alone"));
    }
    return false;
}

std::optional<CSSColor> Reader::readHex()
{
    const std::u16string_view digits = _token.name;
    const auto wrong = std::ranges::find_if(digits, [](char16_t c) { return !isHexDigit(c); });
    if (wrong != digits.end()) {
        const auto index = static_cast<std::size_t>(wrong - digits.begin());
        const std::size_t width = (*wrong & 0xFC00) == 0xD800 ? 2 : 1;
        return fail(phrase("\"%1\" is no hex digit", quote(digits.substr(index, width))),
                    phrase("after \"#\" come digits from 0 to 9 and letters from a to f"));
    }
    const std::size_t count = digits.size();
    if (count != 3 && count != 4 && count != 6 && count != 8) {
        return fail(phrase("A hex colour has 3, 4, 6 or 8 digits after the \"#\", not %1", count));
    }
    const bool isShort = count < 6;
    const auto channel = [&](std::size_t index) {
        const std::size_t width = isShort ? 1 : 2;
        if ((index + 1) * width > count) return 1.0;
        const int high = hexDigitValue(digits[index * width]);
        const int low = isShort ? high : hexDigitValue(digits[index * width + 1]);
        return (high * 16 + low) / 255.0;
    };
    return CSSColor{colorOf({channel(0), channel(1), channel(2)}, channel(3)), CSSColorForm::hex};
}

std::optional<CSSColor> Reader::readName()
{
    const std::u16string name = _token.name;
    const std::u16string_view written = source();
    if (name == u"transparent") return CSSColor{colorOf({0, 0, 0}, 0)};
    if (const auto value = cssNamedColor(name)) {
        const auto channel = [&](unsigned shift) { return ((*value >> shift) & 0xFF) / 255.0; };
        return CSSColor{colorOf({channel(16), channel(8), channel(0)}, 1)};
    }
    advance();
    if (is(CSSTokenKind::colon)) {
        return fail(
            phrase("The property \"%1\" does not belong to the colour", quote(written)),
            phrase("give its value alone, such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
    if (isContextualCSSColor(name)) {
        return fail(
            phrase("\"%1\" has no colour without the page where it stands", quote(written)),
            phrase("write a fixed one such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
    if (is(CSSTokenKind::openParenthesis) && cssColorFunctionNamed(name) != nullptr) {
        return fail(phrase("Nothing may stand between \"%1\" and its parenthesis", quote(written)),
                    writeAs(cssColorFunctionNamed(name)->example));
    }
    return fail(phrase("\"%1\" is no colour name of CSS", quote(written)),
                phrase("write a colour such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
}

std::optional<CSSColor> Reader::readFunction()
{
    _function = cssColorFunctionNamed(_token.name);
    if (_function == nullptr) {
        return fail(phrase("\"%1\" is no colour function that can be read",
                           quote(source().substr(0, source().size() - 1))),
                    phrase("rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() and color() are"));
    }
    _functionName = std::u16string(_function->name) + u"()";
    _rules = &_function->values;
    advance();
    if (is(CSSTokenKind::name) && _token.name == u"from") {
        return fail(phrase("A colour relative to another, with \"from\", cannot be read"),
                    phrase("write its values, as in \"%1\"", _function->example));
    }
    auto space = PredefinedColorSpace::srgb;
    if (_function->form == CSSColorForm::color) {
        const auto named = readColorSpace();
        if (!named) return std::nullopt;
        space = *named;
        _rules = &cssValueRules(space);
    }

    std::array<CSSValue, 3> values;
    bool commas = false;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0 && !readSeparator(i, commas)) return std::nullopt;
        const auto value = readValue((*_rules)[i], i);
        if (!value) return std::nullopt;
        values[i] = *value;
    }
    const auto alpha = readAlpha(commas);
    if (!alpha || !readClosing()) return std::nullopt;
    if (commas && !checkLegacyValues(values)) return std::nullopt;

    const SRGBResult result = srgbOfCSSValues(
        _function->form, space, {values[0].number, values[1].number, values[2].number});
    return CSSColor{colorOf(result.srgb, *alpha), _function->form, result.wasOutside};
}

std::optional<PredefinedColorSpace> Reader::readColorSpace()
{
    const auto space =
        is(CSSTokenKind::name) ? predefinedColorSpaceNamed(_token.name) : std::nullopt;
    if (space) {
        advance();
        return space;
    }
    const Phrase spaces = phrase(
        "srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, "
        "xyz-d50 or xyz-d65");
    if (is(CSSTokenKind::name))
        return fail(phrase("\"%1\" is no colour space of color()", quote(source())),
                    phrase("write %1", spaces));
    return fail(phrase("color() begins with a colour space: %1", spaces));
}

/// What stands before the value of an index of 1 or 2; the first one decides on commas or none.
bool Reader::readSeparator(std::size_t index, bool& commas)
{
    const bool comma = is(CSSTokenKind::comma);
    if (comma && _function->commaForm == CSSCommaForm::none) {
        fail(phrase("%1 has no commas between its values", _functionName),
             writeAs(_function->example));
        return false;
    }
    // At the end of the values their number is what is wrong.
    if (is(CSSTokenKind::closeParenthesis) || is(CSSTokenKind::end)) return true;
    if (index == 1) {
        commas = comma;
    } else if (comma != commas) {
        failMixed();
        return false;
    }
    if (comma) advance();
    return true;
}

std::optional<CSSValue> Reader::readValue(const CSSValueRule& rule, std::size_t valuesBefore)
{
    CSSValue value;
    switch (_token.kind) {
        case CSSTokenKind::number:
            value.number = _token.number;
            break;
        case CSSTokenKind::percentage:
            if (rule.isHue) {
                return fail(phrase("The hue of %1 is %2, not \"%3\"", _functionName, kindsOf(rule),
                                   quote(source())));
            }
            value.number = _token.number / 100 * rule.hundredPercent;
            value.isPercentage = true;
            break;
        case CSSTokenKind::dimension:
            if (!rule.isHue) {
                return fail(phrase("The %1 of %2 is %3, not \"%4\"", rule.name, _functionName,
                                   kindsOf(rule), quote(source())));
            }
            if (unitsPerTurn(_token.name) == 0) {
                return fail(phrase("\"%1\" is no angle", quote(source())),
                            phrase("the units of angles are deg, grad, rad and turn"));
            }
            value.number = degreesOf(_token.number, unitsPerTurn(_token.name));
            break;
        case CSSTokenKind::name:
            if (_token.name != u"none") {
                return fail(phrase("The %1 of %2 is %3, not \"%4\"", rule.name, _functionName,
                                   kindsOf(rule), quote(source())));
            }
            value.isNone = true;
            break;
        case CSSTokenKind::function:
            return fail(phrase("\"%1\" cannot be read inside a colour",
                               quote(source().substr(0, source().size() - 1))),
                        phrase("write the number that it results in"));
        case CSSTokenKind::closeParenthesis:
            if (valuesBefore == 3) {
                return fail(phrase("The alpha of %1 is missing", _functionName),
                            phrase("write %1 before the \")\"", kindsOf(rule)));
            }
            return fail(phrase("%1 needs 3 values and has %2", _functionName, valuesBefore),
                        writeAs(_function->example));
        case CSSTokenKind::end:
            return failUnclosed();
        case CSSTokenKind::unclosedComment:
            return failUnclosedComment();
        case CSSTokenKind::comma:
        case CSSTokenKind::slash:
            return fail(phrase("The %1 of %2 is missing before \"%3\"", rule.name, _functionName,
                               quote(source())),
                        phrase("write %1 there", kindsOf(rule)));
        default:
            return fail(phrase("The %1 of %2 is %3, not \"%4\"", rule.name, _functionName,
                               kindsOf(rule), quote(source())));
    }
    advance();
    value.number = std::clamp(value.number, rule.smallest, rule.largest);
    return value;
}

/// The alpha with what parts it from the values; 1 when there is none.
std::optional<double> Reader::readAlpha(bool commas)
{
    const bool comma = is(CSSTokenKind::comma);
    const bool slash = is(CSSTokenKind::slash);
    if (!comma && !slash) return 1;
    if (comma && _function->commaForm == CSSCommaForm::none) {
        return fail(phrase("In %1 the alpha follows a \"/\"", _functionName),
                    writeAs(_function->example));
    }
    if (slash && commas) {
        return fail(phrase("In %1 with commas the alpha follows a comma", _functionName),
                    writeAs(_function->exampleWithCommas));
    }
    if (comma && !commas) return failMixed();
    advance();
    const auto value = readValue(cssAlphaRule(), 3);
    if (!value) return std::nullopt;
    if (commas && value->isNone) {
        return fail(phrase("\"none\" does not go with commas"), writeAs(_function->example));
    }
    return value->number;
}

bool Reader::readClosing()
{
    switch (_token.kind) {
        case CSSTokenKind::closeParenthesis:
            return true;
        case CSSTokenKind::end:
            failUnclosed();
            return false;
        case CSSTokenKind::unclosedComment:
            failUnclosedComment();
            return false;
        default:
            fail(phrase("In %1 \"%2\" stands where its \")\" belongs", _functionName,
                        quote(source())),
                 writeAs(_function->example));
            return false;
    }
}

bool Reader::checkLegacyValues(const std::array<CSSValue, 3>& values)
{
    const auto isPercentage = [](const CSSValue& value) { return value.isPercentage; };
    if (std::ranges::any_of(values, &CSSValue::isNone)) {
        fail(phrase("\"none\" does not go with commas"), writeAs(_function->example));
        return false;
    }
    if (_function->commaForm == CSSCommaForm::allOfOneKind) {
        const auto percentages = std::ranges::count_if(values, isPercentage);
        if (percentages == 0 || percentages == 3) return true;
        fail(phrase("With commas the values of %1 are all numbers or all percentages",
                    _functionName),
             writeAs(_function->exampleWithCommas));
        return false;
    }
    for (const std::size_t index : {std::size_t{1}, std::size_t{2}}) {
        if (values[index].isPercentage) continue;
        fail(phrase("With commas the %1 of %2 is a percentage", (*_rules)[index].name,
                    _functionName),
             writeAs(_function->exampleWithCommas));
        return false;
    }
    return true;
}

std::nullopt_t Reader::failMixed()
{
    return fail(phrase("The values of %1 are parted all by commas or all by blanks", _functionName),
                phrase("write \"%1\" or \"%2\"", _function->example, _function->exampleWithCommas));
}

std::nullopt_t Reader::failUnclosed()
{
    return fail(phrase("%1 has no end", _functionName),
                phrase("close it with a \")\" after its values"));
}

std::nullopt_t Reader::failUnclosedComment()
{
    return fail(phrase("The comment that begins with \"/*\" has no end"),
                phrase("close it with \"*/\""));
}

}  // namespace

Result<CSSColor> readCSSColor(std::u16string_view text)
{
    return Reader(withoutSurroundings(text)).read();
}

Result<CSSColor> readCSSColor(std::string_view utf8)
{
    return readCSSColor(std::u16string_view(utf16FromUtf8(utf8)));
}

}  // namespace vantorel
