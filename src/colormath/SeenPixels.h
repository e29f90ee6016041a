#pragma once

#include "colormath/ColorVision.h"

#include <array>
#include <cstdint>
#include <span>

namespace vantorel {

/// How pictures look to a way of seeing: `seenWith` for many pixels of 8-bit sRGB, by tables. A
/// channel may differ from its result by one step.
class SeenPixels {
public:
    explicit SeenPixels(ColorVision vision);

    /// Replaces pixels by how they look. A pixel is 0xAARRGGBB, not multiplied by its alpha, which
    /// stays.
    void replace(std::span<std::uint32_t> pixels) const;

private:
    [[nodiscard]] std::uint32_t seen(std::uint32_t pixel) const;

    // Fine enough for the darkest colours, where a step of 8 bits is 5 of these.
    static constexpr int lightSteps = 1 << 14;

    /// What a value of a channel adds to the light of each channel of the result, in light steps.
    using Part = std::array<std::int32_t, 3>;
    std::array<std::array<Part, 256>, 3> _parts{};
    /// The 8-bit values of light.
    std::array<std::uint8_t, lightSteps + 1> _encoded{};
};

}  // namespace vantorel
