#pragma once

#include "host/HostColor.h"
#include "text/Trimming.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vantorel {

/// The colours that a reader has found in the text of a file.
struct ListContents {
    /// The name of the list; empty if the file contains none.
    std::u16string name;
    /// The colours with their names, in the order of the file. Names can be empty or repeated.
    std::vector<std::pair<HostColor, std::u16string>> entries;
    /// The number of lines, declarations or entries that are not colours.
    std::size_t skipped = 0;
};

/// The characters that the readers treat as white space.
inline constexpr std::string_view listBlanks = " \t\r\n";

/// Removes leading and trailing white space.
[[nodiscard]] inline std::string_view withoutListBlanks(std::string_view text)
{
    return trimmed(text, [](char c) { return listBlanks.find(c) != std::string_view::npos; });
}

/// Reads a colour of CSS as palettes store it: opaque, with 8 bits per channel.
[[nodiscard]] std::optional<HostColor> listColorOf(std::string_view text);

}  // namespace vantorel
