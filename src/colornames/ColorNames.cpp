#include "colornames/ColorNames.h"

#include "color/ChannelConversion.h"
#include "colormath/Differences.h"
#include "colormath/NearestNamedColor.h"
#include "colortext/ListedName.h"
#include "csscolor/CSSNamedColors.h"
#include "text/Trimming.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

/// No list has a longer name of a colour that anybody types.
constexpr std::size_t longestTypedName = 256;

HostColor roundedToBytes(const HostColor& color)
{
    const auto rgb = color.calibratedRGB().value_or(HostColor::Components{});
    return HostColor::colorWithCalibratedRed(nearestByte(rgb.red) / 255.0,
                                             nearestByte(rgb.green) / 255.0,
                                             nearestByte(rgb.blue) / 255.0, 1);
}

HostColor colorOfValue(std::uint32_t value)
{
    const auto fraction = [value](int shift) { return ((value >> shift) & 0xFFU) / 255.0; };
    return HostColor::colorWithCalibratedRed(fraction(16), fraction(8), fraction(0), 1);
}

/// Whether a colour is nearer to `place` than another one.
bool isNearer(const HostColor& color, const HostColor& other, const HostColor& place)
{
    const std::array both{cssValueOf(other), cssValueOf(color)};
    return NearestColor(both).placeFor(cssValueOf(place)) == 1;
}

/// Whether the bytes of a file contain a name in any letter case, so that its list is worth
/// reading.
bool mayHaveName(const std::string& bytes, const std::string& name)
{
    const auto isPlain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    // The file may have another encoding.
    if (!std::ranges::all_of(name, isPlain)) return true;
    const auto isSame = [](char left, char right) { return lowerCase(left) == lowerCase(right); };
    return std::search(bytes.begin(), bytes.end(), name.begin(), name.end(), isSame) != bytes.end();
}

}  // namespace

ColorNames::ColorNames(const HostFiles& files, HostColorListStore& lists, PaletteFileStore& store)
    : _files(files), _lists(lists), _store(store), _settings(files)
{
}

std::shared_ptr<const HostColorList> ColorNames::namingList()
{
    const auto& name = _settings.current().hexColorList();
    return name ? _lists.colorListNamed(*name) : nullptr;
}

const ListNames* ColorNames::namingListNames()
{
    const auto list = namingList();
    if (!list) {
        _naming.reset();
    } else if (!_naming || !_naming->isOf(list)) {
        _naming.emplace(list);
    }
    return _naming ? &*_naming : nullptr;
}

std::optional<ColorNames::Name> ColorNames::nameOf(const HostColor& color)
{
    if (color.isPattern()) return std::nullopt;
    // What has the same code has the same name.
    const HostColor rounded = roundedToBytes(color);
    const ListNames* names = namingListNames();
    const auto inList = names != nullptr ? names->nearest(rounded) : std::nullopt;
    const auto ofCSS = nearestNamedColor(rounded);
    const bool isOfList =
        inList && !(ofCSS && isNearer(colorOfValue(ofCSS->color.value), inList->color, rounded));
    if (isOfList) return Name{inList->name, names->list().name(), inList->isExact};
    if (!ofCSS) return std::nullopt;
    return Name{std::u16string(ofCSS->color.name), std::u16string(cssNamesTitle), ofCSS->isExact};
}

std::vector<std::shared_ptr<const HostColorList>> ColorNames::chosenLists()
{
    std::vector<std::shared_ptr<const HostColorList>> lists;
    if (auto list = namingList()) lists.push_back(std::move(list));
    const std::u16string inUse = _listInUse ? _listInUse() : std::u16string();
    if (inUse.empty() || (!lists.empty() && lists.front()->name() == inUse)) return lists;
    if (auto list = _lists.colorListNamed(inUse)) lists.push_back(std::move(list));
    return lists;
}

std::optional<HostColor> ColorNames::colorNamed(std::u16string_view name, Reach reach)
{
    const std::u16string wanted(trimmed(name, [](char16_t c) { return isBlank(c); }));
    if (wanted.empty() || wanted.size() > longestTypedName) return std::nullopt;
    for (const auto& list : chosenLists()) {
        if (const auto color = colorInList(*list, wanted)) return color;
    }
    if (const auto value = cssNamedColor(wanted)) return colorOfValue(*value);
    return reach == Reach::allLists ? colorInOtherLists(wanted) : std::nullopt;
}

std::optional<HostColor> ColorNames::colorInOtherLists(const std::u16string& name)
{
    const std::string utf8 = utf8FromUtf16(name);
    for (const ListedPalette& palette : _store.listedPalettes()) {
        // A list that has been read stays in memory, so only those are read that may have the name.
        const auto bytes = _files.contentsAtPath(palette.path);
        if (!bytes || !mayHaveName(*bytes, utf8)) continue;
        const auto list = _lists.colorListNamed(palette.name);
        if (!list) continue;
        if (const auto color = colorInList(*list, name)) return color;
    }
    return std::nullopt;
}

}  // namespace vantorel
