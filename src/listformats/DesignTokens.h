#pragma once

#include "listformats/ListContents.h"

#include "host/HostColorList.h"

#include <optional>
#include <string>
#include <string_view>

/// Design tokens (Design Tokens Community Group, format and color modules 2025.10): JSON with a
/// group for the list and a token for each colour.
namespace vantorel {

/// Returns the value of a token for a colour of sRGB, rounded to bytes, with its alpha unless it is
/// opaque.
[[nodiscard]] std::string designTokenColor(const HostColor& color);

/// Returns the list as a group of colours in sRGB. Names that cannot be those of tokens are
/// changed, and kept in an extension of ours.
[[nodiscard]] std::string designTokenListText(const HostColorList& list);

/// Whether a JSON text may hold design tokens.
[[nodiscard]] bool mayHoldDesignTokens(std::string_view json);

/// Reads the colours of all groups. Names are those of the groups and of the token, with a space
/// between them; the only group of the file gives the list its name instead. Values can be objects
/// of the color module, colours of CSS or references to other tokens. Tokens of other types are
/// counted as skipped. Returns `std::nullopt` if the text is not JSON, is more than `deepestJson`
/// deep, or has no token.
[[nodiscard]] std::optional<ListContents> readDesignTokens(std::string_view json);

}  // namespace vantorel
