#pragma once

#include "color/QTXHexColorSpec.h"
#include "host/HostColor.h"

#include <cstdint>
#include <string>

namespace vantorel {

/// A colour in 8 bits, to which it has been rounded as browsers do.
struct ByteColor {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    /// 0..1
    double alpha = 1;
    /// The text named a colour outside sRGB, and this is the nearest colour inside.
    bool wasOutsideSRGB = false;

    [[nodiscard]] QTXHexColorSpec spec() const;
    [[nodiscard]] HostColor hostColor() const;
};

[[nodiscard]] ByteColor byteColorOf(const HostColor& color);

/// "#rrggbb", without the colour's alpha.
[[nodiscard]] std::string opaqueHexText(const HostColor& color);

}  // namespace vantorel
