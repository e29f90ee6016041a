#include "paletteedit/ProposedName.h"

#include "color/QTXHexColorSpec.h"
#include "colormath/NearestNamedColor.h"
#include "csscolor/CSSColorReader.h"
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

/// Removes a number from 2 on and the space before it.
std::u16string_view withoutNumber(std::u16string_view name)
{
    const std::size_t end = name.find_last_not_of(u"0123456789");
    if (end == std::u16string_view::npos || end + 1 == name.size() || name[end] != u' ')
        return name;
    const std::u16string_view number = name.substr(end + 1);
    const bool isCount = number.front() != u'0' && number != u"1";
    return isCount ? name.substr(0, end) : name;
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

bool isOnlyCode(std::u16string_view name)
{
    constexpr std::size_t longestCode = 200;
    const std::u16string tidy = tidyName(name);
    std::u16string_view text = withoutNumber(tidy);
    if (text.empty() || text == u"Untitled") return true;
    if (tidy.size() > longestCode) return false;
    const bool mayBeCode = text.front() == u'#' || startsCSSColorFunction(text);
    return mayBeCode && readCSSColor(text).hasValue();
}

std::u16string nameToStartFrom(const PaletteEntries& entries, std::size_t place)
{
    const PaletteEntry& entry = entries[place];
    if (!isOnlyCode(entry.name())) return entry.name();
    const auto nearest = nearestNamedColor(entry.color());
    if (!nearest) return entry.name();
    return FreeNames(entries).take(std::u16string(nearest->color.name));
}

PaletteEntries entriesNamedAfterCSS(const std::vector<HostColor>& colors)
{
    PaletteEntries entries;
    FreeNames names;
    for (const HostColor& color : colors) {
        const auto nearest = nearestNamedColor(color);
        const std::u16string name =
            nearest ? std::u16string(nearest->color.name) : hexCodeOf(color);
        entries.emplace_back(names.take(name), color);
    }
    return entries;
}

}  // namespace vantorel
