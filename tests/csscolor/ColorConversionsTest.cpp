#include "csscolor/ColorConversions.h"

#include "csscolor/ColorSpaces.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace vantorel {
namespace {

void expectNear(const ColorTriple& actual, const ColorTriple& expected, double tolerance)
{
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(actual[i], expected[i], tolerance) << "component " << i;
}

ColorMatrix inverse(const ColorMatrix& m)
{
    ColorMatrix cofactors{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const std::size_t r1 = (row + 1) % 3;
            const std::size_t r2 = (row + 2) % 3;
            const std::size_t c1 = (column + 1) % 3;
            const std::size_t c2 = (column + 2) % 3;
            cofactors[row][column] = m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
        }
    }
    const double determinant =
        m[0][0] * cofactors[0][0] + m[0][1] * cofactors[0][1] + m[0][2] * cofactors[0][2];
    ColorMatrix result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            result[row][column] = cofactors[column][row] / determinant;
    }
    return result;
}

ColorTriple xyzOfChromaticity(double x, double y)
{
    return {x / y, 1, (1 - x - y) / y};
}

const ColorTriple d65 = xyzOfChromaticity(0.3127, 0.3290);
const ColorTriple d50 = xyzOfChromaticity(0.3457, 0.3585);

/// The chromaticities of a space's primaries and white, which define everything else.
struct Primaries {
    double redX, redY, greenX, greenY, blueX, blueY;
    ColorTriple white;
};

ColorMatrix linearToXYZ(const Primaries& p)
{
    const ColorTriple columns[]{xyzOfChromaticity(p.redX, p.redY),
                                xyzOfChromaticity(p.greenX, p.greenY),
                                xyzOfChromaticity(p.blueX, p.blueY)};
    ColorMatrix unscaled{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            unscaled[row][column] = columns[column][row];
    }
    const ColorTriple scale = multiplied(inverse(unscaled), p.white);
    for (auto& row : unscaled) {
        for (std::size_t column = 0; column < 3; ++column)
            row[column] *= scale[column];
    }
    return unscaled;
}

/// The Bradford transform from its cone responses.
ColorTriple adapted(const ColorTriple& xyz, const ColorTriple& from, const ColorTriple& to)
{
    const ColorMatrix cones{
        {{0.8951, 0.2664, -0.1614}, {-0.7502, 1.7135, 0.0367}, {0.0389, -0.0685, 1.0296}}};
    const ColorTriple source = multiplied(cones, from);
    const ColorTriple target = multiplied(cones, to);
    ColorTriple response = multiplied(cones, xyz);
    for (std::size_t i = 0; i < 3; ++i)
        response[i] *= target[i] / source[i];
    return multiplied(inverse(cones), response);
}

const Primaries srgbPrimaries{0.64, 0.33, 0.30, 0.60, 0.15, 0.06, d65};

const std::vector<ColorTriple> samples{{0, 0, 0},       {1, 1, 1},        {1, 0, 0},
                                       {0, 1, 0},       {0, 0, 1},        {0.5, 0.5, 0.5},
                                       {0.1, 0.4, 0.9}, {0.9, 0.01, 0.3}, {0.02, 0.03, 0.001}};

