#include "listformats/XmlTags.h"

#include "listformats/ListContents.h"
#include "listformats/Svg.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace vantorel {
namespace {

std::string_view withoutPrefix(std::string_view name)
{
    return name.substr(name.find(':') + 1);
}

bool endsName(char c)
{
    return listBlanks.find(c) != std::string_view::npos || c == '=' || c == '/' || c == '>';
}

/// Returns the character of a reference such as "amp" or "#x41"; empty for any other.
std::string characterOf(std::string_view reference)
{
    constexpr std::array<std::pair<std::string_view, char>, 5> named{
        {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}}};
    for (const auto& [name, character] : named)
        if (reference == name) return {character};
    if (!reference.starts_with('#')) return {};
    reference.remove_prefix(1);
    const bool isHex = reference.starts_with('x');
    if (isHex) reference.remove_prefix(1);
    std::uint32_t code = 0;
    const auto [end, error] = std::from_chars(reference.data(), reference.data() + reference.size(),
                                              code, isHex ? 16 : 10);
    constexpr std::uint32_t lastCode = 0x10FFFF;
    if (error != std::errc() || end != reference.data() + reference.size() || code > lastCode)
        return {};
    std::u16string text;
    constexpr std::uint32_t firstPair = 0x10000;
    if (code >= firstPair) {
        text += static_cast<char16_t>(0xD800 + ((code - firstPair) >> 10));
        text += static_cast<char16_t>(0xDC00 + ((code - firstPair) & 0x3FF));
    } else {
        text += static_cast<char16_t>(code);
    }
    return utf8FromUtf16(text);
}

std::string withoutEntities(std::string_view value)
{
    std::string text;
    while (!value.empty()) {
        const std::size_t start = std::min(value.find('&'), value.size());
        text += value.substr(0, start);
        value.remove_prefix(start);
        if (value.empty()) break;
        constexpr std::size_t longestReference = 12;
        const std::size_t end = value.substr(0, longestReference).find(';');
        const std::string character =
            end != std::string_view::npos ? characterOf(value.substr(1, end - 1)) : std::string();
        if (character.empty()) {
            text += '&';
            value.remove_prefix(1);
        } else {
            text += character;
            value.remove_prefix(end + 1);
        }
    }
    return text;
}

}  // namespace

std::string_view XmlTag::attribute(std::string_view wanted) const
{
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [&](const auto& each) { return each.first == wanted; });
    return found != attributes.end() ? std::string_view(found->second) : std::string_view();
}

bool XmlTags::skipTo(std::string_view end)
{
    const std::size_t place = _rest.find(end);
    if (place == std::string_view::npos) {
        _rest = {};
        return false;
    }
    _rest.remove_prefix(place + end.size());
    return true;
}

bool XmlTags::readAttributes(XmlTag& tag)
{
    /// More are passed over.
    constexpr std::size_t mostAttributes = 64;
    while (true) {
        const std::size_t start = _rest.find_first_not_of(" \t\r\n/");
        if (start == std::string_view::npos) return false;
        _rest.remove_prefix(start);
        if (_rest.starts_with('>')) {
            _rest.remove_prefix(1);
            return true;
        }
        const auto* const nameEnd = std::find_if(_rest.begin(), _rest.end(), endsName);
        // Something that cannot be a name, such as "=", must not stop here for ever.
        const auto length =
            std::max<std::size_t>(1, static_cast<std::size_t>(nameEnd - _rest.begin()));
        const std::string_view name = _rest.substr(0, length);
        _rest.remove_prefix(length);
        const std::size_t sign = std::min(_rest.find_first_not_of(listBlanks), _rest.size());
        if (!_rest.substr(sign).starts_with('=')) continue;
        const std::size_t open = _rest.find_first_not_of(listBlanks, sign + 1);
        if (open == std::string_view::npos) return false;
        const char quote = _rest[open];
        if (quote != '"' && quote != '\'') {
            _rest.remove_prefix(open);
            continue;
        }
        const std::size_t close = _rest.find(quote, open + 1);
        if (close == std::string_view::npos) return false;
        if (tag.attributes.size() < mostAttributes) {
            tag.attributes.emplace_back(withoutPrefix(name),
                                        withoutEntities(_rest.substr(open + 1, close - open - 1)));
        }
        _rest.remove_prefix(close + 1);
    }
}

std::optional<XmlTag> XmlTags::next()
{
    while (skipTo("<")) {
        if (_rest.starts_with("!--")) {
            if (!skipTo("-->")) return std::nullopt;
        } else if (_rest.starts_with("![CDATA[")) {
            if (!skipTo("]]>")) return std::nullopt;
        } else if (_rest.starts_with('!') || _rest.starts_with('?')) {
            if (!skipTo(">")) return std::nullopt;
        } else {
            XmlTag tag;
            tag.isEnd = _rest.starts_with('/');
            if (tag.isEnd) _rest.remove_prefix(1);
            const auto* const nameEnd = std::find_if(_rest.begin(), _rest.end(), endsName);
            const auto length = static_cast<std::size_t>(nameEnd - _rest.begin());
            tag.name = withoutPrefix(_rest.substr(0, length));
            _rest.remove_prefix(length);
            if (!readAttributes(tag)) {
                _rest = {};
                return std::nullopt;
            }
            return tag;
        }
    }
    return std::nullopt;
}

std::string xmlAttributeText(const std::u16string& text)
{
    std::string escaped = svgText(text);
    for (std::size_t i = escaped.find('"'); i != std::string::npos; i = escaped.find('"', i))
        escaped.replace(i, 1, "&quot;");
    return escaped;
}

}  // namespace vantorel
