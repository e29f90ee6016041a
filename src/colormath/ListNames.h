#pragma once

#include "colormath/Differences.h"
#include "host/HostColorList.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// The names of a colour list for colours.
class ListNames {
public:
    /// The list must not be null.
    explicit ListNames(std::shared_ptr<const HostColorList> list);

    [[nodiscard]] const HostColorList& list() const { return *_list; }
    /// Whether the list is the same and has not changed since.
    [[nodiscard]] bool isOf(const std::shared_ptr<const HostColorList>& list) const
    {
        return list == _list && list->revision() == _revision;
    }

    struct Name {
        std::u16string name;
        HostColor color = HostColor::blackColor();
        /// Whether the colours are the same in 8 bits, apart from the opacity.
        bool isExact = false;
    };
    /// Returns the entry nearest to a colour, of equals the first; `std::nullopt` if there is none.
    [[nodiscard]] std::optional<Name> nearest(const HostColor& color) const;

private:
    std::shared_ptr<const HostColorList> _list;
    std::uint64_t _revision;
    /// The entries with a colour.
    std::vector<std::size_t> _places;
    std::optional<NearestColor> _colors;
};

}  // namespace vantorel
