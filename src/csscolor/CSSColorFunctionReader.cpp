#include "csscolor/CSSCalculation.h"
#include "csscolor/CSSColorFunctions.h"
#include "csscolor/CSSColorReading.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

namespace vantorel {
namespace {

Phrase kindsOf(const CSSValueRule& rule)
{
    return rule.isHue ? phrase("an angle or a number") : phrase("a number or a percentage");
}

double limitedNumber(double number, const CSSValueRule& rule)
{
    // No angle is infinite; browsers take it for 0.
    if (rule.isHue) return std::isfinite(number) ? normalizedHue(number) : 0;
    return std::clamp(censored(number), rule.smallest, rule.largest);
}

/// Reads one function.
class FunctionReader {
public:
    FunctionReader(CSSParser& parser, CSSTheme theme, const CSSColorFunction& function)
        : _parser(parser),
          _theme(theme),
          _function(function),
          _rules(&function.values),
          _space(function.space)
    {
    }

    std::optional<CSSColorReading> read();

private:
    bool readOrigin();
    bool readColorSpace();
    void nameOriginsComponents();
    std::optional<CSSValue> readAlpha();
    std::optional<CSSValue> readValue(const CSSValueRule& rule, std::size_t valuesBefore);
    std::optional<CSSValue> readNumber(const CSSValueRule& rule);
    std::optional<CSSValue> readKeyword(const CSSValueRule& rule);
    bool readSeparator(std::size_t index);
    bool checkCommaForm(const std::array<CSSValue, 3>& values);
    std::nullopt_t failAtValue(const CSSValueRule& rule);
    std::nullopt_t failMixed();

    /// For messages, such as "rgb()".
    [[nodiscard]] std::u16string name() const { return std::u16string(_function.name) + u"()"; }
    [[nodiscard]] double unit() const
    {
        return _function.form == CSSColorForm::rgb ? cssChannelUnit : 1;
    }

    CSSParser& _parser;
    CSSTheme _theme;
    const CSSColorFunction& _function;
    const std::array<CSSValueRule, 3>* _rules;
    ColorSpace _space;
    bool _hasCommas = false;
    /// The colour to which this one is relative.
    std::optional<CSSColorValue> _origin;
    /// The components of the origin, in this space, and its alpha.
    std::array<CSSNamedNumber, 4> _originsNumbers{};
};

std::optional<CSSColorReading> FunctionReader::read()
{
    const CSSParser::Nesting nesting(_parser);
    if (!nesting) return std::nullopt;
    _parser.advance();
    if (_parser.isName(u"from") && !readOrigin()) return std::nullopt;
    if (_function.form == CSSColorForm::color && !readColorSpace()) return std::nullopt;
    if (_origin) nameOriginsComponents();

    std::array<CSSValue, 3> values;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0 && !readSeparator(i)) return std::nullopt;
        const auto value = readValue((*_rules)[i], i);
        if (!value) return std::nullopt;
        values[i] = *value;
    }
    const auto alpha = readAlpha();
    if (!alpha || !_parser.readClosing(_function.name, _function.example)) return std::nullopt;
    if (_hasCommas && !checkCommaForm(values)) return std::nullopt;

    CSSColorReading reading;
    reading.form = _function.form;
    reading.isSRGB = !_origin && (_space == ColorSpace::hsl || _space == ColorSpace::hwb ||
                                  _function.form == CSSColorForm::rgb);
    reading.value.space = _space;
    for (std::size_t i = 0; i < values.size(); ++i) {
        reading.value.components[i] = values[i].number / unit();
        reading.value.isMissing[i] = values[i].isNone;
    }
    reading.value.alpha = alpha->number;
    reading.value.isAlphaMissing = alpha->isNone;
    return reading;
}

bool FunctionReader::readOrigin()
{
    _parser.advance();
    const auto origin = readColor(_parser, _theme);
    if (!origin) return false;
    _origin = origin->value;
    _rules = &cssRelativeValueRules(_function);
    return true;
}

void FunctionReader::nameOriginsComponents()
{
    _origin = converted(*_origin, _space);
    const auto& keywords = componentKeywords(_space);
    for (std::size_t i = 0; i < keywords.size(); ++i)
        _originsNumbers[i] = {keywords[i], _origin->components[i] * unit()};
    _originsNumbers.back() = {u"alpha", _origin->alpha};
}

