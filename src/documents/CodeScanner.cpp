#include "documents/CodeScanner.h"

#include "documents/CodeSyntax.h"
#include "documents/StyleBytes.h"
#include "documents/StyleScanner.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

bool isWordByte(char c)
{
    return isLetterOrDigit(c) || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

/// Whether a "/" after this byte begins a regular expression of JavaScript, not a division.
bool precedesExpression(char previous)
{
    return previous == '\0' ||
           std::string_view("(,=:[!&|?{};+*%<>~^").find(previous) != std::string_view::npos;
}

HostColor colorOfNumber(std::uint32_t number, std::uint32_t alpha)
{
    const auto channel = [](std::uint32_t byte) { return (byte & 0xFF) / 255.0; };
    return HostColor::colorWithCalibratedRed(channel(number >> 16), channel(number >> 8),
                                             channel(number), channel(alpha));
}

}  // namespace

CodeScanner::CodeScanner(std::string_view text, DocumentLanguage language,
                         const SnippetReaders* snippets, DocumentPart& part)
    : _text(text),
      _language(language),
      _syntax(codeSyntax(language)),
      _snippets(snippets),
      _part(part),
      _end(text.size())
{
}

std::size_t CodeScanner::scan(std::size_t leastEnd)
{
    return scanCode(leastEnd);
}

void CodeScanner::scanRange(TextRange range)
{
    _place = range.begin;
    _end = range.end;
    scanCode(_end);
}

std::size_t CodeScanner::scanCode(std::size_t leastEnd)
{
    beginLine();
    while (_place < _end) {
        const char c = _text[_place];
        if (c == '\n') {
            ++_place;
            beginLine();
            // What precedes a line decides nothing in it, so that a scan can begin here.
            if (_holes.empty()) _previous = '\0';
            if (_place >= leastEnd && _holes.empty()) return _place;
            continue;
        }
        if (isStyleBlank(c)) {
            ++_place;
            continue;
        }
        if (skipComment() || readSnippet()) continue;
        if (_syntax.quotes.find(c) != std::string_view::npos) {
            readQuote();
        } else if (c == '`' && _language == DocumentLanguage::script) {
            ++_place;
            readTemplate();
        } else if (c == '/' && _language == DocumentLanguage::script &&
                   precedesExpression(_previous)) {
            skipRegularExpression();
        } else if (isDigit(c)) {
            readNumber();
        } else if (isWordByte(c)) {
            while (isWordByte(at(_place)))
                ++_place;
        } else if (c == '{' && !_holes.empty()) {
            ++_holes.back();
            ++_place;
        } else if (c == '}' && !_holes.empty() && --_holes.back() == 0) {
            _holes.pop_back();
            ++_place;
            readTemplate();
        } else {
            ++_place;
        }
        _previous = _text[std::min(_place, _end) - 1];
    }
    return _end;
}

void CodeScanner::beginLine()
{
    if (_snippets == nullptr) return;
    const TextRange line{_place, std::min(_text.find('\n', _place), _end)};
    _snippetLines = snippetLinesIn(*_snippets, _text, line);
    _nextSnippetLine = 0;
}

bool CodeScanner::readSnippet()
{
    while (_nextSnippetLine < _snippetLines.size() &&
           _snippetLines[_nextSnippetLine].range.begin < _place) {
        ++_nextSnippetLine;
    }
    if (_nextSnippetLine == _snippetLines.size()) return false;
    const SnippetLine& line = _snippetLines[_nextSnippetLine];
    if (line.range.begin != _place) return false;
    _part.colors.push_back(colorOfSnippet(line));
    _place = line.range.end;
    _previous = _text[_place - 1];
    return true;
}

bool CodeScanner::skipComment()
{
    if (!_syntax.commentBegin.empty() && startsWith(_syntax.commentBegin)) {
        const std::size_t close =
            _text.substr(0, _end).find(_syntax.commentEnd, _place + _syntax.commentBegin.size());
        _place = close == std::string_view::npos ? _end : close + _syntax.commentEnd.size();
        return true;
    }
    if (_syntax.lineComment.empty() || !startsWith(_syntax.lineComment)) return false;
    // In shells, a "#" within a word is part of it.
    const bool isInWord = _language == DocumentLanguage::hashCode && _place > 0 &&
                          !isStyleBlank(_text[_place - 1]) && _previous != '\0' &&
                          isWordByte(_text[_place - 1]);
    if (isInWord) return false;
    _place = std::min(_text.find('\n', _place), _end);
    return true;
}

void CodeScanner::readQuote()
{
    const char quote = _text[_place++];
    if (_syntax.hasTripleQuotes && at(_place) == quote && at(_place + 1) == quote) {
        _place += 2;
        readTripleString(quote);
    } else {
        readString(quote);
    }
}

