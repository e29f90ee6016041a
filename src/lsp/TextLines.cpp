#include "lsp/TextLines.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace vantorel {
namespace {

/// Appends the beginnings of the lines that begin in a range, apart from its own beginning.
void appendLineBegins(std::vector<std::size_t>& begins, std::string_view text, std::size_t begin,
                      std::size_t end)
{
    for (std::size_t place = begin; place < end; ++place) {
        const char c = text[place];
        if (c != '\n' && c != '\r') continue;
        if (c == '\r' && place + 1 < text.size() && text[place + 1] == '\n') continue;
        begins.push_back(place + 1);
    }
}

bool isContinuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// How many UTF-16 units a byte begins.
std::size_t unitsOf(char c)
{
    if (isContinuation(c)) return 0;
    return static_cast<unsigned char>(c) >= 0xF0 ? 2 : 1;
}

/// Returns the length of the beginning of a text that is ASCII, in steps of eight bytes.
std::size_t lengthOfASCII(std::string_view text)
{
    std::size_t length = 0;
    for (; length + 8 <= text.size(); length += 8) {
        std::uint64_t bytes = 0;
        std::memcpy(&bytes, text.data() + length, sizeof bytes);
        if ((bytes & 0x8080808080808080U) != 0) break;
    }
    return length;
}

}  // namespace

std::size_t columnsOf(std::string_view text, PositionEncoding encoding)
{
    if (encoding == PositionEncoding::utf8) return text.size();
    std::size_t units = 0;
    while (!text.empty()) {
        const std::size_t ascii = lengthOfASCII(text);
        units += ascii;
        text.remove_prefix(ascii);
        const std::size_t rest = std::min<std::size_t>(text.size(), 8);
        for (const char c : text.substr(0, rest))
            units += unitsOf(c);
        text.remove_prefix(rest);
    }
    return units;
}

TextLines::TextLines(std::string_view text)
{
    _begins.push_back(0);
    appendLineBegins(_begins, text, 0, text.size());
}

void TextLines::replace(std::string_view text, TextRange oldRange, std::size_t length)
{
    // A line feed at the beginning of the edit belongs to a carriage return before it.
    const std::size_t before = oldRange.begin > 0 ? oldRange.begin - 1 : 0;
    const auto first = std::prev(std::ranges::upper_bound(_begins, before));
    const auto last = std::ranges::upper_bound(_begins, oldRange.end + 1);
    const auto shifted = [&](std::size_t place) { return place - oldRange.length() + length; };
    std::vector<std::size_t> begins{*first};
    const std::size_t end = last == _begins.end() ? text.size() : shifted(*last);
    appendLineBegins(begins, text, *first, end);
    // The line that begins at `end` is there already.
    if (last != _begins.end() && begins.back() == end) begins.pop_back();
    for (auto begin = last; begin != _begins.end(); ++begin)
        *begin = shifted(*begin);
    const auto place = _begins.erase(first, last);
    _begins.insert(place, begins.begin(), begins.end());
}

std::size_t TextLines::place(std::string_view text, Position position,
                             PositionEncoding encoding) const
{
    if (position.line >= _begins.size()) return text.size();
    std::size_t place = _begins[position.line];
    std::size_t end = position.line + 1 < _begins.size() ? _begins[position.line + 1] : text.size();
    while (end > place && (text[end - 1] == '\n' || text[end - 1] == '\r'))
        --end;
    if (encoding == PositionEncoding::utf8) {
        place += std::min(position.character, end - place);
        // Not within a character.
        while (place > _begins[position.line] && place < end && isContinuation(text[place]))
            --place;
        return place;
    }
    std::size_t units = 0;
    while (place < end && units < position.character) {
        const std::size_t most = std::min(end - place, position.character - units);
        const std::size_t ascii = lengthOfASCII(text.substr(place, most));
        units += ascii;
        place += ascii;
        if (ascii > 0) continue;
        units += unitsOf(text[place]);
        if (units > position.character) break;  // Within a character.
        ++place;
        while (place < end && isContinuation(text[place]))
            ++place;
    }
    return place;
}

Position TextLines::position(std::string_view text, std::size_t place,
                             PositionEncoding encoding) const
{
    const auto line = std::prev(std::ranges::upper_bound(_begins, place));
    return {static_cast<std::size_t>(line - _begins.begin()),
            columnsOf(text.substr(*line, place - *line), encoding)};
}

Position PositionWalker::to(std::size_t place)
{
    if (place < _begins[_position.line]) {
        const auto line = std::prev(std::ranges::upper_bound(_begins, place));
        _place = *line;
        _position = {static_cast<std::size_t>(line - _begins.begin()), 0};
    }
    if (place < _place) {
        _position.character -= columnsOf(_text.substr(place, _place - place), _encoding);
        _place = place;
        return _position;
    }
    std::size_t line = _position.line;
    while (line + 1 < _begins.size() && _begins[line + 1] <= place)
        ++line;
    if (line != _position.line) {
        _position = {line, 0};
        _place = _begins[line];
    }
    _position.character += columnsOf(_text.substr(_place, place - _place), _encoding);
    _place = place;
    return _position;
}

}  // namespace vantorel
