#include "color/RgbTriple.h"

#include "text/ASCII.h"

namespace vantorel {
namespace {

constexpr std::u16string_view opening = u"rgb(";
constexpr std::size_t digitLimit = 3;

bool isSeparator(char16_t c)
{
    return c == u' ' || c == u',';
}

/// Returns the index after the first "rgb(", or npos.
std::size_t placeAfterOpening(std::u16string_view text)
{
    for (std::size_t i = 0; i + opening.size() <= text.size(); ++i) {
        if (equalIgnoringCase(text.substr(i, opening.size()), opening)) return i + opening.size();
    }
    return std::u16string_view::npos;
}

}  // namespace

RgbTripleReading readRgbTriple(std::u16string_view text)
{
    std::size_t place = placeAfterOpening(text);
    if (place == std::u16string_view::npos) return {};

    RgbTripleReading reading;
    reading.found = true;
    std::array<std::uint64_t, 3> numbers{};
    std::size_t count = 0;
    bool closed = false;
    while (!closed && count < numbers.size()) {
        while (place < text.size() && isSeparator(text[place]))
            ++place;
        std::uint64_t number = 0;
        std::size_t digits = 0;
        for (; place < text.size() && !isSeparator(text[place]); ++place) {
            const char16_t c = text[place];
            if (c == u')') {
                closed = true;
                break;
            }
            if (!isDigit(c) || ++digits > digitLimit) return reading;
            number = number * 10 + (c - u'0');
        }
        if (digits == 0) return reading;
        numbers[count++] = number;
    }
    const bool inRange = (numbers[0] | numbers[1] | numbers[2]) < 256;
    if (count == numbers.size() && inRange) reading.components = numbers;
    return reading;
}

}  // namespace vantorel
