#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

/// What the fuzz programs share.
namespace vantorel {

[[nodiscard]] inline std::string_view bytesFrom(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Any UTF-16 units, lone surrogates included, from any bytes: ASCII as it is, so that corpora can
/// be read and written; two bytes make another unit.
[[nodiscard]] inline std::u16string unitsFrom(std::string_view bytes)
{
    std::u16string units;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if (byte < 0x80 || i + 1 == bytes.size()) {
            units += static_cast<char16_t>(byte);
        } else {
            units += static_cast<char16_t>((byte << 8) | static_cast<unsigned char>(bytes[++i]));
        }
    }
    return units;
}

/// Ends the program, which the fuzzer reports with the input.
inline void require(bool holds)
{
    if (!holds) std::abort();
}

}  // namespace vantorel
