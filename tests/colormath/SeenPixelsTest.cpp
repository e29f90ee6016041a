#include "colormath/SeenPixels.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

namespace vantorel {
namespace {

constexpr std::array visions{ColorVision::protanopia, ColorVision::deuteranopia,
                             ColorVision::tritanopia, ColorVision::grey};

/// A channel of a pixel, 0 for blue to 3 for alpha.
int channelOf(std::uint32_t pixel, int channel)
{
    return static_cast<int>(pixel >> 8 * channel & 0xff);
}

TEST(SeenPixelsTest, PixelsLookAsTheirColours)
{
    std::mt19937 random(7);
    std::vector<std::uint32_t> pixels{0xff000000, 0xffffffff, 0xffff0000, 0xff010203, 0xff030201};
    while (pixels.size() < 20000)
        pixels.push_back(0xff000000U | (random() & 0xffffffU));
    for (const ColorVision vision : visions) {
        std::vector<std::uint32_t> seen = pixels;
        SeenPixels(vision).replace(seen);
        for (std::size_t i = 0; i < pixels.size(); ++i) {
            CSSColorValue color;
            for (int channel = 0; channel < 3; ++channel)
                color.components[static_cast<std::size_t>(2 - channel)] =
                    channelOf(pixels[i], channel) / 255.0;
            const CSSColorValue expected = seenWith(vision, color);
            for (int channel = 0; channel < 3; ++channel) {
                const double value = expected.components[static_cast<std::size_t>(2 - channel)];
                EXPECT_NEAR(channelOf(seen[i], channel), value * 255, 1)
                    << std::hex << pixels[i] << ", channel " << channel;
            }
        }
    }
}

TEST(SeenPixelsTest, TheAlphaAndGreysStay)
{
    for (const ColorVision vision : visions) {
        std::vector<std::uint32_t> pixels{0x00808080, 0x7f404040, 0x7f404040, 0xffffffff, 0};
        const std::vector<std::uint32_t> before = pixels;
        SeenPixels(vision).replace(pixels);
        EXPECT_EQ(pixels, before);
    }
}

}  // namespace
}  // namespace vantorel
