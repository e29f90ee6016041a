#pragma once

#include "host/HostColorList.h"

#include <span>
#include <string>
#include <string_view>

namespace vantorel {

/// A form of colour-list files. `readColorList` reads each that `isRead`.
struct ListFormat {
    /// As in "vantorel list export --format gpl".
    std::string_view name;
    /// A few words of explanation; may be empty.
    std::string_view description;
    /// The endings of such files, without dot; the first is given to new files.
    std::span<const std::string_view> endings;
    /// Bytes that could command a terminal.
    bool isBinary;
    /// Pictures are only written.
    bool isRead;
    std::string (*write)(const HostColorList& list);
};

/// All of them, that of graphics programs first.
[[nodiscard]] std::span<const ListFormat> listFormats();

/// Null when there is no such format.
[[nodiscard]] const ListFormat* listFormatNamed(std::string_view name);
/// The format that the ending of a file's name stands for, in any letter case, or null.
[[nodiscard]] const ListFormat* listFormatOfFile(std::string_view fileName);

}  // namespace vantorel
