#include "host/HostNumberField.h"

#include "text/Decimals.h"
#include "text/Trimming.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace vantorel {
namespace {

constexpr double coarse = 10;
constexpr double fine = 0.1;
/// How far the pointer moves for a step. A hand cannot place a pointer to one point while it looks
/// at a colour.
constexpr double pointsPerStep = 2;

constexpr char16_t minusSign = u'\u2212';

bool isBlank(char16_t c)
{
    return c <= u' ' || c == u'\u00A0' || c == u'\u202F' || c == u'\u2009';
}

std::u16string_view bare(std::u16string_view text)
{
    return trimmed(text, isBlank);
}

}  // namespace

double HostNumberFormat::fitted(double value) const
{
    if (std::isnan(value)) return value;
    const double range = maximum - minimum;
    if (!isCyclic || range <= 0) return std::clamp(value, minimum, std::max(minimum, maximum));
    if (std::isinf(value)) return minimum;
    const double turned = minimum + std::fmod(value - minimum, range);
    const double inRange = turned < minimum ? turned + range : turned;
    // A number just below the minimum can be rounded to the maximum.
    return inRange < maximum ? inRange : minimum;
}

double HostNumberFormat::stepWith(std::uint64_t modifierFlags) const
{
    if ((modifierFlags & shiftModifierFlag) != 0) return step * coarse;
    if ((modifierFlags & controlModifierFlag) == 0) return step;
    return std::max(step * fine, std::pow(10.0, -decimals));
}

HostNumberField::HostNumberField(std::unique_ptr<HostTextField> field, HostNumberFormat format,
                                 std::u16string separator)
    : _field(std::move(field)),
      _format(std::move(format)),
      _separator(std::move(separator)),
      _value(_format.minimum)
{
    show();
    _field->setAction([this](HostControl&) { enter(); });
    _field->setEntryFit([this](const std::u16string& text) {
        return numberIn(text) ? HostEntryFit::fits : HostEntryFit::doesNotFit;
    });
    _field->setStep([this](int steps, std::uint64_t flags) { step(steps, flags); });
    _field->setScrub([this](const HostTextField::Scrub& part) { scrub(part); });
}

void HostNumberField::setValue(double value)
{
    _value = _format.fitted(value);
    show();
}

void HostNumberField::setFormat(HostNumberFormat format)
{
    _format = std::move(format);
    setValue(_value);
}

std::optional<double> HostNumberField::numberIn(std::u16string_view text) const
{
    text = bare(text);
    const std::u16string_view unit = bare(_format.unit);
    if (!unit.empty() && text.ends_with(unit))
        text = bare(text.substr(0, text.size() - unit.size()));
    std::string number;
    if (text.starts_with(u'-') || text.starts_with(minusSign)) number += '-';
    if (!number.empty() || text.starts_with(u'+')) text.remove_prefix(1);
    for (const char16_t c : text) {
        if (isDigit(c)) {
            number += static_cast<char>(c);
        } else if (c == u'.' || c == u',') {
            number += '.';
        } else {
            return std::nullopt;
        }
    }
    double value = 0;
    const char* const end = number.data() + number.size();
    const auto [stop, error] = std::from_chars(number.data(), end, value, std::chars_format::fixed);
    if (stop != end || number.empty()) return std::nullopt;
    // So many digits that no number can hold them.
    if (error == std::errc::result_out_of_range) {
        const double most = std::numeric_limits<double>::max();
        return number.front() == '-' ? -most : most;
    }
    return error == std::errc{} ? std::optional(value) : std::nullopt;
}

std::u16string HostNumberField::textOf(double value) const
{
    if (std::isnan(value)) return {};
    std::u16string text = widened(fixedText(rounded(value), _format.decimals));
    if (const auto point = text.find(u'.'); point != std::u16string::npos)
        text.replace(point, 1, _separator);
    return text + _format.unit;
}

double HostNumberField::rounded(double value) const
{
    const double scale = std::pow(10.0, _format.decimals);
    const double result = std::round(value * scale) / scale;
    // Without a sign, and 359.99 degrees with one decimal are 0.
    return (_format.isCyclic ? _format.fitted(result) : result) + 0.0;
}

void HostNumberField::enter()
{
    const std::u16string text = _field->stringValue();
    if (text == textOf(_value)) return;
    if (const auto number = numberIn(text)) {
        choose(*number);
    } else {
        show();
    }
}

void HostNumberField::step(int steps, std::uint64_t modifierFlags)
{
    const double start = std::isnan(_value) ? _format.minimum : rounded(_value);
    const double reached = _format.fitted(start + steps * _format.stepWith(modifierFlags));
    if (reached != _value) choose(rounded(reached));
}

void HostNumberField::scrub(const HostTextField::Scrub& part)
{
    if (part.phase != HostTextField::Scrub::Phase::move) {
        _scrubbed = std::isnan(_value) ? _format.minimum : _value;
        const auto reaction = _scrubReaction;
        if (reaction) reaction(part.phase == HostTextField::Scrub::Phase::begin);
        return;
    }
    _scrubbed = _format.fitted(_scrubbed + part.distance / pointsPerStep *
                                               _format.stepWith(part.modifierFlags));
    if (const double reached = rounded(_scrubbed); reached != _value) choose(reached);
}

void HostNumberField::choose(double value)
{
    const double former = std::exchange(_value, _format.fitted(value));
    show();
    const auto action = _action;
    if (action && _value != former) action(*this);
}

std::unique_ptr<HostNumberField> HostInterfaceFactory::makeNumberField(
    const HostControlDescription& description, const HostNumberFormat& format)
{
    return std::make_unique<HostNumberField>(makeTextField(description), format,
                                             decimalSeparator());
}

}  // namespace vantorel
