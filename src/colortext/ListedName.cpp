#include "colortext/ListedName.h"

#include "text/ASCII.h"

namespace vantorel {

std::optional<HostColor> colorInList(const HostColorList& list, const std::u16string& name)
{
    if (auto color = list.colorWithKey(name)) return color;
    const auto& keys = list.allKeys();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (list.hasColorAtIndex(i) &&
            equalIgnoringCase(std::u16string_view(keys[i]), std::u16string_view(name)))
            return list.colorAtIndex(i);
    }
    return std::nullopt;
}

}  // namespace vantorel
