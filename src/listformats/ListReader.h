#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <string>
#include <string_view>

namespace vantorel {

struct ColorListReading {
    /// Null where the bytes are no list of colours.
    std::shared_ptr<HostColorList> list;
    /// Lines, declarations or entries that were passed over because they are no colours.
    std::size_t skipped = 0;
    /// What is wrong and what would be right, where there is no list.
    std::string what;
    std::string right;
};

/// Reads a colour list of any form that can be told by its beginning or by the ending of the file's
/// name: palettes of GIMP and KDE, swatch exchange, JSON, CSS, SCSS, and lines of a colour and a
/// name. The list is called as the file says, else as the file is called.
[[nodiscard]] ColorListReading readColorList(std::string_view bytes, const std::string& fileName);

}  // namespace vantorel
