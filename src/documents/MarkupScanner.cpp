#include "documents/MarkupScanner.h"

#include "documents/CodeScanner.h"
#include "documents/SnippetLines.h"
#include "documents/StyleBytes.h"
#include "documents/StyleScanner.h"

#include <algorithm>
#include <array>
#include <span>

namespace vantorel {
namespace {

/// Attributes with a value of CSS. Others count, too, if they are called a colour.
constexpr std::array<std::string_view, 14> colorAttributes{
    "fill", "stroke", "text",   "link", "vlink", "alink",      "values",
    "from", "to",     "filter", "by",   "tint",  "background", "border"};

bool isOneOf(std::string_view name, std::span<const std::string_view> names)
{
    return std::ranges::any_of(names,
                               [&](std::string_view each) { return equalsLowerCase(name, each); });
}

bool containsIgnoringCase(std::string_view text, std::string_view lowerCase)
{
    const auto isSame = [](char left, char right) { return vantorel::lowerCase(left) == right; };
    return std::search(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(), isSame) !=
           text.end();
}

bool isNameEnd(char c)
{
    return isStyleBlank(c) || c == '=' || c == '>' || c == '/' || c == '\0';
}

/// Whether an attribute of Vue contains JavaScript.
bool isBinding(std::string_view name)
{
    return name.starts_with(':') || name.starts_with('@') || name.starts_with("v-");
}

DocumentLanguage styleLanguageOf(std::string_view name)
{
    if (equalsLowerCase(name, "less")) return DocumentLanguage::less;
    if (equalsLowerCase(name, "scss")) return DocumentLanguage::scss;
    return DocumentLanguage::css;
}

}  // namespace

std::size_t MarkupScanner::scan(std::size_t leastEnd)
{
    while (_place < _text.size()) {
        const std::size_t tag = _text.find('<', _place);
        if (tag == std::string_view::npos) return _text.size();
        if (tag >= leastEnd && tag > 0) return tag;
        _place = tag;
        const std::string_view rest = _text.substr(tag);
        if (rest.starts_with("<!--")) {
            skipPast("-->", tag + 4);
        } else if (rest.starts_with("<?") || rest.starts_with("<%")) {
            skipPast(rest[1] == '?' ? "?>" : "%>", tag + 2);
        } else if (isLetter(at(tag + 1))) {
            if (!readSnippet()) readTag();
        } else {
            ++_place;
        }
    }
    return _text.size();
}

void MarkupScanner::skipPast(std::string_view end, std::size_t from)
{
    const std::size_t place = _text.find(end, from);
    _place = place == std::string_view::npos ? _text.size() : place + end.size();
}

/// Reads an element such as <color name="accent">#ff8000</color>, if it is the line of a snippet.
bool MarkupScanner::readSnippet()
{
    if (_snippets == nullptr || !equalsLowerCase(_text.substr(_place + 1, 5), "color"))
        return false;
    const TextRange line{_place, std::min(_text.find('\n', _place), _text.size())};
    const auto lines = snippetLinesIn(*_snippets, _text, line);
    if (lines.empty() || lines.front().range.begin != _place) return false;
    _part.colors.push_back(colorOfSnippet(lines.front()));
    _place = lines.front().range.end;
    return true;
}

void MarkupScanner::readTag()
{
    const std::size_t begin = ++_place;
    while (!isNameEnd(at(_place)))
        ++_place;
    const std::string_view tag = _text.substr(begin, _place - begin);
    auto styles = DocumentLanguage::css;
    while (_place < _text.size() && _text[_place] != '>') {
        const char c = _text[_place];
        if (c == '<') return;  // The tag is not closed: someone is typing.
        if (c == '{') {
            skipBraces();
        } else if (isStyleBlank(c) || c == '/' || c == '=' || c == '"' || c == '\'') {
            ++_place;
        } else {
            const Attribute attribute = readAttribute();
            scanAttribute(tag, attribute);
            const std::string_view name = attribute.name.in(_text);
            if (equalsLowerCase(name, "lang")) styles = styleLanguageOf(attribute.value.in(_text));
        }
    }
    const bool isEmpty = at(_place - 1) == '/';
    if (_place < _text.size()) ++_place;
    if (isEmpty) return;
    if (equalsLowerCase(tag, "style") || equalsLowerCase(tag, "script")) scanContent(tag, styles);
}

/// Reads a name and a value, if there is one. The place must be at the name.
MarkupScanner::Attribute MarkupScanner::readAttribute()
{
    Attribute attribute;
    attribute.name.begin = _place;
    while (!isNameEnd(at(_place)))
        ++_place;
    attribute.name.end = _place;
    if (attribute.name.length() == 0) ++_place;  // A NUL.
    std::size_t equals = _place;
    while (isStyleBlank(at(equals)))
        ++equals;
    if (at(equals) != '=') return attribute;
    _place = equals + 1;
    while (isStyleBlank(at(_place)))
        ++_place;
    const char quote = at(_place);
    attribute.value.begin = _place;
    if (quote == '"' || quote == '\'') {
        attribute.value.begin = ++_place;
        attribute.value.end = std::min(_text.find(quote, _place), _text.size());
        _place = std::min(attribute.value.end + 1, _text.size());
    } else if (quote == '{') {
        skipBraces();
        attribute.value.end = _place;
    } else {
        while (_place < _text.size() && !isStyleBlank(_text[_place]) && _text[_place] != '>')
            ++_place;
        attribute.value.end = _place;
    }
    return attribute;
}

void MarkupScanner::skipBraces()
{
    std::size_t depth = 0;
    while (_place < _text.size()) {
        const char c = _text[_place++];
        if (c == '{') ++depth;
        if (c == '}' && --depth == 0) return;
    }
}

void MarkupScanner::scanAttribute(std::string_view tag, const Attribute& attribute)
{
    if (attribute.value.length() == 0) return;
    const std::string_view name = attribute.name.in(_text);
    const std::string_view value = attribute.value.in(_text);
    const bool isScript =
        value.starts_with('{') || (_language == DocumentLanguage::vue && isBinding(name));
    if (isScript) {
        CodeScanner(_text, DocumentLanguage::script, nullptr, _part).scanRange(attribute.value);
        return;
    }
    StyleScanner styles(_text, DocumentLanguage::css, _part);
    if (equalsLowerCase(name, "style")) {
        styles.scanDeclarations(attribute.value);
        return;
    }
    const bool isColored =
        isOneOf(name, colorAttributes) || containsIgnoringCase(name, "color") ||
        // `<meta name="theme-color" content="#fff">` and `<input type="color" value="#fff">`
        (value.starts_with('#') &&
         ((equalsLowerCase(tag, "meta") && equalsLowerCase(name, "content")) ||
          (equalsLowerCase(tag, "input") && equalsLowerCase(name, "value"))));
    if (isColored) styles.scanValue(attribute.name, attribute.value);
}

/// Scans the content of <style> or <script>, up to the closing tag.
void MarkupScanner::scanContent(std::string_view tag, DocumentLanguage styles)
{
    const TextRange content{
        _place, [&] {
            std::size_t end = _text.find('<', _place);
            while (end != std::string_view::npos &&
                   !(at(end + 1) == '/' &&
                     equalIgnoringCase(_text.substr(end + 2, tag.size()), tag))) {
                end = _text.find('<', end + 1);
            }
            return std::min(end, _text.size());
        }()};
    _place = content.end;
    if (equalsLowerCase(tag, "style")) {
        StyleScanner(_text, styles, _part).scanRules(content);
    } else {
        CodeScanner(_text, DocumentLanguage::script, nullptr, _part).scanRange(content);
    }
}

}  // namespace vantorel
