#include "paletteedit/PaletteEntry.h"

#include "color/ChannelConversion.h"
#include "text/HexDigits.h"

namespace vantorel {

HostColor paletteColor(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    return HostColor::colorWithCalibratedRed(nearestByte(rgb.red) / 255.0,
                                             nearestByte(rgb.green) / 255.0,
                                             nearestByte(rgb.blue) / 255.0, 1);
}

std::u16string hexCodeOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    std::u16string text;
    appendHexColor(text, {nearestByte(rgb.red), nearestByte(rgb.green), nearestByte(rgb.blue)},
                   HexCase::upper);
    return text;
}

PaletteEntry::PaletteEntry(std::u16string name, const HostColor& color)
    : _data(std::make_shared<const Data>(Data{std::move(name), paletteColor(color)}))
{
}

PaletteEntries entriesOfList(const HostColorList& list)
{
    PaletteEntries entries;
    entries.reserve(list.allKeys().size());
    for (std::size_t i = 0; i < list.allKeys().size(); ++i)
        entries.emplace_back(list.allKeys()[i], list.colorAtIndex(i));
    return entries;
}

std::shared_ptr<HostColorList> listOfEntries(const std::u16string& name,
                                             const PaletteEntries& entries)
{
    auto list = std::make_shared<HostColorList>(name);
    for (const PaletteEntry& entry : entries)
        list->setColor(entry.color(), entry.name());
    return list;
}

}  // namespace vantorel
