#pragma once

#include "host/HostColorList.h"

#include <string>

/// Colour lists as texts for other programs; each can be read by `readColorList`, and gives the
/// names and colours back, but for control characters in names, which become blanks.
namespace vantorel {

/// Custom properties in a `:root` rule, the names in comments.
[[nodiscard]] std::string cssText(const HostColorList& list);
/// Variables, the names in comments.
[[nodiscard]] std::string scssText(const HostColorList& list);
/// An object with the list's name and an array of names and hex codes, in order.
[[nodiscard]] std::string jsonText(const HostColorList& list);
/// A line for each colour: hex code, tab, name.
[[nodiscard]] std::string plainText(const HostColorList& list);

}  // namespace vantorel
