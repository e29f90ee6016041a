#include "listformats/PaletteSvg.h"

#include "colorlists/ColorSort.h"
#include "listformats/Svg.h"

namespace vantorel {
namespace {

HostSize insideRim(HostSize size)
{
    constexpr double rim = PalettePicture::rim;
    return {size.width - 2 * rim, size.height - 2 * rim};
}

}  // namespace

PalettePicture::PalettePicture(const HostColorList& list, HostSize size)
    : _places(sortedColorIndexes(list)),
      _inside(insideRim(size)),
      _grid(paletteGrid(_places.size(), _inside))
{
}

HostRect PalettePicture::swatch(std::size_t index) const
{
    const HostRect rect = paletteSwatchRect(_grid, index, _inside.height);
    // In the geometry, the y axis points up and the origin is two points off the corner.
    return {rect.x, _inside.height + 2 * rim - rect.maxY(), rect.width, rect.height};
}

std::string paletteSvg(const HostColorList& list, HostSize size)
{
    const PalettePicture picture(list, size);
    const std::vector<std::size_t>& places = picture.places();
    std::string svg = svgOpening(size, svgText(list.name()));
    for (std::size_t i = 0; i < places.size(); ++i) {
        const HostRect rect = picture.swatch(i);
        svg += "<rect x=\"" + svgNumber(rect.x) + "\" y=\"" + svgNumber(rect.y) + "\" width=\"" +
               svgNumber(rect.width) + "\" height=\"" + svgNumber(rect.height) + "\" fill=\"" +
               svgColor(list.colorAtIndex(places[i])) + "\"><title>" +
               svgText(list.allKeys()[places[i]]) + "</title></rect>\n";
    }
    return svg + svgClosing;
}

}  // namespace vantorel
