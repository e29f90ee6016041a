#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

/// From real numbers to whole ones, without undefined behaviour for any input.
namespace vantorel {

/// What a channel (0..1) may lie above a step of the 8-bit grid and still be exactly that step.
inline constexpr double exactnessLimit = 0.00002;

/// Truncation towards zero; a negative value or NaN gives 0, one beyond the integers the largest.
[[nodiscard]] inline std::uint64_t truncatedUnsigned(double value)
{
    constexpr double pastLargest = 18446744073709551616.0;  // 2^64
    if (!(value >= 1)) return 0;
    return value < pastLargest ? static_cast<std::uint64_t>(value)
                               : std::numeric_limits<std::uint64_t>::max();
}

/// Truncation towards zero, saturating at both ends; NaN gives 0.
[[nodiscard]] inline std::int64_t truncatedSigned(double value)
{
    constexpr double pastLargest = 9223372036854775808.0;  // 2^63
    if (value >= pastLargest) return std::numeric_limits<std::int64_t>::max();
    if (value < -pastLargest) return std::numeric_limits<std::int64_t>::min();
    return value == value ? static_cast<std::int64_t>(value) : 0;
}

/// The step of the 8-bit grid next to a channel, which counts as 0 or 1 outside 0..1; NaN gives 0.
[[nodiscard]] inline std::uint8_t nearestByte(double channel)
{
    if (!(channel > 0)) return 0;
    return channel < 1 ? static_cast<std::uint8_t>(std::lround(channel * 255)) : 255;
}

/// |a - b| of an unsigned and a signed number, saturating.
[[nodiscard]] inline std::uint64_t distanceBetween(std::uint64_t a, std::int64_t b)
{
    if (b >= 0) {
        const auto positive = static_cast<std::uint64_t>(b);
        return a > positive ? a - positive : positive - a;
    }
    const std::uint64_t below = ~static_cast<std::uint64_t>(b) + 1;
    const std::uint64_t sum = a + below;
    return sum < a ? std::numeric_limits<std::uint64_t>::max() : sum;
}

}  // namespace vantorel