TEST(ColorConversionsTest, MatricesFollowFromTheChromaticitiesOfTheirSpaces)
{
    using Space = ColorSpace;
    struct Row {
        Space space;
        Primaries primaries;
        double (*linear)(double);
    };
    const std::vector<Row> rows{
        {Space::srgb, srgbPrimaries, [](double v) { return linearFromSRGB(v); }},
        {Space::srgbLinear, srgbPrimaries, [](double v) { return v; }},
        {Space::displayP3,
         {0.68, 0.32, 0.265, 0.69, 0.15, 0.06, d65},
         [](double v) { return linearFromSRGB(v); }},
        {Space::displayP3Linear,
         {0.68, 0.32, 0.265, 0.69, 0.15, 0.06, d65},
         [](double v) { return v; }},
        {Space::a98RGB,
         {0.64, 0.33, 0.21, 0.71, 0.15, 0.06, d65},
         [](double v) { return std::pow(v, 2.19921875); }},
        {Space::rec2020,
         {0.708, 0.292, 0.17, 0.797, 0.131, 0.046, d65},
         [](double v) { return std::pow(v, 2.4); }},
        {Space::proPhotoRGB,
         {0.734699, 0.265301, 0.159597, 0.840403, 0.036598, 0.000105, d50},
         [](double v) { return v < 1 / 32.0 ? v / 16 : std::pow(v, 1.8); }},
    };
    const ColorMatrix xyzToSRGB = inverse(linearToXYZ(srgbPrimaries));
    for (const Row& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.space));
        const ColorMatrix toXYZ = linearToXYZ(row.primaries);
        for (const ColorTriple& sample : samples) {
            const ColorTriple linear{row.linear(sample[0]), row.linear(sample[1]),
                                     row.linear(sample[2])};
            ColorTriple xyz = multiplied(toXYZ, linear);
            if (row.primaries.white == d50) xyz = adapted(xyz, d50, d65);
            const ColorTriple srgb = srgbFrom(row.space, sample);
            expectNear(linearFromSRGB(srgb), multiplied(xyzToSRGB, xyz), 1e-5);
        }
    }
}

TEST(ColorConversionsTest, D50IsAdaptedToD65)
{
    expectNear(xyzFromXYZD50(d50), d65, 1e-9);
    for (const ColorTriple& sample : samples)
        expectNear(xyzFromXYZD50(sample), adapted(sample, d50, d65), 1e-9);
}

TEST(ColorConversionsTest, LabMatchesItsDefinition)
{
    expectNear(xyzD50FromLab({100, 0, 0}), d50, 1e-9);
    expectNear(xyzD50FromLab({0, 0, 0}), {0, 0, 0}, 1e-9);
    // A reflectance of 18.4187% has the lightness 50: 100 * ((50 + 16) / 116)^3.
    const double middle = std::pow(66.0 / 116, 3);
    expectNear(xyzD50FromLab({50, 0, 0}), {d50[0] * middle, middle, d50[2] * middle}, 1e-9);
    // The linear part, below lightness 8.
    expectNear(xyzD50FromLab({0.9032963, -3.8935, 1.5574}), {0, 0.001, 0}, 1e-6);
}

