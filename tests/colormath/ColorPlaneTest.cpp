#include "colormath/ColorPlane.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantorel {
namespace {

// Another implementation: the conversions as their authors publish them, and a search for borders
// that knows nothing of cubics.

using Triple = ColorTriple;

double encoded(double v)
{
    if (v < 0) return -encoded(-v);
    return v <= 0.0031308 ? v * 12.92 : 1.055 * std::pow(v, 1 / 2.4) - 0.055;
}

Triple linearFromOklch(const Triple& oklch)
{
    const double angle = oklch[2] * std::numbers::pi / 180;
    const double a = oklch[1] * std::cos(angle);
    const double b = oklch[1] * std::sin(angle);
    const double l = std::pow(oklch[0] + 0.3963377774 * a + 0.2158037573 * b, 3);
    const double m = std::pow(oklch[0] - 0.1055613458 * a - 0.0638541728 * b, 3);
    const double s = std::pow(oklch[0] - 0.0894841775 * a - 1.2914855480 * b, 3);
    return {4.0767416621 * l - 3.3077115913 * m + 0.2309699292 * s,
            -1.2684380046 * l + 2.6097574011 * m - 0.3413193965 * s,
            -0.0041960863 * l - 0.7034186147 * m + 1.7076147010 * s};
}

Triple linearFromLab(const Triple& lab)
{
    const double fy = (lab[0] + 16) / 116;
    const auto back = [](double f) {
        return f > 6.0 / 29 ? f * f * f : 3 * std::pow(6.0 / 29, 2) * (f - 4.0 / 29);
    };
    const double x = 0.96422 * back(fy + lab[1] / 500);
    const double y = back(fy);
    const double z = 0.82521 * back(fy - lab[2] / 200);
    // From D50 directly, with the matrix that is adapted by Bradford's method.
    return {3.1338561 * x - 1.6168667 * y - 0.4906146 * z,
            -0.9787684 * x + 1.9161415 * y + 0.0334540 * z,
            0.0719453 * x - 0.2289914 * y + 1.4052427 * z};
}

Triple srgbFromHexagon(MixSpace space, const Triple& components)
{
    const double s = components[1] / 100;
    const double third = components[2] / 100;
    const double chroma = space == MixSpace::hsl ? (1 - std::abs(2 * third - 1)) * s : third * s;
    const double h = components[0] / 60;
    const double x = chroma * (1 - std::abs(std::fmod(h, 2) - 1));
    const double m = third - (space == MixSpace::hsl ? chroma / 2 : chroma);
    const std::array<Triple, 6> sectors{{{chroma, x, 0},
                                         {x, chroma, 0},
                                         {0, chroma, x},
                                         {0, x, chroma},
                                         {x, 0, chroma},
                                         {chroma, 0, x}}};
    Triple rgb = sectors.at(static_cast<std::size_t>(h) % 6);
    for (double& channel : rgb)
        channel += m;
    return rgb;
}

Triple srgbElsewhere(MixSpace space, const Triple& components)
{
    if (space == MixSpace::hsl || space == MixSpace::hsv) return srgbFromHexagon(space, components);
    Triple rgb = space == MixSpace::oklch ? linearFromOklch(components) : linearFromLab(components);
    for (double& channel : rgb)
        channel = encoded(channel);
    return rgb;
}

Triple displayP3FromLinear(const Triple& srgb)
{
    return {0.8224619688 * srgb[0] + 0.1775380312 * srgb[1],
            0.0331941989 * srgb[0] + 0.9668058011 * srgb[1],
            0.0170826307 * srgb[0] + 0.0723974407 * srgb[1] + 0.9105199286 * srgb[2]};
}

bool isShown(ScreenGamut gamut, MixSpace space, const Triple& components, double slack)
{
    Triple rgb = space == MixSpace::oklch ? linearFromOklch(components) : linearFromLab(components);
    if (gamut == ScreenGamut::displayP3) rgb = displayP3FromLinear(rgb);
    return std::ranges::all_of(rgb, [slack](double v) { return v >= -slack && v <= 1 + slack; });
}

struct Case {
    MixSpace space;
    double third;
};

const std::array cases{
    Case{MixSpace::oklch, 0},   Case{MixSpace::oklch, 110}, Case{MixSpace::oklch, 142.5},
    Case{MixSpace::oklch, 264}, Case{MixSpace::oklch, 329}, Case{MixSpace::hsl, 0},
    Case{MixSpace::hsl, 217.2}, Case{MixSpace::hsv, 59},    Case{MixSpace::hsv, 300},
    Case{MixSpace::lab, 8},     Case{MixSpace::lab, 54.6},  Case{MixSpace::lab, 95},
};

TEST(ColorPlaneTest, PixelsAreTheColoursOfTheirMiddle)
{
    constexpr HostPixelSize size{61, 43};
    for (const Case& c : cases) {
        const ColorPlane plane(c.space, c.third);
        const HostPixels pixels = plane.picture(size);
        ASSERT_EQ(pixels.size(), size);
        int farthest = 0;
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
                const Triple components =
                    plane.componentsAt({(x + 0.5) / size.width, 1 - (y + 0.5) / size.height});
                if (c.space == MixSpace::oklch && pixels.row(y)[x] == 0) {
                    EXPECT_FALSE(isShown(ScreenGamut::displayP3, c.space, components, 0));
                    continue;
                }
                const Triple rgb = srgbElsewhere(c.space, components);
                ASSERT_EQ(pixels.row(y)[x] >> 24U, 255U);
                for (unsigned i = 0; i < 3; ++i) {
                    const auto byte = static_cast<int>(pixels.row(y)[x] >> (16 - 8 * i) & 255U);
                    const auto exact =
                        static_cast<int>(std::lround(std::clamp(rgb[i], 0.0, 1.0) * 255));
                    farthest = std::max(farthest, std::abs(byte - exact));
                }
            }
        }
        EXPECT_LE(farthest, 1) << static_cast<int>(c.space) << " " << c.third;
    }
}

