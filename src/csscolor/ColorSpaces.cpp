#include "csscolor/ColorSpaces.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantorel {
namespace {

// The matrices are those of CSS Color 4, "Sample code for Color Conversions".
// clang-format off
constexpr ColorMatrix linearDisplayP3ToXYZ{{
    {608311.0 / 1250200, 189793.0 / 714400,  198249.0 / 1000160},
    { 35783.0 /  156275, 247089.0 / 357200,  198249.0 / 2500400},
    {     0.0          ,  32229.0 / 714400, 5220557.0 / 5000800},
}};
constexpr ColorMatrix linearA98RGBToXYZ{{
    {573536.0 /  994567,  263643.0 / 1420810,  187206.0 /  994567},
    {591459.0 / 1989134, 6239551.0 / 9945670,  374412.0 / 4972835},
    { 53769.0 / 1989134,  351524.0 / 4972835, 4929758.0 / 4972835},
}};
/// Converts to XYZ relative to D50, the white point of this space.
constexpr ColorMatrix linearProPhotoRGBToXYZD50{{
    {0.79776664490064230, 0.13518129740053308, 0.03134773412839220},
    {0.28807482881940130, 0.71183523424187300, 0.00008993693872564},
    {0.0,                 0.0,                 0.82510460251046020},
}};
constexpr ColorMatrix linearRec2020ToXYZ{{
    {63426534.0 / 99577255,  20160776.0 / 139408157,  47086771.0 / 278816314},
    {26158966.0 / 99577255, 472592308.0 / 697040785,   8267143.0 / 139408157},
    {       0.0           ,  19567812.0 / 697040785, 295819943.0 / 278816314},
}};
// clang-format on

/// Returns the inverse of a matrix, which must have one.
constexpr ColorMatrix inverse(const ColorMatrix& m)
{
    ColorMatrix cofactors{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const auto& above = m[(row + 1) % 3];
            const auto& below = m[(row + 2) % 3];
            const std::size_t left = (column + 1) % 3;
            const std::size_t right = (column + 2) % 3;
            cofactors[column][row] = above[left] * below[right] - above[right] * below[left];
        }
    }
    const double determinant =
        m[0][0] * cofactors[0][0] + m[0][1] * cofactors[1][0] + m[0][2] * cofactors[2][0];
    for (auto& row : cofactors) {
        for (double& element : row)
            element /= determinant;
    }
    return cofactors;
}

constexpr ColorMatrix xyzToLinearDisplayP3 = inverse(linearDisplayP3ToXYZ);
constexpr ColorMatrix xyzToLinearA98RGB = inverse(linearA98RGBToXYZ);
constexpr ColorMatrix xyzD50ToLinearProPhotoRGB = inverse(linearProPhotoRGBToXYZD50);
constexpr ColorMatrix xyzToLinearRec2020 = inverse(linearRec2020ToXYZ);

/// Applies a transfer function, which negative values mirror.
template <typename Function>
ColorTriple mirrored(const ColorTriple& values, Function function)
{
    ColorTriple result{};
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = std::copysign(function(std::abs(values[i])), values[i]);
    return result;
}

// The transfer functions of CSS Color 4. That of rec2020 is the curve of a display (BT.1886), not
// that of a camera, which early drafts used.
constexpr double a98RGBExponent = 563.0 / 256;
constexpr double proPhotoRGBExponent = 1.8;
constexpr double rec2020Exponent = 2.4;

double linearFromA98RGB(double encoded)
{
    return std::pow(encoded, a98RGBExponent);
}

double a98RGBFromLinear(double linear)
{
    return std::pow(linear, 1 / a98RGBExponent);
}

double linearFromProPhotoRGB(double encoded)
{
    return encoded <= 16.0 / 512 ? encoded / 16 : std::pow(encoded, proPhotoRGBExponent);
}

double proPhotoRGBFromLinear(double linear)
{
    return linear < 1.0 / 512 ? linear * 16 : std::pow(linear, 1 / proPhotoRGBExponent);
}

double linearFromRec2020(double encoded)
{
    return std::pow(encoded, rec2020Exponent);
}

double rec2020FromLinear(double linear)
{
    return std::pow(linear, 1 / rec2020Exponent);
}