/// CIE Lab relative to D50, computed from its definition.
ColorTriple labByDefinition(const ColorTriple& xyz)
{
    const auto f = [](double value) {
        return value > 216.0 / 24389 ? std::cbrt(value) : (24389.0 / 27 * value + 16) / 116;
    };
    const double x = f(xyz[0] / d50[0]);
    const double y = f(xyz[1] / d50[1]);
    const double z = f(xyz[2] / d50[2]);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// Converts sRGB to Oklab with the rounded constants of the original Oklab description, which
/// bypasses XYZ.
ColorTriple oklabByFirstDescription(const ColorTriple& srgb)
{
    const auto [r, g, b] = linearFromSRGB(srgb);
    const double l = std::cbrt(0.4122214708 * r + 0.5363325363 * g + 0.0514459929 * b);
    const double m = std::cbrt(0.2119034982 * r + 0.6806995451 * g + 0.1073969566 * b);
    const double s = std::cbrt(0.0883024619 * r + 0.2817188376 * g + 0.6299787005 * b);
    return {0.2104542553 * l + 0.7936177850 * m - 0.0040720468 * s,
            1.9779984951 * l - 2.4285922050 * m + 0.4505937099 * s,
            0.0259040371 * l + 0.7827717662 * m - 0.8086757660 * s};
}

TEST(ColorConversionsTest, ThreeDigitColoursSurviveARoundTripThroughEverySpace)
{
    for (int code = 0; code < 4096; ++code) {
        const ColorTriple srgb{(code >> 8) / 15.0, ((code >> 4) & 15) / 15.0, (code & 15) / 15.0};
        const ColorTriple linear = linearFromSRGB(srgb);
        const ColorTriple xyz = xyzFromLinearSRGB(linear);
        const ColorTriple lab = labByDefinition(adapted(xyz, d65, d50));
        const ColorTriple oklab = oklabFromSRGB(srgb);
        const ColorTriple lch = polarFromRectangular(lab);
        const ColorTriple oklch = polarFromRectangular(oklab);
        expectNear(srgbFromLinear(linear), srgb, 1e-12);
        expectNear(srgbFromLinear(linearSRGBFromXYZ(xyz)), srgb, 1e-9);
        expectNear(xyzFromXYZD50(xyzD50FromLab(lab)), xyz, 1e-9);
        expectNear(rectangularFromPolar(lch), lab, 1e-9);
        expectNear(rectangularFromPolar(oklch), oklab, 1e-12);
        expectNear(srgbFromOklab(oklab), srgb, 1e-7);
        expectNear(srgbFromHSL(hslFromSRGB(srgb)), srgb, 1e-12);
        expectNear(oklab, oklabByFirstDescription(srgb), 2e-4);
        for (const double hue : {lch[2], oklch[2], hslFromSRGB(srgb)[0]}) {
            EXPECT_GE(hue, 0);
            EXPECT_LT(hue, 360);
        }
        if (HasFailure()) FAIL() << "at the code " << code;
    }
}

TEST(ColorConversionsTest, NegativeChannelsMirrorPositiveOnes)
{
    for (const double value : {0.001, 0.04, 0.0405, 0.5, 1.5, 1e30}) {
        EXPECT_EQ(linearFromSRGB(-value), -linearFromSRGB(value));
        EXPECT_EQ(srgbFromLinear(-value), -srgbFromLinear(value));
    }
    const ColorTriple up = srgbFrom(ColorSpace::a98RGB, {0.5, 0.2, 0.01});
    const ColorTriple down = srgbFrom(ColorSpace::a98RGB, {-0.5, -0.2, -0.01});
    expectNear(down, {-up[0], -up[1], -up[2]}, 1e-12);
}

TEST(ColorConversionsTest, HuesWrapIntoOneTurn)
{
    struct Row {
        double degrees;
        double hue;
    };
    for (const Row& row : {Row{0, 0}, Row{359.5, 359.5}, Row{360, 0}, Row{-90, 270}, Row{725, 5},
                           Row{-1e-300, 0}, Row{3600000090, 90}}) {
        EXPECT_DOUBLE_EQ(normalizedHue(row.degrees), row.hue);
    }
    EXPECT_LT(normalizedHue(std::numeric_limits<double>::max()), 360);
}

TEST(ColorConversionsTest, ColoursBeyondTheRangeHaveTheOppositeHue)
{
    expectNear(hslFromSRGB({0.2, 0.4, 0.6}), {210, 50, 40}, 1e-12);
    // Lightness of 20 %, 0, -10 %, 100 % and 110 %.
    expectNear(hslFromSRGB({-0.1, 0.2, 0.5}), {210, 150, 20}, 1e-12);
    expectNear(hslFromSRGB({-0.5, 0, 0.5}), {210, 0, 0}, 1e-12);
    expectNear(hslFromSRGB({-0.3, -0.1, 0.1}), {30, 200, -10}, 1e-9);
    expectNear(hslFromSRGB({0.5, 1, 1.5}), {210, 0, 100}, 1e-12);
    expectNear(hslFromSRGB({0.9, 1.1, 1.3}), {30, 200, 110}, 1e-9);
}

TEST(ColorConversionsTest, WhitenessAndBlacknessOfAHundredOrMoreMakeGrey)
{
    expectNear(srgbFromHWB({70, 60, 60}), {0.5, 0.5, 0.5}, 1e-12);
    expectNear(srgbFromHWB({70, 100, 0}), {1, 1, 1}, 1e-12);
    expectNear(srgbFromHWB({70, 0, 100}), {0, 0, 0}, 1e-12);
    expectNear(srgbFromHWB({240, 25, 50}), {0.25, 0.25, 0.5}, 1e-12);
}

}  // namespace
}  // namespace vantorel