TEST(ColorPlaneTest, SpansEndWhereColoursCannotBeShown)
{
    constexpr double step = 0.004;
    for (const Case& c : cases) {
        if (c.space != MixSpace::oklch && c.space != MixSpace::lab) continue;
        const ColorPlane plane(c.space, c.third);
        for (const ScreenGamut gamut : {ScreenGamut::srgb, ScreenGamut::displayP3}) {
            for (double y = 0.02; y < 1; y += 0.06) {
                const ColorPlane::Span span = plane.shownSpan(gamut, y);
                const auto shown = [&](double x, double slack) {
                    return isShown(gamut, c.space, plane.componentsAt({x, y}), slack);
                };
                for (double x = 0; x <= 1; x += 0.01) {
                    if (x > span.from + step && x < span.to - step) {
                        EXPECT_TRUE(shown(x, 1e-3)) << c.third << " " << x << " " << y;
                    } else if (x < span.from - step || x > span.to + step) {
                        EXPECT_FALSE(shown(x, -1e-3)) << c.third << " " << x << " " << y;
                    }
                }
            }
        }
    }
}

TEST(ColorPlaneTest, AWiderScreenShowsMore)
{
    for (double hue = 0; hue < 360; hue += 7) {
        const ColorPlane plane(MixSpace::oklch, hue);
        double widest = 0;
        for (double y = 0; y <= 1; y += 0.01) {
            const double srgb = plane.shownSpan(ScreenGamut::srgb, y).to;
            const double p3 = plane.shownSpan(ScreenGamut::displayP3, y).to;
            EXPECT_LE(srgb, p3 + 1e-4) << hue << " " << y;
            widest = std::max(widest, p3);
        }
        EXPECT_NEAR(widest, 1 / 1.06, 0.02) << "the border is seen, and the plane is not wasted";
    }
}

TEST(ColorPlaneTest, TheBorderLeadsStraightIntoBlack)
{
    // A shade has the chroma of its colour in proportion to the lightness.
    for (const ScreenGamut gamut : {ScreenGamut::srgb, ScreenGamut::displayP3}) {
        const ColorPlane plane(MixSpace::oklch, 264);
        const double slope = plane.shownSpan(gamut, 0.3).to / 0.3;
        for (const double y : {0.02, 0.05, 0.1})
            EXPECT_NEAR(plane.shownSpan(gamut, y).to / y, slope, slope * 0.001) << y;
    }
}

TEST(ColorPlaneTest, PlacesAndComponentsAreInverse)
{
    for (const Case& c : cases) {
        const ColorPlane plane(c.space, c.third);
        const HostPoint place = plane.placeOf(plane.componentsAt({0.3, 0.8}));
        EXPECT_NEAR(place.x, 0.3, 1e-12);
        EXPECT_NEAR(place.y, 0.8, 1e-12);
        EXPECT_EQ(plane.componentsAt({0, 0})[axesOf(c.space).third], c.third);
    }
}

