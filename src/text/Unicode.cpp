#include "text/Unicode.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace vantorel {
namespace {

constexpr bool isSurrogate(char32_t character)
{
    return character >= 0xD800 && character <= 0xDFFF;
}

/// Decodes the sequence at `position`. Returns its length in bytes, or 0 if it is ill-formed.
std::size_t decodeSequence(std::string_view text, std::size_t position, char32_t& character)
{
    const auto byteAt = [&](std::size_t i) {
        return i < text.size() ? static_cast<std::uint8_t>(text[i]) : std::uint8_t{0};
    };
    const std::uint8_t lead = byteAt(position);
    if (lead < 0x80) {
        character = lead;
        return 1;
    }
    std::size_t length = 0;
    char32_t smallest = 0;
    if ((lead & 0xE0) == 0xC0) {
        length = 2;
        smallest = 0x80;
        character = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        length = 3;
        smallest = 0x800;
        character = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        length = 4;
        smallest = 0x10000;
        character = lead & 0x07;
    } else {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        const std::uint8_t next = byteAt(position + i);
        if ((next & 0xC0) != 0x80) return 0;
        character = (character << 6) | (next & 0x3F);
    }
    const bool isCharacter =
        character >= smallest && character <= 0x10FFFF && !isSurrogate(character);
    return isCharacter ? length : 0;
}

void appendUtf8(std::string& text, char32_t character)
{
    const auto append = [&](char32_t byte) { text.push_back(static_cast<char>(byte)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0 | (character >> 6));
        append(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        append(0xE0 | (character >> 12));
        append(0x80 | ((character >> 6) & 0x3F));
        append(0x80 | (character & 0x3F));
    } else {
        append(0xF0 | (character >> 18));
        append(0x80 | ((character >> 12) & 0x3F));
        append(0x80 | ((character >> 6) & 0x3F));
        append(0x80 | (character & 0x3F));
    }
}

/// Most texts are plain ASCII, whose units are the same in UTF-8 and UTF-16.
template <class Text>
bool isASCII(Text text)
{
    return std::ranges::all_of(text, [](auto unit) {
        return static_cast<std::make_unsigned_t<decltype(unit)>>(unit) < 0x80;
    });
}

}  // namespace

std::u16string utf16FromUtf8(std::string_view utf8)
{
    if (isASCII(utf8)) return {utf8.begin(), utf8.end()};
    std::u16string result;
    result.reserve(utf8.size());
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t character = 0;
        std::size_t length = decodeSequence(utf8, i, character);
        if (length == 0) {
            character = replacementCharacter;
            length = 1;
        }
        i += length;
        appendUtf16(result, character);
    }
    return result;
}

bool isWellFormedUtf8(std::string_view utf8)
{
    if (isASCII(utf8)) return true;
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t character = 0;
        const std::size_t length = decodeSequence(utf8, i, character);
        if (length == 0) return false;
        i += length;
    }
    return true;
}

std::string utf8FromUtf16(std::u16string_view utf16)
{
    if (isASCII(utf16)) return {utf16.begin(), utf16.end()};
    std::string result;
    result.reserve(utf16.size());
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        char32_t character = utf16[i];
        if (isSurrogate(character)) {
            const char32_t low = i + 1 < utf16.size() ? utf16[i + 1] : char16_t{0};
            if (character < 0xDC00 && low >= 0xDC00 && low <= 0xDFFF) {
                character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
                ++i;
            } else {
                character = replacementCharacter;
            }
        }
        appendUtf8(result, character);
    }
    return result;
}

void appendUtf16(std::u16string& text, char32_t character)
{
    if (character > 0x10FFFF || isSurrogate(character)) character = replacementCharacter;
    if (character < 0x10000) {
        text.push_back(static_cast<char16_t>(character));
    } else {
        character -= 0x10000;
        text.push_back(static_cast<char16_t>(0xD800 + (character >> 10)));
        text.push_back(static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
    }
}

}  // namespace vantorel
