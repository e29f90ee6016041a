#pragma once

#include "color/ComponentDisplay.h"
#include "color/EntryForm.h"
#include "host/HostColor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Colour components as text and back. The readers never fail: what they cannot read counts as
/// zero, and numbers cap at 255. Only `validHexString` rejects a text. An empty view stands for no
/// text. Lengths and indexes count UTF-16 units.
namespace vantorel {

/// The value of a hex digit, 0..15; 0 for every other character.
[[nodiscard]] int decodeHex(char16_t character);

/// One hex digit; "0" for a value outside 0..15.
[[nodiscard]] std::u16string hexFromInt(std::int64_t value, EntryForm entryForm);

/// The first two characters as hex digits. A single digit is the high one: "a" reads as 0xA0. A
/// leading "#" is not skipped.
[[nodiscard]] std::uint64_t readHex(std::u16string_view text);

/// The first run of at most three decimal digits, capped at 255. Characters are told apart by their
/// low eight bits alone.
[[nodiscard]] std::uint64_t readInt(std::u16string_view text);

/// A fraction 0..1 as 0..255: the digits after the first "." (five at most) times 255.5, truncated;
/// 255 when a digit 1..9 comes before any ".". Characters are told apart by their low eight bits.
[[nodiscard]] std::uint64_t readFraction(std::u16string_view text);

/// By the reader of the display; 0 for displays without one.
[[nodiscard]] std::uint64_t readComponent(std::u16string_view text, ComponentDisplay display);

/// A component as two hex digits (Hex, Code Snippet), an integer, or a fraction of three decimals.
/// Nothing for any other display.
[[nodiscard]] std::optional<std::u16string> compStringHexColorSpec(std::uint64_t component,
                                                                   EntryForm entryForm,
                                                                   ComponentDisplay display);

/// A component as two hex digits.
[[nodiscard]] std::u16string hexCompStringHexColorSpec(std::uint64_t component,
                                                       EntryForm entryForm);

/// A typed hex code in full length, or nothing when it is none. `digits` is 6 for a whole code, 2
/// for one component. A leading "#" is kept; half the digits are doubled (abc: aabbcc), a single
/// one is repeated. With two digits the length is not held to: what is left over is for the reader.
[[nodiscard]] std::optional<std::u16string> validHexString(std::u16string_view text, int digits);

/// The colour that a name of at least six characters ends in, as a hex code; else black.
[[nodiscard]] HostColor webSafeColorFromName(std::u16string_view name);

}  // namespace vantorel
