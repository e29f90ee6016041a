#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vantorel {

/// A colour that many pixels of a picture are close to.
struct MainColor {
    /// 0xRRGGBB.
    std::uint32_t value = 0;
    /// The share of these pixels in the picture, 0..1.
    double share = 0;

    bool operator==(const MainColor&) const = default;
};

/// Returns at most `count` colours that stand for the pixels of a picture, the one with the largest
/// share first; fewer if it has fewer colours. Pixels are 0xAARRGGBB, and those that are more
/// transparent than opaque do not count.
///
/// The pixels are counted in cells of 32 x 32 x 32, whose means are divided by k-means in Oklab. A
/// group is shown by the mean of its cell that is frequent and near the middle, so that flat
/// colours are exact. The same pixels always give the same colours. Takes linear time.
[[nodiscard]] std::vector<MainColor> mainColors(std::span<const std::uint32_t> pixels,
                                                std::size_t count);

}  // namespace vantorel
