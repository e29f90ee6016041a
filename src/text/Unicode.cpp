#include "text/Unicode.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <type_traits>

namespace vantorel {
namespace {

constexpr bool isHighSurrogate(char32_t character)
{
    return character >= 0xD800 && character < 0xDC00;
}

constexpr bool isLowSurrogate(char32_t character)
{
    return character >= 0xDC00 && character < 0xE000;
}

constexpr bool isSurrogate(char32_t character)
{
    return isHighSurrogate(character) || isLowSurrogate(character);
}

struct Sequence {
    char32_t character;
    std::size_t length;  ///< in bytes
};

/// Decodes the sequence at the start of a text, which must not be empty. Returns `std::nullopt` if
/// it is ill-formed.
std::optional<Sequence> firstSequence(std::string_view text)
{
    const auto lead = static_cast<std::uint8_t>(text.front());
    if (lead < 0x80) return Sequence{lead, 1};
    // Smaller characters must have shorter sequences.
    constexpr std::array<char32_t, 3> smallest{0x80, 0x800, 0x10000};
    const auto length = static_cast<std::size_t>(std::countl_one(lead));
    if (length < 2 || length > 4 || length > text.size()) return std::nullopt;
    char32_t character = lead & (0x7FU >> length);
    for (const char byte : text.substr(1, length - 1)) {
        const auto next = static_cast<std::uint8_t>(byte);
        if ((next & 0xC0) != 0x80) return std::nullopt;
        character = (character << 6) | (next & 0x3F);
    }
    const bool isCharacter =
        character >= smallest[length - 2] && character <= 0x10FFFF && !isSurrogate(character);
    return isCharacter ? std::optional(Sequence{character, length}) : std::nullopt;
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
    while (!utf8.empty()) {
        const auto sequence = firstSequence(utf8);
        appendUtf16(result, sequence ? sequence->character : replacementCharacter);
        utf8.remove_prefix(sequence ? sequence->length : 1);
    }
    return result;
}

bool isWellFormedUtf8(std::string_view utf8)
{
    if (isASCII(utf8)) return true;
    while (!utf8.empty()) {
        const auto sequence = firstSequence(utf8);
        if (!sequence) return false;
        utf8.remove_prefix(sequence->length);
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
            const bool isFollowed = i + 1 < utf16.size() && isLowSurrogate(utf16[i + 1]);
            if (isHighSurrogate(character) && isFollowed) {
                ++i;
                character = 0x10000 + ((character & 0x3FF) << 10) + (utf16[i] & 0x3FF);
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
