#include "mix/MixChannels.h"

namespace vantorel {
namespace {

// Units of one width, so that the digits of fixed-width numbers are aligned.
constexpr const char16_t* percentUnit = u"\u00A0%";
constexpr const char16_t* degreeUnit = u"\u00A0\u00B0";
constexpr const char16_t* noUnit = u"\u00A0\u00A0";

HostNumberFormat percent(int decimals)
{
    HostNumberFormat format;
    format.decimals = decimals;
    format.unit = percentUnit;
    return format;
}

HostNumberFormat degrees()
{
    HostNumberFormat format;
    format.maximum = 360;
    format.decimals = 1;
    format.unit = degreeUnit;
    format.isCyclic = true;
    return format;
}

HostNumberFormat chroma()
{
    HostNumberFormat format;
    // Beyond the slider's end are colours of larger gamuts.
    format.maximum = 1;
    format.step = 0.01;
    format.decimals = 3;
    format.unit = noUnit;
    return format;
}

HostNumberFormat ab()
{
    HostNumberFormat format;
    format.minimum = -300;
    format.maximum = 300;
    format.decimals = 1;
    format.unit = noUnit;
    return format;
}

}  // namespace

MixChannel channelOf(HostDesktop& desktop, MixSpace space, std::size_t component)
{
    const bool isHexagon = space == MixSpace::hsl || space == MixSpace::hsv;
    if (rangeOf(space, component).isHue)
        return {desktop.localizedString(u"Hue"), u"H", degrees(), 1};
    if (isHexagon && component == 1)
        return {desktop.localizedString(u"Saturation"), u"S", percent(1), 1};
    if (space == MixSpace::hsv) return {desktop.localizedString(u"Value"), u"V", percent(1), 1};
    if (space == MixSpace::oklch && component == 1)
        return {desktop.localizedString(u"Chroma"), u"C", chroma(), 1};
    if (space == MixSpace::lab && component == 1)
        return {desktop.localizedString(u"Green to red"), u"a", ab(), 1};
    if (space == MixSpace::lab && component == 2)
        return {desktop.localizedString(u"Blue to yellow"), u"b", ab(), 1};
    return {desktop.localizedString(u"Lightness"), u"L", percent(1),
            space == MixSpace::oklch ? 100.0 : 1.0};
}

MixChannel opacityChannel(HostDesktop& desktop)
{
    return {desktop.localizedString(u"Opacity"), u"A", percent(0), 100};
}

std::u16string nameOf(MixSpace space)
{
    switch (space) {
        case MixSpace::oklch:
            return u"OKLCH";
        case MixSpace::hsl:
            return u"HSL";
        case MixSpace::hsv:
            return u"HSV";
        case MixSpace::lab:
            break;
    }
    return u"Lab";
}

}  // namespace vantorel
