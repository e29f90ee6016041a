#pragma once

#include "host/HostColorList.h"

#include <cstddef>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace vantorel {

/// A file format of colour lists.
struct ListFormat {
    /// The name in "vantorel list export --format gpl".
    std::string_view name;
    /// A short explanation; may be empty.
    std::string_view description;
    /// The file name extensions, without a dot. New files get the first one.
    std::span<const std::string_view> endings;
    /// Whether the bytes could be taken for commands by a terminal.
    bool isBinary;
    /// Whether `readColorList` reads the format. Pictures can only be written.
    bool isRead;
    std::string (*write)(const HostColorList& list);
    /// The largest number of colours that a file can hold; `write` leaves further ones out.
    std::size_t mostColors = std::numeric_limits<std::size_t>::max();
};

/// Returns all formats. The palette format of graphics programs is the first.
[[nodiscard]] std::span<const ListFormat> listFormats();

/// Returns the format of a name, or null if there is none.
[[nodiscard]] const ListFormat* listFormatNamed(std::string_view name);
/// Returns the format for the extension of a file name, in any letter case, or null if it is
/// unknown. Of several extensions that fit, such as "json" and "tokens.json", the longest counts.
[[nodiscard]] const ListFormat* listFormatOfFile(std::string_view fileName);
/// Removes that extension and its dot.
[[nodiscard]] std::string_view withoutListEnding(std::string_view fileName);

}  // namespace vantorel
