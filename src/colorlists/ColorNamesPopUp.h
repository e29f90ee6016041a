#pragma once

#include "color/QTXHexColorSpec.h"
#include "colorlists/ColorListIndex.h"
#include "host/HostColorList.h"
#include "host/HostControls.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The pop-up menu of the naming list's colours, and the matching of the current colour against
/// that list.
namespace vantorel {

inline constexpr const char16_t* noMatchTitle = u"No Match";

/// Returns a menu swatch of 22 by 14 points: the colour with a white and a black border.
[[nodiscard]] HostImage swatchImage(const HostColor& color);

/// Returns the swatch of an entry, or `std::nullopt` if the list has no colour of that name.
[[nodiscard]] std::optional<HostImage> menuImageWithColorList(const HostColorList& list,
                                                              const std::u16string& colorName);

/// The entries of a list that match a colour.
struct ColorNameMatch {
    /// The index of the first entry that equals the colour.
    std::optional<std::size_t> exactPlace;
    /// If no entry equals the colour: the indexes of the entries close to it, in list order.
    std::vector<std::size_t> closePlaces;
};

/// `index` must be up to date with the list.
[[nodiscard]] ColorNameMatch matchColorName(const QTXHexColorSpec& color, const HostColorList& list,
                                            const ColorListIndex& index);

/// Returns the title of the name pop-up's first item: "* navy, teal", or "No Match" if `closeKeys`
/// is empty.
[[nodiscard]] std::u16string closeTitle(const std::vector<std::u16string>& closeKeys);

/// Fills a name pop-up and remembers its contents, so that filling it again with the same list is
/// free.
class ColorNamesPopUpFiller {
public:
    /// Fills the pop-up with "No Match", a separator and the keys with their swatches. If `list` is
    /// null, adds only "Empty".
    void fill(HostPopUpButton& popUp, const std::shared_ptr<HostColorList>& list);

    /// Selects the item of an entry: the first item whose title is the entry's key.
    void selectEntry(HostPopUpButton& popUp, const HostColorList& list, std::size_t place) const;

    /// Moves the items of close colours up, between the first item and the separator. The list's
    /// first entry is not moved.
    void moveCloseEntriesUp(HostPopUpButton& popUp, const HostColorList& list,
                            const std::vector<std::u16string>& closeKeys);

private:
    /// Returns whether the pop-up has exactly the items of the list, in list order.
    [[nodiscard]] bool isFilledWith(const HostColorList& list) const;

    std::shared_ptr<HostColorList> _filledWith;
    std::uint64_t _revision = 0;
    bool _inListOrder = false;
};

}  // namespace vantorel
