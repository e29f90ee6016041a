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

/// Shortens a piece of the text for a message.
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

/// Reads one text. Functions that return `std::nullopt` or false have set `_error`, unless their
/// comment says otherwise.
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
    /// The name of `_function` for messages, such as "rgb()".
    std::u16string _functionName;
    Message _error;
};

/// Reads a hex code without "#". Tried before all other forms, because CSS would take some codes
/// for numbers, such as "1e3". Returns `std::nullopt` without an error if the text has another
/// form.
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
            return fail(phrase("The text contains no colour"),
                        phrase("write one such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
        default:
            return fail(phrase("\"%1\" is not a colour", quote(source())),
                        phrase("write one such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
}

/// Reads what may follow the colour: one ";".
bool Reader::readEnd()
{
    advance();
    if (is(CSSTokenKind::semicolon)) advance();
    if (is(CSSTokenKind::end)) return true;
    if (is(CSSTokenKind::unclosedComment)) {
        failUnclosedComment();
    } else {
        fail(phrase("\"%1\" follows the colour", quote(_text.substr(_token.begin))),
             phrase("give a single colour"));
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
        return fail(phrase("\"%1\" is not a hex digit", quote(digits.substr(index, width))),
                    phrase("use digits 0 to 9 and letters a to f after the \"#\""));
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
            phrase("\"%1\" is a property, not part of the colour", quote(written)),
            phrase("give only its value, such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
    if (isContextualCSSColor(name)) {
        return fail(
            phrase("The colour of \"%1\" depends on the page that uses it", quote(written)),
            phrase("write a fixed colour such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
    }
    if (is(CSSTokenKind::openParenthesis) && cssColorFunctionNamed(name) != nullptr) {
        return fail(phrase("\"%1\" must be directly followed by its parenthesis", quote(written)),
                    writeAs(cssColorFunctionNamed(name)->example));
    }
    return fail(phrase("\"%1\" is not a CSS colour name", quote(written)),
                phrase("write a colour such as \"#ff8000\", \"rgb(255 128 0)\" or \"orange\""));
}

std::optional<CSSColor> Reader::readFunction()
{
    _function = cssColorFunctionNamed(_token.name);
    if (_function == nullptr) {
        return fail(phrase("\"%1\" is not a supported colour function",
                           quote(source().substr(0, source().size() - 1))),
                    phrase("use rgb(), hsl(), hwb(), lab(), lch(), oklab(), oklch() or color()"));
    }
    _functionName = std::u16string(_function->name) + u"()";
    _rules = &_function->values;
    advance();
    if (is(CSSTokenKind::name) && _token.name == u"from") {
        return fail(phrase("Relative colours, with \"from\", are not supported"),
                    phrase("write the values themselves, as in \"%1\"", _function->example));
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
        return fail(phrase("\"%1\" is not a colour space of color()", quote(source())),
                    phrase("write %1", spaces));
    return fail(phrase("color() must begin with a colour space: %1", spaces));
}

/// Reads the separator before the value at `index`, which is 1 or 2. The first separator decides
/// whether there are commas.
bool Reader::readSeparator(std::size_t index, bool& commas)
{
    const bool comma = is(CSSTokenKind::comma);
    if (comma && _function->commaForm == CSSCommaForm::none) {
        fail(phrase("%1 does not take commas between its values", _functionName),
             writeAs(_function->example));
        return false;
    }
    // Too few values: `readValue` reports that.
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
                return fail(phrase("The hue of %1 must be %2, not \"%3\"", _functionName,
                                   kindsOf(rule), quote(source())));
            }
            value.number = _token.number / 100 * rule.hundredPercent;
            value.isPercentage = true;
            break;
        case CSSTokenKind::dimension:
            if (!rule.isHue) {
                return fail(phrase("The %1 of %2 must be %3, not \"%4\"", rule.name, _functionName,
                                   kindsOf(rule), quote(source())));
            }
            if (unitsPerTurn(_token.name) == 0) {
                return fail(phrase("\"%1\" is not an angle", quote(source())),
                            phrase("use the unit deg, grad, rad or turn"));
            }
            value.number = degreesOf(_token.number, unitsPerTurn(_token.name));
            break;
        case CSSTokenKind::name:
            if (_token.name != u"none") {
                return fail(phrase("The %1 of %2 must be %3, not \"%4\"", rule.name, _functionName,
                                   kindsOf(rule), quote(source())));
            }
            value.isNone = true;
            break;
        case CSSTokenKind::function:
            return fail(phrase("\"%1\" is not supported inside a colour",
                               quote(source().substr(0, source().size() - 1))),
                        phrase("write the resulting number"));
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
                        phrase("insert %1", kindsOf(rule)));
        default:
            return fail(phrase("The %1 of %2 must be %3, not \"%4\"", rule.name, _functionName,
                               kindsOf(rule), quote(source())));
    }
    advance();
    value.number = std::clamp(value.number, rule.smallest, rule.largest);
    return value;
}

/// Reads the alpha and the separator before it. Returns 1 if the colour has no alpha.
std::optional<double> Reader::readAlpha(bool commas)
{
    const bool comma = is(CSSTokenKind::comma);
    const bool slash = is(CSSTokenKind::slash);
    if (!comma && !slash) return 1;
    if (comma && _function->commaForm == CSSCommaForm::none) {
        return fail(phrase("The alpha of %1 must follow a \"/\"", _functionName),
                    writeAs(_function->example));
    }
    if (slash && commas) {
        return fail(phrase("With commas, the alpha of %1 must also follow a comma", _functionName),
                    writeAs(_function->exampleWithCommas));
    }
    if (comma && !commas) return failMixed();
    advance();
    const auto value = readValue(cssAlphaRule(), 3);
    if (!value) return std::nullopt;
    if (commas && value->isNone) {
        return fail(phrase("\"none\" cannot be used with commas"), writeAs(_function->example));
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
            fail(phrase("Instead of the \")\" of %1 there is \"%2\"", _functionName,
                        quote(source())),
                 writeAs(_function->example));
            return false;
    }
}

bool Reader::checkLegacyValues(const std::array<CSSValue, 3>& values)
{
    const auto isPercentage = [](const CSSValue& value) { return value.isPercentage; };
    if (std::ranges::any_of(values, &CSSValue::isNone)) {
        fail(phrase("\"none\" cannot be used with commas"), writeAs(_function->example));
        return false;
    }
    if (_function->commaForm == CSSCommaForm::allOfOneKind) {
        const auto percentages = std::ranges::count_if(values, isPercentage);
        if (percentages == 0 || percentages == 3) return true;
        fail(phrase("With commas, the values of %1 must be all numbers or all percentages",
                    _functionName),
             writeAs(_function->exampleWithCommas));
        return false;
    }
    for (const std::size_t index : {std::size_t{1}, std::size_t{2}}) {
        if (values[index].isPercentage) continue;
        fail(phrase("With commas, the %1 of %2 must be a percentage", (*_rules)[index].name,
                    _functionName),
             writeAs(_function->exampleWithCommas));
        return false;
    }
    return true;
}

std::nullopt_t Reader::failMixed()
{
    return fail(
        phrase("The values of %1 must be separated either by commas or by spaces", _functionName),
        phrase("write \"%1\" or \"%2\"", _function->example, _function->exampleWithCommas));
}

std::nullopt_t Reader::failUnclosed()
{
    return fail(phrase("%1 is not closed", _functionName), phrase("add a \")\" after the values"));
}

std::nullopt_t Reader::failUnclosedComment()
{
    return fail(phrase("The comment that starts with \"/*\" is not closed"),
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
