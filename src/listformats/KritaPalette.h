#pragma once

#include "listformats/ListContents.h"

#include "host/HostColorList.h"
#include "result/Result.h"

#include <string>
#include <string_view>

/// Palettes of Krita (.kpl): an archive with an XML file of colours and places.
namespace vantorel {

/// Returns a palette in rows of 16.
[[nodiscard]] std::string kritaPaletteBytes(const HostColorList& list);

/// Whether bytes begin like an archive.
[[nodiscard]] bool startsKritaPalette(std::string_view bytes);

/// Reads colours in RGB, grey, CMYK (converted without profiles) and Lab; others are counted as
/// skipped. RGB counts as sRGB, or as linear sRGB if its profile is called so.
[[nodiscard]] Result<ListContents> readKritaPalette(std::string_view bytes);

}  // namespace vantorel