constexpr std::array predefinedNames{
    std::pair{std::u16string_view(u"srgb"), ColorSpace::srgb},
    std::pair{std::u16string_view(u"srgb-linear"), ColorSpace::srgbLinear},
    std::pair{std::u16string_view(u"display-p3"), ColorSpace::displayP3},
    std::pair{std::u16string_view(u"display-p3-linear"), ColorSpace::displayP3Linear},
    std::pair{std::u16string_view(u"a98-rgb"), ColorSpace::a98RGB},
    std::pair{std::u16string_view(u"prophoto-rgb"), ColorSpace::proPhotoRGB},
    std::pair{std::u16string_view(u"rec2020"), ColorSpace::rec2020},
    std::pair{std::u16string_view(u"xyz"), ColorSpace::xyzD65},
    std::pair{std::u16string_view(u"xyz-d65"), ColorSpace::xyzD65},
    std::pair{std::u16string_view(u"xyz-d50"), ColorSpace::xyzD50},
};
constexpr std::array otherNames{
    std::pair{std::u16string_view(u"hsl"), ColorSpace::hsl},
    std::pair{std::u16string_view(u"hwb"), ColorSpace::hwb},
    std::pair{std::u16string_view(u"lab"), ColorSpace::lab},
    std::pair{std::u16string_view(u"lch"), ColorSpace::lch},
    std::pair{std::u16string_view(u"oklab"), ColorSpace::oklab},
    std::pair{std::u16string_view(u"oklch"), ColorSpace::oklch},
};

template <class Names>
std::optional<ColorSpace> spaceIn(const Names& names, std::u16string_view name)
{
    const auto found = std::ranges::find(names, name, [](const auto& pair) { return pair.first; });
    return found != names.end() ? std::optional(found->second) : std::nullopt;
}

struct SpaceComponents {
    std::array<ColorComponent, 3> components{};
    std::array<std::u16string_view, 3> keywords;
};

const SpaceComponents& partsOf(ColorSpace space)
{
    using enum ColorComponent;
    static constexpr SpaceComponents rgb{{red, green, blue}, {u"r", u"g", u"b"}};
    static constexpr SpaceComponents xyz{{red, green, blue}, {u"x", u"y", u"z"}};
    static constexpr SpaceComponents hsl{{hue, colorfulness, lightness}, {u"h", u"s", u"l"}};
    static constexpr SpaceComponents hwb{{hue, whiteness, blackness}, {u"h", u"w", u"b"}};
    static constexpr SpaceComponents lab{{lightness, a, b}, {u"l", u"a", u"b"}};
    static constexpr SpaceComponents lch{{lightness, colorfulness, hue}, {u"l", u"c", u"h"}};
    switch (space) {
        case ColorSpace::xyzD65:
        case ColorSpace::xyzD50:
            return xyz;
        case ColorSpace::hsl:
            return hsl;
        case ColorSpace::hwb:
            return hwb;
        case ColorSpace::lab:
        case ColorSpace::oklab:
            return lab;
        case ColorSpace::lch:
        case ColorSpace::oklch:
            return lch;
        default:
            return rgb;
    }
}

/// Returns the space with rectangular coordinates in place of chroma and hue.
ColorSpace rectangularSpace(ColorSpace space)
{
    if (space == ColorSpace::lch) return ColorSpace::lab;
    return space == ColorSpace::oklch ? ColorSpace::oklab : space;
}

ColorTriple xyzFrom(ColorSpace space, const ColorTriple& values)
{
    switch (space) {
        case ColorSpace::srgb:
            return xyzFromLinearSRGB(linearFromSRGB(values));
        case ColorSpace::srgbLinear:
            return xyzFromLinearSRGB(values);
        case ColorSpace::displayP3:
            // Display P3 has the encoding of sRGB.
            return multiplied(linearDisplayP3ToXYZ, linearFromSRGB(values));
        case ColorSpace::displayP3Linear:
            return multiplied(linearDisplayP3ToXYZ, values);
        case ColorSpace::a98RGB:
            return multiplied(linearA98RGBToXYZ, mirrored(values, linearFromA98RGB));
        case ColorSpace::proPhotoRGB:
            return xyzFromXYZD50(
                multiplied(linearProPhotoRGBToXYZD50, mirrored(values, linearFromProPhotoRGB)));
        case ColorSpace::rec2020:
            return multiplied(linearRec2020ToXYZ, mirrored(values, linearFromRec2020));
        case ColorSpace::xyzD65:
            return values;
        case ColorSpace::xyzD50:
            return xyzFromXYZD50(values);
        case ColorSpace::hsl:
            return xyzFrom(ColorSpace::srgb, srgbFromHSL(values));
        case ColorSpace::hwb:
            return xyzFrom(ColorSpace::srgb, srgbFromHWB(values));
        case ColorSpace::lab:
            return xyzFromXYZD50(xyzD50FromLab(values));
        case ColorSpace::oklab:
            return xyzFromOklab(values);
        case ColorSpace::lch:
        case ColorSpace::oklch:
            return xyzFrom(rectangularSpace(space), rectangularFromPolar(values));
    }
    return values;
}

