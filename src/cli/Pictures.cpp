#include "cli/Pictures.h"

#include "colortext/ByteColor.h"
#include "listformats/PaletteSvg.h"
#include "listformats/Svg.h"
#include "view/ViewColors.h"
#include "view/WheelGeometry.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <csetjmp>

namespace vantorel {
namespace {

void writeToString(png_structp png, png_bytep data, png_size_t length)
{
    auto* bytes = static_cast<std::string*>(png_get_io_ptr(png));
    bytes->append(reinterpret_cast<const char*>(data), length);
}

/// Computes the colours of a row of pixels.
class PaletteRaster {
public:
    /// `list` must outlive this object.
    PaletteRaster(const HostColorList& list, HostSize size)
        : _list(list), _size(size), _picture(list, size)
    {
    }

    void fillRow(int y, std::vector<png_byte>& row) const
    {
        const ByteColor ground = byteColorOf(hexColorsViewBackgroundColorS);
        for (std::size_t x = 0; x < row.size() / 3; ++x)
            setPixel(row, x, ground);
        const auto& places = _picture.places();
        if (places.empty()) return;
        const double fromTop = y + 0.5 - PalettePicture::rim;
        if (fromTop < 0 || fromTop >= _picture.inside().height) return;
        const PaletteGrid& grid = _picture.grid();
        const auto line = static_cast<std::uint64_t>(fromTop / grid.swatch.height);
        for (std::uint64_t column = 0; column < grid.across; ++column) {
            const std::uint64_t index = line * grid.across + column;
            if (index >= places.size()) return;
            const HostRect rect = _picture.swatch(index);
            const ByteColor color = byteColorOf(_list.colorAtIndex(places[index]));
            // A pixel belongs to the swatch in which its centre lies.
            const auto begin = static_cast<std::size_t>(std::max(0.0, std::ceil(rect.x - 0.5)));
            const auto end = static_cast<std::size_t>(
                std::clamp(std::ceil(rect.maxX() - 0.5), 0.0, _size.width));
            for (std::size_t x = begin; x < end; ++x)
                setPixel(row, x, color);
        }
    }

private:
    static void setPixel(std::vector<png_byte>& row, std::size_t x, const ByteColor& color)
    {
        row[x * 3] = color.red;
        row[x * 3 + 1] = color.green;
        row[x * 3 + 2] = color.blue;
    }

    const HostColorList& _list;
    HostSize _size;
    PalettePicture _picture;
};

/// This function must not have objects with destructors, because libpng leaves it by longjmp if it
/// fails.
bool writePng(png_structp png, png_infop info, const PaletteRaster& raster, HostSize size,
              std::vector<png_byte>& row)
{
    // libpng has no other way of reporting errors.
    // NOLINTNEXTLINE(cert-err52-cpp)
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_set_IHDR(png, info, static_cast<png_uint_32>(size.width),
                 static_cast<png_uint_32>(size.height), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_sRGB(png, info, PNG_sRGB_INTENT_PERCEPTUAL);
    png_write_info(png, info);
    for (int y = 0; y < static_cast<int>(size.height); ++y) {
        raster.fillRow(y, row);
        png_write_row(png, row.data());
    }
    png_write_end(png, info);
    return true;
}

}  // namespace

std::string palettePng(const HostColorList& list, HostSize size)
{
    std::string bytes;
    const PaletteRaster raster(list, size);
    std::vector<png_byte> row(static_cast<std::size_t>(size.width) * 3);
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
    bool isWritten = false;
    if (info != nullptr) {
        png_set_write_fn(png, &bytes, writeToString, nullptr);
        isWritten = writePng(png, info, raster, size, row);
    }
    png_destroy_write_struct(&png, &info);
    return isWritten ? bytes : std::string();
}

std::string wheelSvg(int rings, HostSize size)
{
    std::string svg = svgOpening(size, std::to_string(rings) + " rings of the colour cube");
    for (const WheelCell& cell : wheelCells(wheelPlace(size, rings))) {
        svg += "<path d=\"";
        for (std::size_t i = 0; i < cell.corners.size(); ++i) {
            svg += (i == 0 ? "M" : "L") + svgNumber(cell.corners[i].x) + " " +
                   svgNumber(size.height - cell.corners[i].y);
        }
        const ByteColor color{cell.red, cell.green, cell.blue};
        svg += "Z\" fill=\"" + svgColor(color.hostColor()) + "\"/>\n";
    }
    return svg + svgClosing;
}

}  // namespace vantorel
