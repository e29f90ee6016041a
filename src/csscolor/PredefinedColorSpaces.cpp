#include "csscolor/PredefinedColorSpaces.h"

#include <cmath>

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

template <typename Function>
ColorTriple mirrored(const ColorTriple& values, Function decode)
{
    ColorTriple result{};
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = std::copysign(decode(std::abs(values[i])), values[i]);
    return result;
}

/// The transfer function of a98-rgb (CSS Color 4).
double linearFromA98RGB(double encoded)
{
    return std::pow(encoded, 563.0 / 256);
}

/// The transfer function of prophoto-rgb (CSS Color 4).
double linearFromProPhotoRGB(double encoded)
{
    return encoded <= 16.0 / 512 ? encoded / 16 : std::pow(encoded, 1.8);
}

/// The transfer function of rec2020 (CSS Color 4). This is the curve of a display (BT.1886), not
/// that of a camera, which early drafts used.
double linearFromRec2020(double encoded)
{
    return std::pow(encoded, 2.4);
}

ColorTriple srgbFromXYZ(const ColorTriple& xyz)
{
    return srgbFromLinear(linearSRGBFromXYZ(xyz));
}

}  // namespace

std::optional<PredefinedColorSpace> predefinedColorSpaceNamed(std::u16string_view name)
{
    if (name == u"srgb") return PredefinedColorSpace::srgb;
    if (name == u"srgb-linear") return PredefinedColorSpace::srgbLinear;
    if (name == u"display-p3") return PredefinedColorSpace::displayP3;
    if (name == u"display-p3-linear") return PredefinedColorSpace::displayP3Linear;
    if (name == u"a98-rgb") return PredefinedColorSpace::a98RGB;
    if (name == u"prophoto-rgb") return PredefinedColorSpace::proPhotoRGB;
    if (name == u"rec2020") return PredefinedColorSpace::rec2020;
    if (name == u"xyz" || name == u"xyz-d65") return PredefinedColorSpace::xyzD65;
    if (name == u"xyz-d50") return PredefinedColorSpace::xyzD50;
    return std::nullopt;
}

ColorTriple srgbFromPredefined(PredefinedColorSpace space, const ColorTriple& values)
{
    switch (space) {
        case PredefinedColorSpace::srgb:
            return values;
        case PredefinedColorSpace::srgbLinear:
            return srgbFromLinear(values);
        case PredefinedColorSpace::displayP3:
            // Display P3 has the encoding of sRGB.
            return srgbFromXYZ(multiplied(linearDisplayP3ToXYZ, linearFromSRGB(values)));
        case PredefinedColorSpace::displayP3Linear:
            return srgbFromXYZ(multiplied(linearDisplayP3ToXYZ, values));
        case PredefinedColorSpace::a98RGB:
            return srgbFromXYZ(multiplied(linearA98RGBToXYZ, mirrored(values, linearFromA98RGB)));
        case PredefinedColorSpace::proPhotoRGB:
            return srgbFromXYZ(xyzFromXYZD50(
                multiplied(linearProPhotoRGBToXYZD50, mirrored(values, linearFromProPhotoRGB))));
        case PredefinedColorSpace::rec2020:
            return srgbFromXYZ(multiplied(linearRec2020ToXYZ, mirrored(values, linearFromRec2020)));
        case PredefinedColorSpace::xyzD65:
            return srgbFromXYZ(values);
        case PredefinedColorSpace::xyzD50:
            return srgbFromXYZ(xyzFromXYZD50(values));
    }
    return values;
}

}  // namespace vantorel