ColorTriple fromXYZ(const ColorTriple& xyz, ColorSpace space)
{
    switch (space) {
        case ColorSpace::srgb:
            return srgbFromLinear(linearSRGBFromXYZ(xyz));
        case ColorSpace::srgbLinear:
            return linearSRGBFromXYZ(xyz);
        case ColorSpace::displayP3:
            return srgbFromLinear(multiplied(xyzToLinearDisplayP3, xyz));
        case ColorSpace::displayP3Linear:
            return multiplied(xyzToLinearDisplayP3, xyz);
        case ColorSpace::a98RGB:
            return mirrored(multiplied(xyzToLinearA98RGB, xyz), a98RGBFromLinear);
        case ColorSpace::proPhotoRGB:
            return mirrored(multiplied(xyzD50ToLinearProPhotoRGB, xyzD50FromXYZ(xyz)),
                            proPhotoRGBFromLinear);
        case ColorSpace::rec2020:
            return mirrored(multiplied(xyzToLinearRec2020, xyz), rec2020FromLinear);
        case ColorSpace::xyzD65:
            return xyz;
        case ColorSpace::xyzD50:
            return xyzD50FromXYZ(xyz);
        case ColorSpace::hsl:
            return hslFromSRGB(fromXYZ(xyz, ColorSpace::srgb));
        case ColorSpace::hwb:
            return hwbFromSRGB(fromXYZ(xyz, ColorSpace::srgb));
        case ColorSpace::lab:
            return labFromXYZD50(xyzD50FromXYZ(xyz));
        case ColorSpace::oklab:
            return oklabFromXYZ(xyz);
        case ColorSpace::lch:
        case ColorSpace::oklch:
            return polarFromRectangular(fromXYZ(xyz, rectangularSpace(space)));
    }
    return xyz;
}

/// Whether a space has other coordinates for sRGB, so that no matrix is needed.
bool isKindOfSRGB(ColorSpace space)
{
    return space == ColorSpace::srgb || space == ColorSpace::hsl || space == ColorSpace::hwb;
}

}  // namespace

std::optional<ColorSpace> predefinedColorSpaceNamed(std::u16string_view name)
{
    return spaceIn(predefinedNames, name);
}

std::optional<ColorSpace> colorSpaceNamed(std::u16string_view name)
{
    const auto space = spaceIn(predefinedNames, name);
    return space ? space : spaceIn(otherNames, name);
}

const std::array<ColorComponent, 3>& componentsOf(ColorSpace space)
{
    return partsOf(space).components;
}

std::optional<std::size_t> placeOfHue(ColorSpace space)
{
    const auto& components = componentsOf(space);
    const auto found = std::ranges::find(components, ColorComponent::hue);
    if (found == components.end()) return std::nullopt;
    return static_cast<std::size_t>(found - components.begin());
}

const std::array<std::u16string_view, 3>& componentKeywords(ColorSpace space)
{
    return partsOf(space).keywords;
}

ColorTriple convertedColor(const ColorTriple& values, ColorSpace from, ColorSpace to)
{
    if (from == to) return values;
    // Directly, which is exact also for huge chromas.
    if (rectangularSpace(from) == to) return rectangularFromPolar(values);
    if (rectangularSpace(to) == from) return polarFromRectangular(values);
    if (!isKindOfSRGB(from) || !isKindOfSRGB(to)) return fromXYZ(xyzFrom(from, values), to);
    const ColorTriple srgb = srgbFrom(from, values);
    if (to == ColorSpace::hsl) return hslFromSRGB(srgb);
    return to == ColorSpace::hwb ? hwbFromSRGB(srgb) : srgb;
}

ColorTriple srgbFrom(ColorSpace space, const ColorTriple& values)
{
    if (space == ColorSpace::srgb) return values;
    if (space == ColorSpace::hsl) return srgbFromHSL(values);
    if (space == ColorSpace::hwb) return srgbFromHWB(values);
    if (space == ColorSpace::srgbLinear) return srgbFromLinear(values);
    return srgbFromLinear(linearSRGBFromXYZ(xyzFrom(space, values)));
}

bool isHuePowerless(ColorSpace space, const ColorTriple& values)
{
    // Greys have a little chroma after a conversion, because of rounding.
    constexpr double leastChroma = 0.0015;
    constexpr double leastOkChroma = 0.000004;
    constexpr double leastPercent = 0.001;
    switch (space) {
        case ColorSpace::hsl:
            return values[1] <= leastPercent;
        case ColorSpace::hwb:
            return values[1] + values[2] >= 100 - leastPercent;
        case ColorSpace::lch:
            return values[1] <= leastChroma;
        case ColorSpace::oklch:
            return values[1] <= leastOkChroma;
        default:
            return false;
    }
}

}  // namespace vantorel
