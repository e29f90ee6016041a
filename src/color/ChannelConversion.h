#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

/// Conversions from real numbers to integers, defined for every input.
namespace vantorel {

/// How far a channel (0..1) may lie above a step of the 8-bit grid and still count as exact.
inline constexpr double exactnessLimit = 0.00002;

/// Truncates towards zero. Negative values and NaN return 0; values too large return the largest
/// integer.
[[nodiscard]] inline std::uint64_t truncatedUnsigned(double value)
{
    constexpr double pastLargest = 18446744073709551616.0;  // 2^64
    if (!(value >= 1)) return 0;
    return value < pastLargest ? static_cast<std::uint64_t>(value)
                               : std::numeric_limits<std::uint64_t>::max();
}

/// Truncates towards zero, saturating at both ends of the range. NaN returns 0.
[[nodiscard]] inline std::int64_t truncatedSigned(double value)
{
    constexpr double pastLargest = 9223372036854775808.0;  // 2^63
    if (value >= pastLargest) return std::numeric_limits<std::int64_t>::max();
    if (value < -pastLargest) return std::numeric_limits<std::int64_t>::min();
    return value == value ? static_cast<std::int64_t>(value) : 0;
}

/// Returns the nearest step of the 8-bit grid. Channels outside 0..1 are clamped; NaN returns 0.
[[nodiscard]] inline std::uint8_t nearestByte(double channel)
{
    if (!(channel > 0)) return 0;
    return channel < 1 ? static_cast<std::uint8_t>(std::lround(channel * 255)) : 255;
}

/// Returns |a - b| for an unsigned and a signed number, saturating.
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
