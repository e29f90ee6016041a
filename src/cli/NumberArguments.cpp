#include "cli/NumberArguments.h"

#include "cli/Failure.h"
#include "result/HarmlessLine.h"
#include "text/Decimals.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

namespace vantorel {
namespace {

std::optional<double> finiteNumber(std::string_view text)
{
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end || !std::isfinite(number)) return std::nullopt;
    return number;
}

bool dropEnding(std::string_view& text, std::string_view ending)
{
    if (!text.ends_with(ending)) return false;
    text.remove_suffix(ending.size());
    return true;
}

[[noreturn]] void reject(const std::string& what, const std::string& text, Phrase remedy)
{
    throw Failure{{phrase("%1 cannot be \"%2\"", what, excerpt(text)), std::move(remedy)}};
}

}  // namespace

double requiredFraction(const std::string& what, const std::string& text)
{
    std::string_view digits = text;
    const double unit = dropEnding(digits, "%") ? 100 : 1;
    const auto number = finiteNumber(digits);
    if (!number || *number < 0 || *number > unit)
        reject(what, text, phrase("use a number from 0 to 1, or a percentage such as 20%"));
    return *number / unit;
}

double requiredDegrees(const std::string& what, const std::string& text)
{
    std::string_view digits = text;
    dropEnding(digits, "deg");
    const auto number = finiteNumber(digits);
    if (!number) reject(what, text, phrase("use a number of degrees, such as 90 or -22.5"));
    return std::fmod(*number, 360);
}

int requiredCount(const std::string& what, const std::string& text, int fewest, int most)
{
    const auto number = wholeNumber<int>(text);
    if (!number || *number < fewest || *number > most)
        reject(what, text, phrase("use a whole number from %1 to %2", fewest, most));
    return *number;
}

}  // namespace vantorel
