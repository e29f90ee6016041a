#pragma once

#include "host/HostColorList.h"
#include "result/Result.h"

#include <memory>
#include <string>
#include <string_view>

namespace vantorel {

/// A colour list as a file holds it.
struct ListFile {
    /// Never null, never empty.
    std::shared_ptr<HostColorList> list;
    /// Lines, declarations or entries that were passed over because they are not colours.
    std::size_t skipped = 0;
};

/// Reads a colour list of any form that can be told by its beginning or by the ending of the file's
/// name: palettes of GIMP and KDE, swatch exchange, JSON, CSS, SCSS, and lines of a colour and a
/// name. The list is called as the file says, else as the file is called.
Result<ListFile> readColorList(std::string_view bytes, const std::string& fileName);

}  // namespace vantorel
