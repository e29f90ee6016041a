#include "colormath/ColorProperties.h"

namespace vantorel {

double propertyOf(const CSSColorValue& color, ColorProperty property)
{
    if (property == ColorProperty::luminance)
        return convertedColor(color.components, color.space, ColorSpace::xyzD65)[1];
    const ColorTriple oklch = convertedColor(color.components, color.space, ColorSpace::oklch);
    switch (property) {
        case ColorProperty::hue:
            return isHuePowerless(ColorSpace::oklch, oklch) ? -1 : oklch[2];
        case ColorProperty::chroma:
            return oklch[1];
        case ColorProperty::lightness:
        case ColorProperty::luminance:
            break;
    }
    return oklch[0];
}

}  // namespace vantorel
