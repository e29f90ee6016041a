#include "plist/PropertyListReader.h"

#include "text/ASCII.h"
#include "text/HexDigits.h"

#include <algorithm>
#include <cstdint>
#include <unordered_map>

namespace vantorel {
namespace {

bool isSpace(char16_t c)
{
    return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
           (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F ||
           c == 0x205F || c == 0x3000;
}

bool isLineEnd(char16_t c)
{
    return c == u'\n' || c == u'\r' || c == 0x2028 || c == 0x2029;
}

bool isBare(char16_t c)
{
    return isLetterOrDigit(c) || c == u'_' || c == u'$' || c == u'/' || c == u':' || c == u'.' ||
           c == u'-';
}

std::optional<unsigned> digitOf(char16_t c, unsigned base)
{
    const unsigned value = hexDigitValue(c);
    if (value >= base) return std::nullopt;
    return value;
}

/// A recursive-descent parser. Each function returns an empty result on a syntax error, which ends
/// the parse.
class Parser {
public:
    explicit Parser(std::u16string_view text) : _text(text)
    {
        if (_text.starts_with(u'\uFEFF')) _place = 1;
    }

    std::optional<PropertyList> whole()
    {
        auto result = value(0);
        if (!result || !skipSpace() || !atEnd()) return std::nullopt;
        return result;
    }

    /// Where the parser is. After a syntax error, this is where it was found.
    [[nodiscard]] std::size_t place() const { return _place; }

private:
    [[nodiscard]] bool atEnd() const { return _place >= _text.size(); }
    [[nodiscard]] char16_t here() const { return _text[_place]; }
    [[nodiscard]] bool startsWith(std::u16string_view what) const
    {
        return _text.substr(_place).starts_with(what);
    }

    bool take(char16_t c)
    {
        if (atEnd() || here() != c) return false;
        ++_place;
        return true;
    }

    /// Skips white space and comments. Returns false for an unterminated comment.
    bool skipSpace()
    {
        while (!atEnd()) {
            if (isSpace(here())) {
                ++_place;
            } else if (startsWith(u"//")) {
                while (!atEnd() && !isLineEnd(here()))
                    ++_place;
            } else if (startsWith(u"/*")) {
                const std::size_t end = _text.find(u"*/", _place + 2);
                if (end == std::u16string_view::npos) return false;
                _place = end + 2;
            } else {
                break;
            }
        }
        return true;
    }

    std::optional<PropertyList> value(std::size_t depth)
    {
        if (depth > deepestPropertyList || !skipSpace() || atEnd()) return std::nullopt;
        if (take(u'{')) return dictionary(depth);
        if (take(u'(')) return array(depth);
        if (take(u'<')) return data();
        auto text = string();
        if (!text) return std::nullopt;
        return PropertyList(std::move(*text));
    }

    std::optional<PropertyList> dictionary(std::size_t depth)
    {
        PropertyList::Dictionary entries;
        std::unordered_map<std::u16string, std::size_t> places;
        while (true) {
            if (!skipSpace()) return std::nullopt;
            if (take(u'}')) return PropertyList(std::move(entries));
            auto key = string();
            if (!key || !skipSpace() || !take(u'=')) return std::nullopt;
            auto entry = value(depth + 1);
            if (!entry || !skipSpace()) return std::nullopt;
            const auto [found, isNew] = places.try_emplace(*key, entries.size());
            if (isNew) {
                entries.emplace_back(std::move(*key), std::move(*entry));
            } else {
                entries[found->second].second = std::move(*entry);
            }
            if (!take(u';') && (atEnd() || here() != u'}')) return std::nullopt;
        }
    }

    std::optional<PropertyList> array(std::size_t depth)
    {
        PropertyList::Array elements;
        while (true) {
            if (!skipSpace()) return std::nullopt;
            if (take(u')')) return PropertyList(std::move(elements));
            auto element = value(depth + 1);
            if (!element || !skipSpace()) return std::nullopt;
            elements.push_back(std::move(*element));
            if (!take(u',') && (atEnd() || here() != u')')) return std::nullopt;
        }
    }

    std::optional<PropertyList> data()
    {
        std::string bytes;
        std::optional<unsigned> high;
        for (; !atEnd(); ++_place) {
            const char16_t c = here();
            if (isSpace(c)) continue;
            if (take(u'>')) {
                if (high) return std::nullopt;
                return PropertyList::data(std::move(bytes));
            }
            if (!isHexDigit(c)) return std::nullopt;
            const unsigned digit = hexDigitValue(c);
            if (high) {
                bytes.push_back(static_cast<char>(*high * 16 + digit));
                high.reset();
            } else {
                high = digit;
            }
        }
        return std::nullopt;
    }

    std::optional<std::u16string> string()
    {
        if (atEnd()) return std::nullopt;
        if (here() == u'"' || here() == u'\'') return quoted(_text[_place++]);
        const std::size_t start = _place;
        while (!atEnd() && isBare(here()))
            ++_place;
        if (_place == start) return std::nullopt;
        return std::u16string(_text.substr(start, _place - start));
    }

    std::optional<std::u16string> quoted(char16_t quote)
    {
        std::u16string result;
        while (!atEnd()) {
            const char16_t c = _text[_place++];
            if (c == quote) return result;
            if (c != u'\\') {
                result.push_back(c);
            } else {
                appendEscape(result);
            }
        }
        return std::nullopt;
    }

    /// Appends the character that the escape after a backslash denotes; none at the end of the
    /// text.
    void appendEscape(std::u16string& result)
    {
        if (atEnd()) return;
        const char16_t c = _text[_place++];
        constexpr std::u16string_view names = u"abfnrtv";
        constexpr std::u16string_view meanings = u"\a\b\f\n\r\t\v";
        const std::size_t name = names.find(c);
        if (name != std::u16string_view::npos) {
            result.push_back(meanings[name]);
        } else if (digitOf(c, 8)) {
            --_place;
            result.push_back(codeUnit(8, 3));
        } else if ((c == u'U' || c == u'u') && !atEnd() && isHexDigit(here())) {
            result.push_back(codeUnit(16, 4));
        } else if (c != u'\n') {
            result.push_back(c);
        }
    }

    char16_t codeUnit(unsigned base, int mostDigits)
    {
        unsigned unit = 0;
        for (int i = 0; i < mostDigits && !atEnd(); ++i, ++_place) {
            const auto digit = digitOf(here(), base);
            if (!digit) break;
            unit = unit * base + *digit;
        }
        return static_cast<char16_t>(unit);
    }

    std::u16string_view _text;
    std::size_t _place = 0;
};

}  // namespace

std::optional<PropertyList> parsePropertyList(std::u16string_view text)
{
    return Parser(text).whole();
}

std::size_t lineOfPropertyListError(std::u16string_view text)
{
    Parser parser(text);
    if (parser.whole()) return 0;
    const auto before = text.substr(0, parser.place());
    return 1 + static_cast<std::size_t>(std::ranges::count(before, u'\n'));
}

}  // namespace vantorel
