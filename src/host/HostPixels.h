#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantorel {

/// A number of pixels of the device, across and down.
struct HostPixelSize {
    int width = 0;
    int height = 0;

    bool operator==(const HostPixelSize&) const = default;
};

/// A picture made of pixels. It owns its memory, and copies are independent.
///
/// Rows come from the top, although points count from the bottom, and pixels from the left. A pixel
/// is a number 0xAARRGGBB in the byte order of the processor: sRGB bytes that are multiplied by
/// their opacity. Toolkits copy this form to the screen without converting it.
class HostPixels {
public:
    HostPixels() = default;
    /// Makes a transparent picture. Without width or height, the picture is empty.
    explicit HostPixels(HostPixelSize size)
        : _size(size.width > 0 && size.height > 0 ? size : HostPixelSize()),
          _pixels(static_cast<std::size_t>(_size.width) * static_cast<std::size_t>(_size.height))
    {
    }

    [[nodiscard]] HostPixelSize size() const { return _size; }
    [[nodiscard]] int width() const { return _size.width; }
    [[nodiscard]] int height() const { return _size.height; }
    [[nodiscard]] bool isEmpty() const { return _pixels.empty(); }

    /// The pixels of row `y`, which must exist.
    [[nodiscard]] std::uint32_t* row(int y) { return _pixels.data() + offset(y); }
    [[nodiscard]] const std::uint32_t* row(int y) const { return _pixels.data() + offset(y); }

    /// Returns an opaque pixel. Each argument is a byte.
    [[nodiscard]] static constexpr std::uint32_t opaque(std::uint32_t red, std::uint32_t green,
                                                        std::uint32_t blue)
    {
        return 0xFF000000U | red << 16U | green << 8U | blue;
    }
    /// Returns a pixel whose bytes are not yet multiplied by its opacity.
    [[nodiscard]] static constexpr std::uint32_t translucent(std::uint32_t red, std::uint32_t green,
                                                             std::uint32_t blue,
                                                             std::uint32_t alpha)
    {
        const auto times = [alpha](std::uint32_t byte) { return (byte * alpha + 127) / 255; };
        return alpha << 24U | times(red) << 16U | times(green) << 8U | times(blue);
    }

    bool operator==(const HostPixels&) const = default;

private:
    [[nodiscard]] std::size_t offset(int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(_size.width);
    }

    HostPixelSize _size;
    std::vector<std::uint32_t> _pixels;
};

}  // namespace vantorel
