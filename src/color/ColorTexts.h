#pragma once

#include "color/ComponentDisplay.h"
#include "color/EntryForm.h"
#include "host/HostColor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Conversions between colour components and text. The readers never fail: unreadable text counts
/// as 0, and numbers are capped at 255. Only `validHexString` rejects a text. An empty view means
/// "no text". Lengths and indexes count UTF-16 units.
namespace vantorel {

/// Returns the value of a hex digit, 0..15, or 0 for any other character.
[[nodiscard]] int decodeHex(char16_t character);

/// Returns one hex digit, or "0" if the value is outside 0..15.
[[nodiscard]] std::u16string hexFromInt(std::int64_t value, EntryForm entryForm);

/// Reads the first two characters as hex digits. A single digit is the high one: "a" reads as 0xA0.
/// A leading "#" is not skipped.
[[nodiscard]] std::uint64_t readHex(std::u16string_view text);

/// Reads the first run of up to three decimal digits, capped at 255. Only the low eight bits of
/// each character are compared.
[[nodiscard]] std::uint64_t readInt(std::u16string_view text);

/// Reads a fraction 0..1 as 0..255: up to five digits after the first ".", times 255.5, truncated.
/// Returns 255 if a digit 1..9 precedes the first ".". Only the low eight bits of each character
/// are compared.
[[nodiscard]] std::uint64_t readFraction(std::u16string_view text);

/// Reads a component in the form of a display. Returns 0 for displays without a reader.
[[nodiscard]] std::uint64_t readComponent(std::u16string_view text, ComponentDisplay display);

/// Returns a component as two hex digits (Hex, Code Snippet), an integer, or a fraction with three
/// decimals; `std::nullopt` for any other display.
[[nodiscard]] std::optional<std::u16string> compStringHexColorSpec(std::uint64_t component,
                                                                   EntryForm entryForm,
                                                                   ComponentDisplay display);

/// A component as two hex digits.
[[nodiscard]] std::u16string hexCompStringHexColorSpec(std::uint64_t component,
                                                       EntryForm entryForm);

/// Expands a typed hex code to full length, or returns `std::nullopt` if it is not a hex code.
/// `digits` is 6 for a whole code, 2 for one component. A leading "#" is kept. If half the digits
/// are given, each is doubled (abc becomes aabbcc); a single digit is repeated. With two digits,
/// the length of the result is not checked, and the reader handles the rest.
[[nodiscard]] std::optional<std::u16string> validHexString(std::u16string_view text, int digits);

/// Returns the colour whose hex code ends the name, or black if the name is shorter than six
/// characters.
[[nodiscard]] HostColor webSafeColorFromName(std::u16string_view name);

}  // namespace vantorel
