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

/// The pop-up that shows the colours of the naming list by name, and the matching of the current
/// colour against that list.
namespace vantorel {

inline constexpr const char16_t* noMatchTitle = u"No Match";

/// A swatch for a menu: the colour with a white and a black rim, 22 by 14 points.
[[nodiscard]] HostImage swatchImage(const HostColor& color);

/// The swatch of one entry; nothing when the list has no such key.
[[nodiscard]] std::optional<HostImage> menuImageWithColorList(const HostColorList& list,
                                                              const std::u16string& colorName);

/// How a colour stands to the entries of a list.
struct ColorNameMatch {
    /// The place in the list of the first entry that equals the colour.
    std::optional<std::size_t> exactPlace;
    /// Where none does: the places of the entries close to it, in list order.
    std::vector<std::size_t> closePlaces;
};

/// `index` must be up to date with the list.
[[nodiscard]] ColorNameMatch matchColorName(const QTXHexColorSpec& color, const HostColorList& list,
                                            const ColorListIndex& index);

/// What the name pop-up's first item says: "* navy, teal", or "No Match" when no key is close.
[[nodiscard]] std::u16string closeTitle(const std::vector<std::u16string>& closeKeys);

/// Fills a name pop-up, and remembers with what, so that filling it again with the same list is
/// free.
class ColorNamesPopUpFiller {
public:
    /// "No Match", a separator and the keys with their swatches; "Empty" alone for no list.
    void fill(HostPopUpButton& popUp, const std::shared_ptr<HostColorList>& list);

    /// Selects the item of an entry: the first that has its key for a title.
    void selectEntry(HostPopUpButton& popUp, const HostColorList& list, std::size_t place) const;

    /// Moves the entries of close colours up, under the first item and above the separator.
    /// An entry that is the list's first key stays where it is.
    void moveCloseEntriesUp(HostPopUpButton& popUp, const HostColorList& list,
                            const std::vector<std::u16string>& closeKeys);

private:
    /// Whether the pop-up holds exactly the items that the list calls for, in its order.
    [[nodiscard]] bool isFilledWith(const HostColorList& list) const;

    std::shared_ptr<HostColorList> _filledWith;
    std::uint64_t _revision = 0;
    bool _inListOrder = false;
};

}  // namespace vantorel