bool FunctionReader::readColorSpace()
{
    const bool isName = _parser.is(CSSTokenKind::name);
    if (isName) {
        if (const auto space = predefinedColorSpaceNamed(_parser.token().name)) {
            _space = *space;
            _rules = &cssValueRules(_space);
            _parser.advance();
            return true;
        }
    }
    const Phrase spaces = phrase(
        "srgb, srgb-linear, display-p3, display-p3-linear, a98-rgb, prophoto-rgb, rec2020, xyz, "
        "xyz-d50 or xyz-d65");
    if (isName) {
        _parser.fail(phrase("\"%1\" is not a colour space of color()", _parser.source()),
                     phrase("write %1", spaces));
    } else {
        _parser.fail(phrase("color() must begin with a colour space: %1", spaces));
    }
    return false;
}

/// Reads the separator before the value at `index`, which is 1 or 2. The first separator decides
/// whether there are commas.
bool FunctionReader::readSeparator(std::size_t index)
{
    const bool comma = _parser.is(CSSTokenKind::comma);
    if (comma && (_origin || _function.commaForm == CSSCommaForm::none)) {
        _parser.fail(phrase("%1 does not take commas between its values", name()),
                     writeAs(_function.example));
        return false;
    }
    // Too few values: `readValue` reports that.
    if (_parser.is(CSSTokenKind::closeParenthesis) || _parser.is(CSSTokenKind::end)) return true;
    if (index == 1) {
        _hasCommas = comma;
    } else if (comma != _hasCommas) {
        failMixed();
        return false;
    }
    if (comma) _parser.advance();
    return true;
}

std::optional<CSSValue> FunctionReader::readValue(const CSSValueRule& rule,
                                                  std::size_t valuesBefore)
{
    switch (_parser.token().kind) {
        case CSSTokenKind::number:
        case CSSTokenKind::percentage:
        case CSSTokenKind::dimension:
        case CSSTokenKind::function:
            return readNumber(rule);
        case CSSTokenKind::name:
            return readKeyword(rule);
        case CSSTokenKind::closeParenthesis:
            if (valuesBefore == 3) {
                return _parser.fail(phrase("The alpha of %1 is missing", name()),
                                    phrase("write %1 before the \")\"", kindsOf(rule)));
            }
            return _parser.fail(phrase("%1 needs 3 values and has %2", name(), valuesBefore),
                                writeAs(_function.example));
        case CSSTokenKind::end:
            return _parser.failUnclosed(name());
        case CSSTokenKind::comma:
        case CSSTokenKind::slash:
            return _parser.fail(phrase("The %1 of %2 is missing before \"%3\"", rule.name, name(),
                                       _parser.quoted()),
                                phrase("insert %1", kindsOf(rule)));
        default:
            return failAtValue(rule);
    }
}

/// Reads a number, percentage or angle, which may be calculated.
std::optional<CSSValue> FunctionReader::readNumber(const CSSValueRule& rule)
{
    const CSSTokenKind kind = _parser.token().kind;
    if (kind == CSSTokenKind::dimension && !rule.isHue) return failAtValue(rule);
    if (kind == CSSTokenKind::percentage && rule.isHue) {
        return _parser.fail(phrase("The hue of %1 must be %2, not \"%3\"", name(), kindsOf(rule),
                                   _parser.quoted()));
    }
    std::optional<CSSNumber> number;
    if (kind != CSSTokenKind::function) {
        number = readCSSNumber(_parser, CSSTurns::dropped);
    } else if (isCSSMathFunction(_parser.token().name)) {
        const std::u16string function = _parser.token().name + u"()";
        const std::size_t names = _origin ? _originsNumbers.size() : 0;
        number = readCSSMathFunction(_parser, std::span(_originsNumbers).first(names));
        const CSSNumberKind wrong = rule.isHue ? CSSNumberKind::percentage : CSSNumberKind::angle;
        if (number && number->kind == wrong) {
            return _parser.fail(phrase("The %1 of %2 must be %3, not the result of this %4",
                                       rule.name, name(), kindsOf(rule), function));
        }
    } else {
        return failAtFunction(_parser);
    }
    if (!number) return std::nullopt;
    CSSValue value;
    value.isPercentage = number->kind == CSSNumberKind::percentage;
    value.number = value.isPercentage ? number->value / 100 * rule.hundredPercent : number->value;
    value.number = limitedNumber(value.number, rule);
    return value;
}

