#include "paletteedit/PaletteEntry.h"

#include <cmath>

namespace vantorel {
namespace {

int byteOfChannel(double channel)
{
    // NaN is no number of light, and so none.
    if (!(channel > 0)) return 0;
    return channel < 1 ? static_cast<int>(std::lround(channel * 255)) : 255;
}

}  // namespace

HostColor paletteColor(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    return HostColor::colorWithCalibratedRed(byteOfChannel(rgb.red) / 255.0,
                                             byteOfChannel(rgb.green) / 255.0,
                                             byteOfChannel(rgb.blue) / 255.0, 1);
}

std::u16string hexCodeOf(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    std::u16string text = u"#";
    for (const double channel : {rgb.red, rgb.green, rgb.blue}) {
        const auto byte = static_cast<unsigned>(byteOfChannel(channel));
        text += u"0123456789ABCDEF"[byte >> 4];
        text += u"0123456789ABCDEF"[byte & 15];
    }
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
