#include "colormath/MainColors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>
#include <vector>

namespace {

using namespace vantorel;

void append(std::vector<std::uint32_t>& pixels, std::size_t count, std::uint32_t value)
{
    pixels.insert(pixels.end(), count, value);
}

int distanceOf(std::uint32_t left, std::uint32_t right)
{
    int most = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference =
            static_cast<int>(left >> shift & 0xFF) - static_cast<int>(right >> shift & 0xFF);
        most = std::max(most, std::abs(difference));
    }
    return most;
}

TEST(MainColorsTest, FlatColoursAreExactAndInTheOrderOfTheirShares)
{
    std::vector<std::uint32_t> pixels;
    append(pixels, 200, 0xFF3B82F6);
    append(pixels, 500, 0xFFFFFFFF);
    append(pixels, 300, 0xFF0F172A);
    EXPECT_EQ(mainColors(pixels, 8),
              (std::vector<MainColor>{{0xFFFFFF, 0.5}, {0x0F172A, 0.3}, {0x3B82F6, 0.2}}));
    EXPECT_EQ(mainColors(pixels, 2).size(), 2U);
    EXPECT_EQ(mainColors(pixels, 1).front().share, 1);
}

TEST(MainColorsTest, TransparentPixelsDoNotCount)
{
    std::vector<std::uint32_t> pixels;
    append(pixels, 900, 0x00FF0000);
    append(pixels, 900, 0x7FFF0000);
    append(pixels, 10, 0x8000FF00);
    EXPECT_EQ(mainColors(pixels, 8), (std::vector<MainColor>{{0x00FF00, 1}}));
    EXPECT_TRUE(mainColors(std::span(pixels).first(1800), 8).empty());
    EXPECT_TRUE(mainColors({}, 8).empty());
    EXPECT_TRUE(mainColors(pixels, 0).empty());
}

TEST(MainColorsTest, ASmallAccentIsFoundBesideManyShades)
{
    std::vector<std::uint32_t> pixels;
    for (std::uint32_t shade = 0; shade < 256; ++shade)
        append(pixels, 1000, 0xFF000000 | shade << 16 | shade << 8 | shade);
    append(pixels, 2000, 0xFFE60023);
    const auto colors = mainColors(pixels, 6);
    EXPECT_TRUE(std::any_of(colors.begin(), colors.end(),
                            [](const MainColor& color) { return color.value == 0xE60023; }));
}

TEST(MainColorsTest, NoisyGroupsAreTakenApart)
{
    constexpr std::array<std::uint32_t, 5> middles{0xC03020, 0x20A040, 0x3040C0, 0xE0C040,
                                                   0x808080};
    std::mt19937 random(7);
    std::vector<std::uint32_t> pixels;
    for (int i = 0; i < 50000; ++i) {
        std::uint32_t pixel = 0xFF;
        for (const int shift : {16, 8, 0}) {
            const auto noise = static_cast<int>(random() % 17) - 8;
            const int channel =
                static_cast<int>(middles.at(static_cast<std::size_t>(i) % 5) >> shift & 0xFF) +
                noise;
            pixel = pixel << 8 | static_cast<std::uint32_t>(channel);
        }
        pixels.push_back(pixel);
    }
    const auto colors = mainColors(pixels, 5);
    ASSERT_EQ(colors.size(), 5U);
    for (const std::uint32_t middle : middles) {
        EXPECT_TRUE(std::any_of(colors.begin(), colors.end(),
                                [&](const MainColor& color) {
                                    return distanceOf(color.value, middle) <= 8 &&
                                           std::abs(color.share - 0.2) < 0.001;
                                }))
            << std::hex << middle;
    }
    std::shuffle(pixels.begin(), pixels.end(), random);
    EXPECT_EQ(mainColors(pixels, 5), colors) << "the order of pixels does not matter";
}

TEST(MainColorsTest, EveryColourCanBeAskedForAtOnce)
{
    std::vector<std::uint32_t> pixels;
    for (std::uint32_t value = 0; value < 0x1000000; value += 0x0101 * 7)
        pixels.push_back(0xFF000000 | value);
    const auto colors = mainColors(pixels, 64);
    EXPECT_LE(colors.size(), 64U);
    double sum = 0;
    for (const MainColor& color : colors)
        sum += color.share;
    EXPECT_NEAR(sum, 1, 1e-9);
}

}  // namespace
