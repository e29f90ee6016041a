#include "snippets/FormatParts.h"

#include "text/ASCII.h"

#include <algorithm>
#include <optional>

namespace vantorel {
namespace {

using Length = FormatConversion::Length;

std::size_t readNumber(std::u16string_view format, std::size_t& place, std::size_t most)
{
    std::size_t number = 0;
    for (; place < format.size() && isDigit(format[place]); ++place) {
        number = std::min(most, number * 10 + (format[place] - std::size_t{u'0'}));
    }
    return number;
}

void readFlags(std::u16string_view format, std::size_t& place, FormatField& field)
{
    for (; place < format.size(); ++place) {
        switch (format[place]) {
            case u'-':
                field.leftAligned = true;
                break;
            case u'+':
                field.plusSign = true;
                break;
            case u' ':
                field.blankSign = true;
                break;
            case u'0':
                field.zeroPadded = true;
                break;
            case u'#':
                field.alternate = true;
                break;
            default:
                return;
        }
    }
}

Length readLength(std::u16string_view format, std::size_t& place)
{
    constexpr std::u16string_view longs = u"lqjztL";
    std::size_t halves = 0;
    Length length = Length::none;
    for (; place < format.size(); ++place) {
        if (format[place] == u'h') {
            length = ++halves > 1 ? Length::hh : Length::h;
        } else if (longs.find(format[place]) != std::u16string_view::npos) {
            length = Length::l;
        } else {
            break;
        }
    }
    return length;
}

/// Reads the conversion at the beginning of a format and sets `size` to its length. Returns
/// `std::nullopt` if the format ends before the conversion's letter.
std::optional<FormatConversion> readConversion(std::u16string_view format, std::size_t& size)
{
    std::size_t place = 1;
    FormatConversion conversion;
    readFlags(format, place, conversion.field);
    conversion.field.width = readNumber(format, place, widestFormatField);
    if (place < format.size() && format[place] == u'.') {
        ++place;
        conversion.field.precision = readNumber(format, place, finestFormatPrecision);
    }
    conversion.length = readLength(format, place);
    if (place >= format.size()) return std::nullopt;
    conversion.letter = format[place++];
    size = place;
    return conversion;
}

bool printsArgument(char16_t letter)
{
    constexpr std::u16string_view letters = u"diuoxXcfFeEgGaAs@";
    return letters.find(letter) != std::u16string_view::npos;
}

}  // namespace

bool FormatPartReader::next(FormatPart& part)
{
    if (_format.empty()) return false;
    part.isConversion = false;
    std::size_t size = std::min(_format.find(u'%'), _format.size());
    if (size > 0) {
        part.text = _format.substr(0, size);
        _format.remove_prefix(size);
        return true;
    }
    const auto conversion = readConversion(_format, size);
    if (!conversion) size = _format.size();
    part.text = _format.substr(0, size);
    _format.remove_prefix(size);
    if (!conversion) return true;
    if (conversion->letter == u'%') {
        part.text = part.text.substr(size - 1);
    } else if (_argumentsLeft > 0 && printsArgument(conversion->letter)) {
        --_argumentsLeft;
        part.isConversion = true;
        part.conversion = *conversion;
    }
    return true;
}

}  // namespace vantorel
