#include "documents/CodeScanner.h"
#include "documents/ColorLiterals.h"
#include "documents/StyleBytes.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <array>

/// Colours of CSS in strings of program code.
namespace vantorel {
namespace {

/// English words of letters a to f, which are identifiers rather than colours.
constexpr std::array<std::string_view, 40> hexWords{
    "abed", "accede", "ace",  "add",    "ade",  "babe",   "bad",  "bade",   "bead", "beaded",
    "bed",  "bede",   "bee",  "beef",   "cab",  "cabbed", "cad",  "cafe",   "cede", "ceded",
    "dab",  "dabbed", "dace", "dad",    "dead", "deaf",   "deb",  "decade", "deed", "deface",
    "ebb",  "efface", "fab",  "facade", "face", "fad",    "fade", "fed",    "fee",  "feed"};

/// What is given an identifier, an address or a selector.
constexpr std::array<std::string_view, 19> identifierNames{"anchor",
                                                           "closest",
                                                           "el",
                                                           "find",
                                                           "getelementbyid",
                                                           "hash",
                                                           "href",
                                                           "id",
                                                           "jquery",
                                                           "location",
                                                           "matches",
                                                           "queryselector",
                                                           "queryselectorall",
                                                           "selector",
                                                           "src",
                                                           "target",
                                                           "to",
                                                           "url",
                                                           "$"};

/// What is given a colour, apart from what is called one.
constexpr std::array<std::string_view, 6> colorNames{"background", "bg",     "fill",
                                                     "stroke",     "shadow", "tint"};

bool isWordByteOrDollar(char c)
{
    return isLetterOrDigit(c) || c == '_' || c == '$' || c == '-';
}

bool isBoundaryBefore(char c)
{
    return isStyleBlank(c) || std::string_view(",:;(=\"'>|").find(c) != std::string_view::npos;
}

bool isBoundaryAfter(char c)
{
    return isStyleBlank(c) || std::string_view(",;)!\"'\\</|}").find(c) != std::string_view::npos;
}

bool isColorName(std::string_view name)
{
    const std::string lower = lowerCased(std::string(name));
    return lower.find("color") != std::string::npos || lower.find("colour") != std::string::npos ||
           std::ranges::find(colorNames, lower) != colorNames.end();
}

}  // namespace

void CodeScanner::scanString(TextRange content)
{
    const std::string_view text = content.in(_text);
    if (text.find_first_of("#(") == std::string_view::npos) {
        // The name of a colour counts only where a colour is expected.
        if (_language != DocumentLanguage::script || text.size() > 20) return;
        const auto name = nameLiteral(text);
        if (name && isColorName(nameBefore(content.begin)))
            add(content, name->color, WrittenForm::css, CSSColorForm::named);
        return;
    }
    std::size_t place = content.begin;
    while (place < content.end) {
        const char c = _text[place];
        if (c == '#') {
            readHash(content, place);
        } else if (isLetter(c)) {
            readWord(content, place);
        } else {
            ++place;
        }
    }
}

void CodeScanner::readHash(TextRange content, std::size_t& place)
{
    const std::size_t begin = place++;
    while (place < content.end && isHexDigit(_text[place]))
        ++place;
    const bool isBounded = (begin == content.begin || isBoundaryBefore(_text[begin - 1])) &&
                           (place == content.end || isBoundaryAfter(_text[place]));
    if (!isBounded) return;
    const TextRange range{begin, place};
    const auto literal = hexLiteral(range.in(_text).substr(1));
    if (literal && !mayBeIdentifier(range))
        add(range, literal->color, WrittenForm::css, CSSColorForm::hex);
}

/// Reads a function of CSS, or skips a word.
void CodeScanner::readWord(TextRange content, std::size_t& place)
{
    const std::size_t begin = place;
    while (place < content.end && isStyleNameByte(_text[place]) && _text[place] != '\\')
        ++place;
    const std::string_view name = _text.substr(begin, place - begin);
    if (place == content.end || _text[place] != '(' || !isColorFunctionName(name)) return;
    if (begin > content.begin && !isBoundaryBefore(_text[begin - 1])) return;
    // Nested functions are read again for each, so the limit keeps the time linear.
    constexpr std::size_t longestFunction = 256;
    const std::size_t limit = std::min(content.end, begin + longestFunction);
    std::size_t depth = 0;
    for (std::size_t end = place; end < limit; ++end) {
        if (_text[end] == '(') ++depth;
        if (_text[end] != ')' || --depth > 0) continue;
        const TextRange range{begin, end + 1};
        if (const auto literal = colorLiteral(range.in(_text)))
            add(range, literal->color, WrittenForm::css, literal->form);
        return;
    }
    place = limit;
}

/// Returns the name to which a string is assigned or given: "color" in `color: "#fff"`,
/// `"color": "#fff"`, `color = "#fff"` and `color("#fff"`. The place is after a quotation mark.
std::string_view CodeScanner::nameBefore(std::size_t place) const
{
    constexpr std::size_t farthest = 80;
    const std::size_t least = place > farthest ? place - farthest : 0;
    const auto skip = [&](std::string_view bytes) {
        while (place > least && bytes.find(_text[place - 1]) != std::string_view::npos)
            --place;
    };
    skip("\"'`");
    skip(" \t");
    skip("=:({");
    skip(" \t\"'");
    const std::size_t end = place;
    while (place > least && isWordByteOrDollar(_text[place - 1]))
        --place;
    return _text.substr(place, end - place);
}

/// Whether a hex code may be the identifier of an element, such as "#add".
bool CodeScanner::mayBeIdentifier(TextRange code) const
{
    const std::string name = lowerCased(std::string(nameBefore(code.begin)));
    if (std::ranges::find(identifierNames, name) != identifierNames.end()) return true;
    const std::string digits = lowerCased(std::string(code.in(_text).substr(1)));
    const bool isWord = std::ranges::find(hexWords, digits) != hexWords.end();
    return isWord && !isColorName(name);
}

}  // namespace vantorel
