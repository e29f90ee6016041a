#include "paletteedit/ProposedName.h"

#include "color/QTXHexColorSpec.h"
#include "paletteedit/FreeNames.h"

namespace vantorel {
namespace {

double squaredDistance(const HostColor& left, const HostColor& right)
{
    const auto a = left.calibratedRGB().value_or(HostColor::Components{});
    const auto b = right.calibratedRGB().value_or(HostColor::Components{});
    const double red = a.red - b.red;
    const double green = a.green - b.green;
    const double blue = a.blue - b.blue;
    return red * red + green * green + blue * blue;
}

}  // namespace

std::u16string proposedName(const HostColor& color, const PaletteEntries& entries)
{
    const HostColor wanted = paletteColor(color);
    const PaletteEntry* nearest = nullptr;
    double least = 0;
    for (const PaletteEntry& entry : entries) {
        const double distance = squaredDistance(wanted, entry.color());
        if (nearest != nullptr && distance >= least) continue;
        nearest = &entry;
        least = distance;
    }
    FreeNames names(entries);
    if (nearest != nullptr) {
        QTXHexColorSpec spec;
        spec.setColorHexColorSpec(wanted);
        if (spec.isEqualToColor(nearest->color()) || spec.isCloseToColor(nearest->color())) {
            return names.take(nearest->name());
        }
    }
    return names.take(hexCodeOf(wanted));
}

}  // namespace vantorel
