#pragma once

#include "host/HostColorList.h"
#include "result/Result.h"

#include <memory>
#include <string>
#include <string_view>

namespace vantorel {

/// A colour list that has been read from a file.
struct ListFile {
    /// Never null. Contains at least one colour.
    std::shared_ptr<HostColorList> list;
    /// The number of lines, declarations or entries that were skipped because they are not colours.
    std::size_t skipped = 0;
};

/// Reads a colour list in any format that can be recognised by its first bytes or by the extension
/// of the file name: palettes of GIMP, KDE and Krita, swatch exchange, colour swatches, colour
/// tables of office programs, design tokens, JSON, CSS and SCSS, or lines with a colour and a name.
/// If the file does not name the list, the list is named after the file.
Result<ListFile> readColorList(std::string_view bytes, const std::string& fileName);

}  // namespace vantorel
