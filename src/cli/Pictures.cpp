#include "cli/Pictures.h"

#include "cli/ColorText.h"
#include "cli/Failure.h"
#include "colorlists/ColorSort.h"
#include "csscolor/CSSColorWriter.h"
#include "host/HostText.h"
#include "view/PaletteGeometry.h"
#include "view/ViewColors.h"
#include "view/WheelGeometry.h"

#include <png.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <csetjmp>

namespace vantorel {
namespace {

/// The geometry draws two points off the corner; a rim of that width comes out on all sides.
constexpr double rim = 2;

HostSize insideRim(HostSize size)
{
    return {size.width - 2 * rim, size.height - 2 * rim};
}

std::string number(double value)
{
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, 3)
                         .ptr;
    std::string text(buffer.data(), end);
    text.resize(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string hexOf(const HostColor& color)
{
    const HostColor bytes = byteColorOf(color).hostColor().colorWithAlphaComponent(1);
    return utf8FromUtf16(hexText(bytes).value_or(u""));
}

/// XML takes no control characters, not even escaped, and no U+FFFE and U+FFFF.
std::string xmlText(const std::u16string& name)
{
    std::u16string allowed = name;
    std::replace_if(
        allowed.begin(), allowed.end(), [](char16_t c) { return c >= 0xFFFE; }, u'\uFFFD');
    std::string result;
    for (const char c : harmlessLine(utf8FromUtf16(allowed))) {
        if (c == '&') {
            result += "&amp;";
        } else if (c == '<') {
            result += "&lt;";
        } else if (c == '>') {
            result += "&gt;";
        } else {
            result += c;
        }
    }
    return result;
}

std::string svgOpening(HostSize size, const std::string& title)
{
    const std::string width = number(size.width);
    const std::string height = number(size.height);
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
           width + "\" height=\"" + height + "\" viewBox=\"0 0 " + width + " " + height +
           "\">\n<title>" + title + "</title>\n<rect width=\"100%\" height=\"100%\" fill=\"" +
           hexOf(hexColorsViewBackgroundColorS) +
           "\"/>\n"
           // Neighbours share an edge, through which the ground would shine.
           "<g shape-rendering=\"crispEdges\">\n";
}

constexpr const char* svgClosing = "</g>\n</svg>\n";

void writeToString(png_structp png, png_bytep data, png_size_t length)
{
    auto* bytes = static_cast<std::string*>(png_get_io_ptr(png));
    bytes->append(reinterpret_cast<const char*>(data), length);
}

/// The colours of one row of pixels.
class PaletteRaster {
public:
    PaletteRaster(const std::shared_ptr<const HostColorList>& list, HostSize size)
        : _list(list),
          _places(sortedColorIndexes(*list)),
          _size(size),
          _grid(paletteGrid(_places.size(), insideRim(size)))
    {
    }

    void fillRow(int y, std::vector<png_byte>& row) const
    {
        const ByteColor ground = byteColorOf(hexColorsViewBackgroundColorS);
        for (std::size_t x = 0; x < row.size() / 3; ++x)
            setPixel(row, x, ground);
        if (_places.empty()) return;
        const double heightInside = insideRim(_size).height;
        const double fromTop = y + 0.5 - rim;
        if (fromTop < 0 || fromTop >= heightInside) return;
        const auto line = static_cast<std::uint64_t>(fromTop / _grid.swatch.height);
        for (std::uint64_t column = 0; column < _grid.across; ++column) {
            const std::uint64_t index = line * _grid.across + column;
            if (index >= _places.size()) return;
            const HostRect rect = paletteSwatchRect(_grid, index, heightInside);
            const ByteColor color = byteColorOf(_list->colorAtIndex(_places[index]));
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

    std::shared_ptr<const HostColorList> _list;
    std::vector<std::size_t> _places;
    HostSize _size;
    PaletteGrid _grid;
};

/// Nothing in here may need a destructor: a failure jumps out of it.
bool writePng(png_structp png, png_infop info, const PaletteRaster& raster, HostSize size,
              std::vector<png_byte>& row)
{
    // libpng tells of failures in no other way.
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

std::string paletteSvg(const std::shared_ptr<const HostColorList>& list, HostSize size)
{
    const HostSize inside = insideRim(size);
    const std::vector<std::size_t> places = sortedColorIndexes(*list);
    const PaletteGrid grid = paletteGrid(places.size(), inside);
    std::string svg = svgOpening(size, xmlText(list->name()));
    for (std::size_t i = 0; i < places.size(); ++i) {
        const HostRect rect = paletteSwatchRect(grid, i, inside.height);
        // The geometry's y axis points up from a corner that is itself two points off.
        const double y = inside.height + 2 * rim - rect.maxY();
        svg += "<rect x=\"" + number(rect.x) + "\" y=\"" + number(y) + "\" width=\"" +
               number(rect.width) + "\" height=\"" + number(rect.height) + "\" fill=\"" +
               hexOf(list->colorAtIndex(places[i])) + "\"><title>" +
               xmlText(list->allKeys()[places[i]]) + "</title></rect>\n";
    }
    return svg + svgClosing;
}

std::string palettePng(const std::shared_ptr<const HostColorList>& list, HostSize size)
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
            svg += (i == 0 ? "M" : "L") + number(cell.corners[i].x) + " " +
                   number(size.height - cell.corners[i].y);
        }
        const ByteColor color{cell.red, cell.green, cell.blue};
        svg += "Z\" fill=\"" + hexOf(color.hostColor()) + "\"/>\n";
    }
    return svg + svgClosing;
}

}  // namespace vantorel
