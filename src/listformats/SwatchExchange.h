#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Swatch exchange files (.ase), which page-layout and drawing programs read: "ASEF", a version,
/// and blocks of groups and colours, all numbers with the most significant byte first.
namespace vantorel {

/// One group, called as the list, with its colours as RGB.
[[nodiscard]] std::string swatchExchangeBytes(const HostColorList& list);

struct SwatchExchangeReading {
    /// Called as the first group, else `fallbackName`.
    std::shared_ptr<HostColorList> list;
    /// Colours of models that are not known.
    std::size_t skipped = 0;
};

/// Colours of the models RGB, grey, CMYK (converted without profiles) and Lab; names that come
/// twice get a number. Nothing when the bytes are no such file, or end before they should.
[[nodiscard]] std::optional<SwatchExchangeReading> readSwatchExchange(
    std::string_view bytes, const std::u16string& fallbackName);

}  // namespace vantorel