/// Reads `none`, or the name of a component of the origin.
std::optional<CSSValue> FunctionReader::readKeyword(const CSSValueRule& rule)
{
    CSSValue value;
    if (_parser.isName(u"none")) {
        value.isNone = true;
    } else {
        if (!_origin) return failAtValue(rule);
        const auto found =
            std::ranges::find(_originsNumbers, _parser.token().name, &CSSNamedNumber::name);
        if (found == _originsNumbers.end()) return failAtValue(rule);
        const auto place = static_cast<std::size_t>(found - _originsNumbers.begin());
        value.isNone = place < 3 ? _origin->isMissing[place] : _origin->isAlphaMissing;
        value.number = found->value;
    }
    value.number = limitedNumber(value.number, rule);
    _parser.advance();
    return value;
}

/// Reads the alpha and the separator before it. Without one, the colour is as opaque as its origin,
/// or opaque.
std::optional<CSSValue> FunctionReader::readAlpha()
{
    const bool comma = _parser.is(CSSTokenKind::comma);
    const bool slash = _parser.is(CSSTokenKind::slash);
    if (!comma && !slash) {
        CSSValue value;
        value.number = _origin ? _origin->alpha : 1;
        value.isNone = _origin && _origin->isAlphaMissing;
        return value;
    }
    if (comma && (_origin || _function.commaForm == CSSCommaForm::none)) {
        return _parser.fail(phrase("The alpha of %1 must follow a \"/\"", name()),
                            writeAs(_function.example));
    }
    if (slash && _hasCommas) {
        return _parser.fail(phrase("With commas, the alpha of %1 must also follow a comma", name()),
                            writeAs(_function.exampleWithCommas));
    }
    if (comma && !_hasCommas) return failMixed();
    _parser.advance();
    const auto value = readValue(cssAlphaRule(), 3);
    if (value && _hasCommas && value->isNone) {
        return _parser.fail(phrase("\"none\" cannot be used with commas"),
                            writeAs(_function.example));
    }
    return value;
}

bool FunctionReader::checkCommaForm(const std::array<CSSValue, 3>& values)
{
    if (std::ranges::any_of(values, &CSSValue::isNone)) {
        _parser.fail(phrase("\"none\" cannot be used with commas"), writeAs(_function.example));
        return false;
    }
    if (_function.commaForm == CSSCommaForm::allOfOneKind) {
        const auto percentages = std::ranges::count_if(values, &CSSValue::isPercentage);
        if (percentages == 0 || percentages == 3) return true;
        _parser.fail(
            phrase("With commas, the values of %1 must be all numbers or all percentages", name()),
            writeAs(_function.exampleWithCommas));
        return false;
    }
    for (const std::size_t index : {std::size_t{1}, std::size_t{2}}) {
        if (values[index].isPercentage) continue;
        _parser.fail(
            phrase("With commas, the %1 of %2 must be a percentage", (*_rules)[index].name, name()),
            writeAs(_function.exampleWithCommas));
        return false;
    }
    return true;
}

std::nullopt_t FunctionReader::failAtValue(const CSSValueRule& rule)
{
    return _parser.failAtToken(phrase("The %1 of %2 must be %3, not \"%4\"", rule.name, name(),
                                      kindsOf(rule), _parser.quoted()));
}

std::nullopt_t FunctionReader::failMixed()
{
    return _parser.fail(
        phrase("The values of %1 must be separated either by commas or by spaces", name()),
        phrase("write \"%1\" or \"%2\"", _function.example, _function.exampleWithCommas));
}

}  // namespace

std::optional<CSSColorReading> readColorFunction(CSSParser& parser, CSSTheme theme,
                                                 const CSSColorFunction& function)
{
    return FunctionReader(parser, theme, function).read();
}

}  // namespace vantorel