TEST(ColorPlaneTest, BordersAreLinesThroughThePlane)
{
    EXPECT_TRUE(ColorPlane(MixSpace::hsl, 10).borderOf(ScreenGamut::srgb, 50).empty());
    EXPECT_TRUE(ColorPlane(MixSpace::hsv, 10).borderOf(ScreenGamut::srgb, 50).empty());
    const auto open = ColorPlane(MixSpace::oklch, 264).borderOf(ScreenGamut::srgb, 50);
    ASSERT_EQ(open.size(), 51U);
    EXPECT_EQ(open.front(), (HostPoint{0, 0}));
    EXPECT_EQ(open.back(), (HostPoint{0, 1}));
    const auto closed = ColorPlane(MixSpace::lab, 60).borderOf(ScreenGamut::srgb, 50);
    ASSERT_GT(closed.size(), 20U);
    EXPECT_EQ(closed.front(), closed.back());
    EXPECT_LE(ColorPlane(MixSpace::lab, 100).borderOf(ScreenGamut::srgb, 50).size(), 6U)
        << "only white is as light";
}

TEST(ColorPlaneTest, ALightnessOutOfRangeIsMovedIntoIt)
{
    EXPECT_EQ(ColorPlane(MixSpace::lab, 1e300).third(), 100);
    EXPECT_EQ(ColorPlane(MixSpace::lab, -5).third(), 0);
    EXPECT_EQ(ColorPlane(MixSpace::oklch, 400).third(), 400) << "hues go round";
}

TEST(ColorPlaneTest, EmptyAndTinyPicturesAreHarmless)
{
    for (const MixSpace space : {MixSpace::oklch, MixSpace::hsl, MixSpace::hsv, MixSpace::lab}) {
        EXPECT_TRUE(ColorPlane(space, 10).picture({0, 7}).isEmpty());
        EXPECT_EQ(ColorPlane(space, 10).picture({1, 1}).size(), (HostPixelSize{1, 1}));
    }
}

TEST(MixSpacesTest, ConversionsAreInverseAndAgreeWithTheOthers)
{
    for (const MixSpace space : {MixSpace::oklch, MixSpace::hsl, MixSpace::hsv, MixSpace::lab}) {
        for (double red = 0; red <= 1; red += 0.25) {
            for (double green = 0.1; green <= 1; green += 0.3) {
                const Triple srgb{red, green, 0.45};
                const Triple components = mixSpaceFromSRGB(space, srgb);
                const Triple back = srgbFromMixSpace(space, components);
                const Triple other = srgbElsewhere(space, components);
                for (std::size_t i = 0; i < 3; ++i) {
                    EXPECT_NEAR(back[i], srgb[i], 1e-9);
                    EXPECT_NEAR(other[i], srgb[i], 3e-3) << static_cast<int>(space);
                    const MixRange range = rangeOf(space, i);
                    EXPECT_GE(components[i], range.minimum);
                    EXPECT_LE(components[i], range.maximum);
                }
            }
        }
    }
}

TEST(MixSpacesTest, LightnessAndChromaHaveTheirOwnRanges)
{
    EXPECT_EQ(rangeOf(MixSpace::oklch, 0).maximum, 1);
    EXPECT_EQ(rangeOf(MixSpace::oklch, 1).maximum, 0.4);
    EXPECT_EQ(rangeOf(MixSpace::oklch, 2).maximum, 360);
}

TEST(MixSpacesTest, ComponentsWithoutInfluenceAreKnown)
{
    struct Row {
        MixSpace space;
        Triple srgb;
        std::array<bool, 3> powerless;
    };
    for (const Row& row : {
             Row{MixSpace::oklch, {0.5, 0.5, 0.5}, {false, false, true}},
             Row{MixSpace::oklch, {1, 1, 1}, {false, false, true}},
             Row{MixSpace::oklch, {0.5, 0.5, 0.52}, {false, false, false}},
             Row{MixSpace::hsl, {0.5, 0.5, 0.5}, {true, false, false}},
             Row{MixSpace::hsl, {1, 1, 1}, {true, true, false}},
             Row{MixSpace::hsl, {0, 0, 0}, {true, true, false}},
             Row{MixSpace::hsv, {1, 1, 1}, {true, false, false}},
             Row{MixSpace::hsv, {0, 0, 0}, {true, true, false}},
             Row{MixSpace::lab, {0, 0, 0}, {false, false, false}},
         }) {
        const Triple components = mixSpaceFromSRGB(row.space, row.srgb);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_EQ(isPowerless(row.space, components, i), row.powerless[i])
                << static_cast<int>(row.space) << " " << row.srgb[0] << " " << i;
    }
}

}  // namespace
}  // namespace vantorel