/// Reads a string that ends with its line if it is not closed. The place is after the quotation
/// mark.
void CodeScanner::readString(char quote)
{
    const std::size_t begin = _place;
    while (_place < _end && _text[_place] != quote && _text[_place] != '\n') {
        if (_text[_place] == '\\' && at(_place + 1) != '\n') ++_place;
        ++_place;
    }
    _place = std::min(_place, _end);
    if (at(_place) != quote) return;
    scanString({begin, _place});
    ++_place;
}

void CodeScanner::readTripleString(char quote)
{
    const std::array<char, 3> marks{quote, quote, quote};
    const std::size_t begin = _place;
    const std::size_t close = _text.substr(0, _end).find({marks.data(), marks.size()}, _place);
    _place = close == std::string_view::npos ? _end : close + marks.size();
    scanString({begin, std::min(close, _end)});
}

/// Reads a template up to its end or its next "${". The place is after the "`" or the "}".
void CodeScanner::readTemplate()
{
    if (_text[_place - 1] == '`' && isTemplateOfStyles()) {
        const TextRange styles{_place, endOfStyles()};
        StyleScanner(_text, DocumentLanguage::scss, _part).scanRules(styles);
        _place = std::min(styles.end + 1, _end);
        return;
    }
    const std::size_t begin = _place;
    while (_place < _end) {
        const char c = _text[_place];
        if (c == '`' || (c == '$' && at(_place + 1) == '{')) {
            scanString({begin, _place});
            _place += c == '`' ? 1 : 2;
            if (c == '$') _holes.push_back(1);
            return;
        }
        _place += c == '\\' ? 2 : 1;
    }
    _place = _end;
}

/// Whether the template after the place has a tag such as css or styled.div.
bool CodeScanner::isTemplateOfStyles() const
{
    constexpr std::size_t longestTag = 80;
    const std::size_t quote = _place - 1;
    std::size_t begin = quote;
    const auto isTagByte = [](char c) {
        return isWordByte(c) || std::string_view(".()<>'\"$").find(c) != std::string_view::npos;
    };
    while (begin > 0 && quote - begin < longestTag && isTagByte(_text[begin - 1]))
        --begin;
    const std::string_view tag = _text.substr(begin, quote - begin);
    return tag == "css" || tag.ends_with(".css") || tag == "keyframes" || tag == "injectGlobal" ||
           tag.starts_with("styled.") || tag.starts_with("styled(") ||
           tag.starts_with("createGlobalStyle");
}

/// Returns the place of the "`" that ends a template of styles.
std::size_t CodeScanner::endOfStyles() const
{
    std::size_t place = _place;
    while (place < _end && _text[place] != '`') {
        if (_text[place] == '$' && at(place + 1) == '{') {
            place = endOfTemplateHole(_text, place + 2, _end);
        } else {
            place += _text[place] == '\\' ? std::size_t{2} : std::size_t{1};
        }
    }
    return std::min(place, _end);
}

/// Skips "/.../" on one line. Without its end, only the first "/" is skipped.
void CodeScanner::skipRegularExpression()
{
    bool isInClass = false;
    for (std::size_t place = _place + 1; place < _end && _text[place] != '\n'; ++place) {
        const char c = _text[place];
        if (c == '\\') {
            ++place;
        } else if (c == '/' && !isInClass) {
            _place = place + 1;
            return;
        } else if (c == '[' || c == ']') {
            isInClass = c == '[';
        }
    }
    // The rest of the line has no "/" that could end one.
    _place = std::min(_text.find('\n', _place), _end);
}

/// Reads a number. 0xRRGGBB is a colour, and 0xAARRGGBB is one if it is opaque: most other numbers
/// of eight digits are none.
void CodeScanner::readNumber()
{
    const std::size_t begin = _place;
    const bool isHex = startsWith("0x") || startsWith("0X");
    if (isHex) _place += 2;
    const std::size_t digits = _place;
    while (isHexDigit(at(_place)))
        ++_place;
    const std::size_t end = _place;
    while (isWordByte(at(_place)))
        ++_place;
    const std::string_view suffix = _text.substr(end, _place - end);
    const bool isWhole =
        suffix.empty() || suffix.find_first_not_of("uUlL") == std::string_view::npos;
    const std::size_t count = end - digits;
    if (!isHex || !isWhole || (count != 6 && count != 8)) return;
    std::uint32_t number = 0;
    for (std::size_t i = digits; i < end; ++i)
        number = number << 4 | hexDigitValue(_text[i]);
    if (count == 8 && number >> 24 != 0xFF) return;
    add({begin, end}, colorOfNumber(number, 0xFF), WrittenForm::hexNumber, CSSColorForm::hex);
}

void CodeScanner::add(TextRange range, const HostColor& color, WrittenForm form,
                      CSSColorForm cssForm)
{
    DocumentColor found;
    found.range = range;
    found.color = color;
    found.form = form;
    found.cssForm = cssForm;
    _part.colors.push_back(found);
}

}  // namespace vantorel
