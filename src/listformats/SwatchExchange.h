#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Swatch exchange files (.ase), which page-layout and drawing programs read: "ASEF", a version,
/// and blocks of groups and colours, all numbers with the most significant byte first.
namespace vantorel {

/// Returns a file with one group, which has the list's name and its colours as RGB.
[[nodiscard]] std::string swatchExchangeBytes(const HostColorList& list);

struct SwatchExchangeReading {
    /// The list, named after the first group, or `fallbackName` if there is none.
    std::shared_ptr<HostColorList> list;
    /// The number of colours that were skipped because their colour model is unknown.
    std::size_t skipped = 0;
};

/// Reads colours of the models RGB, grey, CMYK (converted without profiles) and Lab. Repeated names
/// get a number. Returns `std::nullopt` if the bytes are not such a file or end too early.
[[nodiscard]] std::optional<SwatchExchangeReading> readSwatchExchange(
    std::string_view bytes, const std::u16string& fallbackName);

}  // namespace vantorel
