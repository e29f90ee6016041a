#pragma once

#include "host/HostColorList.h"

#include <string>

/// Colour lists as texts for other programs. `readColorList` reads each of them back with the same
/// names and colours, except that control characters in names become spaces.
namespace vantorel {

/// Returns custom properties in a `:root` rule, with the names in comments.
[[nodiscard]] std::string cssText(const HostColorList& list);
/// Returns SCSS variables, with the names in comments.
[[nodiscard]] std::string scssText(const HostColorList& list);
/// Returns an object with the list's name and an array of names and hex codes, in the list's order.
[[nodiscard]] std::string jsonText(const HostColorList& list);
/// Returns a line for each colour: the hex code, a tab and the name.
[[nodiscard]] std::string plainText(const HostColorList& list);

}  // namespace vantorel
