#include "csscolor/CSSCalculation.h"

#include "csscolor/CSSAngle.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

namespace vantorel {
namespace {

constexpr std::array constants{
    CSSNamedNumber{u"e", std::numbers::e},
    CSSNamedNumber{u"pi", std::numbers::pi},
    CSSNamedNumber{u"infinity", std::numeric_limits<double>::infinity()},
    CSSNamedNumber{u"-infinity", -std::numeric_limits<double>::infinity()},
    CSSNamedNumber{u"nan", std::numeric_limits<double>::quiet_NaN()},
};

class Calculation {
public:
    Calculation(CSSParser& parser, std::span<const CSSNamedNumber> names)
        : _parser(parser), _names(names)
    {
    }

    std::optional<CSSNumber> readFunction();

private:
    std::optional<CSSNumber> readSum();
    std::optional<CSSNumber> readProduct();
    std::optional<CSSNumber> readValue();
    std::optional<CSSNumber> readNamed();
    std::optional<CSSNumber> readParenthesis();
    std::optional<CSSNumber> resultOf(std::u16string_view function,
                                      const std::vector<CSSNumber>& arguments);
    bool readClosing(std::u16string_view function);
    std::nullopt_t failMixed();

    CSSParser& _parser;
    std::span<const CSSNamedNumber> _names;
};

std::optional<CSSNumber> Calculation::readFunction()
{
    const CSSParser::Nesting nesting(_parser);
    if (!nesting) return std::nullopt;
    const std::u16string function = _parser.token().name;
    _parser.advance();
    std::vector<CSSNumber> arguments;
    do {
        const auto argument = readSum();
        if (!argument) return std::nullopt;
        arguments.push_back(*argument);
    } while (function != u"calc" && _parser.skip(CSSTokenKind::comma));
    if (!readClosing(function + u"()")) return std::nullopt;
    return resultOf(function, arguments);
}

std::optional<CSSNumber> Calculation::resultOf(std::u16string_view function,
                                               const std::vector<CSSNumber>& arguments)
{
    CSSNumber result = arguments.front();
    for (const CSSNumber& argument : arguments) {
        if (argument.kind != result.kind) return failMixed();
        // A value that is not a number makes the result none.
        if (std::isnan(argument.value)) result.value = argument.value;
    }
    if (function == u"clamp") {
        if (arguments.size() != 3) {
            return _parser.fail(phrase("clamp() needs 3 values and has %1", arguments.size()),
                                writeAs(u"clamp(0, 5, 10)"));
        }
        const double limited = std::min(arguments[1].value, arguments[2].value);
        if (!std::isnan(result.value)) result.value = std::max(arguments[0].value, limited);
        return result;
    }
    for (const CSSNumber& argument : arguments) {
        if (function == u"min") result.value = std::min(result.value, argument.value);
        if (function == u"max") result.value = std::max(result.value, argument.value);
    }
    return result;
}

std::optional<CSSNumber> Calculation::readSum()
{
    auto sum = readProduct();
    while (sum) {
        const bool isPlus = _parser.isCharacter(u'+');
        const bool isMinus = _parser.isCharacter(u'-');
        if (!isPlus && !isMinus) break;
        // Without white space, the sign would belong to a number or a name.
        if (!_parser.isSpacedApart()) {
            return _parser.fail(
                phrase("A calculation needs spaces on both sides of \"%1\"", _parser.quoted()),
                writeAs(u"calc(1 + 2)"));
        }
        _parser.advance();
        const auto operand = readProduct();
        if (!operand) return std::nullopt;
        if (operand->kind != sum->kind) return failMixed();
        sum->value += isPlus ? operand->value : -operand->value;
    }
    return sum;
}

std::optional<CSSNumber> Calculation::readProduct()
{
    auto product = readValue();
    while (product) {
        const bool isTimes = _parser.isCharacter(u'*');
        const bool isDivision = _parser.is(CSSTokenKind::slash);
        if (!isTimes && !isDivision) break;
        _parser.advance();
        const auto operand = readValue();
        if (!operand) return std::nullopt;
        if (isDivision) {
            if (operand->kind != CSSNumberKind::number) {
                return _parser.fail(phrase("A calculation can divide only by a number"),
                                    writeAs(u"calc(50% / 2)"));
            }
            product->value /= operand->value;
            continue;
        }
        if (product->kind != CSSNumberKind::number && operand->kind != CSSNumberKind::number) {
            return _parser.fail(phrase("A calculation can multiply only by a number"),
                                writeAs(u"calc(50% * 2)"));
        }
        if (product->kind == CSSNumberKind::number) product->kind = operand->kind;
        product->value *= operand->value;
    }
    return product;
}

std::optional<CSSNumber> Calculation::readValue()
{
    switch (_parser.token().kind) {
        case CSSTokenKind::number:
        case CSSTokenKind::percentage:
        case CSSTokenKind::dimension:
            return readCSSNumber(_parser, CSSTurns::kept);
        case CSSTokenKind::name:
            return readNamed();
        case CSSTokenKind::openParenthesis:
            return readParenthesis();
        case CSSTokenKind::function:
            if (!isCSSMathFunction(_parser.token().name)) return failAtFunction(_parser);
            return readFunction();
        case CSSTokenKind::end:
            return _parser.fail(phrase("The calculation is not closed"),
                                phrase("add a \")\" after the values"));
        default:
            return _parser.failAtToken(
                phrase("A calculation needs a value before \"%1\"", _parser.quoted()),
                writeAs(u"calc(1 + 2)"));
    }
}

std::optional<CSSNumber> Calculation::readNamed()
{
    const std::u16string& name = _parser.token().name;
    const auto numberIn = [&](std::span<const CSSNamedNumber> list) -> std::optional<CSSNumber> {
        const auto found = std::ranges::find(list, name, &CSSNamedNumber::name);
        if (found == list.end()) return std::nullopt;
        return CSSNumber{found->value};
    };
    auto number = numberIn(_names);
    if (!number) number = numberIn(constants);
    if (!number) {
        return _parser.fail(
            phrase("\"%1\" does not stand for a number in a calculation", _parser.quoted()),
            phrase("write the number"));
    }
    _parser.advance();
    return number;
}

std::optional<CSSNumber> Calculation::readParenthesis()
{
    const CSSParser::Nesting nesting(_parser);
    if (!nesting) return std::nullopt;
    _parser.advance();
    const auto number = readSum();
    if (!number || !readClosing(u"(")) return std::nullopt;
    return number;
}

bool Calculation::readClosing(std::u16string_view function)
{
    if (_parser.skip(CSSTokenKind::closeParenthesis)) return true;
    if (_parser.is(CSSTokenKind::end)) {
        _parser.fail(phrase("The calculation is not closed"),
                     phrase("add a \")\" after the values"));
    } else {
        _parser.failAtToken(
            phrase("Instead of the \")\" of %1 there is \"%2\"", function, _parser.quoted()),
            writeAs(u"calc(1 + 2)"));
    }
    return false;
}

std::nullopt_t Calculation::failMixed()
{
    return _parser.fail(phrase("A calculation cannot mix numbers, percentages and angles"),
                        phrase("write all values in one of them"));
}

}  // namespace

bool isCSSMathFunction(std::u16string_view name)
{
    return name == u"calc" || name == u"min" || name == u"max" || name == u"clamp";
}

std::optional<CSSNumber> readCSSMathFunction(CSSParser& parser,
                                             std::span<const CSSNamedNumber> names)
{
    return Calculation(parser, names).readFunction();
}

std::optional<CSSNumber> readCSSNumber(CSSParser& parser, CSSTurns turns)
{
    const CSSToken& token = parser.token();
    CSSNumber number{token.number};
    if (token.kind == CSSTokenKind::percentage) {
        number.kind = CSSNumberKind::percentage;
    } else if (token.kind == CSSTokenKind::dimension) {
        const double unitsInTurn = unitsPerTurn(token.name);
        if (unitsInTurn == 0) {
            return parser.fail(phrase("\"%1\" is not an angle", parser.quoted()),
                               phrase("use the unit deg, grad, rad or turn"));
        }
        const double degrees = turns == CSSTurns::dropped ? degreesOf(token.number, unitsInTurn)
                                                          : token.number / unitsInTurn * 360;
        number = {degrees, CSSNumberKind::angle};
    }
    parser.advance();
    return number;
}

double censored(double number)
{
    if (std::isnan(number)) return 0;
    return std::clamp(number, -largestCSSNumber, largestCSSNumber);
}

bool dependsOnPage(std::u16string_view function)
{
    return function == u"var" || function == u"env" || function == u"attr";
}

std::nullopt_t failAtFunction(CSSParser& parser)
{
    const std::u16string& name = parser.token().name;
    if (dependsOnPage(name)) {
        return parser.fail(phrase("The value of %1() depends on the page that uses it", name),
                           phrase("write the value itself"));
    }
    return parser.fail(phrase("\"%1\" is not supported inside a colour", parser.quotedFunction()),
                       phrase("write the resulting number"));
}

}  // namespace vantorel
