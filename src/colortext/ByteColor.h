#pragma once

#include "color/QTXHexColorSpec.h"
#include "host/HostColor.h"

#include <cstdint>
#include <string>

namespace vantorel {

/// A colour whose channels have been rounded to 8 bits, as in browsers.
struct ByteColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// 0..1.
    double alpha = 1;
    /// Whether the text denoted a colour outside sRGB, which was replaced by this one inside.
    bool wasOutsideSRGB = false;

    [[nodiscard]] QTXHexColorSpec spec() const;
    [[nodiscard]] HostColor hostColor() const;
};

[[nodiscard]] ByteColor byteColorOf(const HostColor& color);

/// Returns "#rrggbb", ignoring the alpha.
[[nodiscard]] std::string opaqueHexText(const HostColor& color);

}  // namespace vantorel
