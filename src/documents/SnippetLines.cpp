#include "documents/SnippetLines.h"

#include "text/Unicode.h"

namespace vantorel {
namespace {

/// Returns the place in UTF-8 of a place in the same text in UTF-16. Both grow from call to call.
class PlacesInUtf8 {
public:
    PlacesInUtf8(std::u16string_view units, std::size_t begin) : _units(units), _place(begin) {}

    std::size_t of(std::size_t unit)
    {
        for (; _unit < unit; ++_unit) {
            const char16_t c = _units[_unit];
            // Both halves of a surrogate pair count two bytes.
            const bool isSurrogate = c >= 0xD800 && c < 0xE000;
            _place += c < 0x80 ? 1U : c < 0x800 || isSurrogate ? 2U : 3U;
        }
        return _place;
    }

private:
    std::u16string_view _units;
    std::size_t _unit = 0;
    std::size_t _place;
};

}  // namespace

std::vector<SnippetLine> snippetLinesIn(const SnippetReaders& snippets, std::string_view text,
                                        TextRange line)
{
    const std::string_view bytes = line.in(text);
    // Every line of a snippet has a number. Bytes that are not UTF-8 would shift the places.
    if (bytes.find_first_of("0123456789") == std::string_view::npos || !isWellFormedUtf8(bytes))
        return {};
    const std::u16string units = utf16FromUtf8(bytes);
    PlacesInUtf8 places(units, line.begin);
    std::vector<SnippetLine> lines;
    for (const SnippetMatch& match : snippets.matchesIn(units)) {
        const std::size_t begin = places.of(match.begin);
        lines.push_back({{begin, places.of(match.end)},
                         match.color,
                         static_cast<std::uint16_t>(match.snippet)});
    }
    return lines;
}

DocumentColor colorOfSnippet(const SnippetLine& line)
{
    DocumentColor color;
    color.range = line.range;
    color.color = line.color;
    color.form = WrittenForm::snippet;
    color.snippet = line.snippet;
    return color;
}

}  // namespace vantorel
