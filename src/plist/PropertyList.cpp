#include "plist/PropertyList.h"

#include <algorithm>

namespace vantorel {

const PropertyList* PropertyList::valueForKey(std::u16string_view key) const
{
    const Dictionary* entries = dictionary();
    if (entries == nullptr) return nullptr;
    const auto found = std::find_if(entries->begin(), entries->end(),
                                    [&](const auto& entry) { return entry.first == key; });
    return found == entries->end() ? nullptr : &found->second;
}

const std::u16string* PropertyList::stringForKey(std::u16string_view key) const
{
    const PropertyList* value = valueForKey(key);
    return value != nullptr ? value->string() : nullptr;
}

void PropertyList::setValue(PropertyList value, std::u16string_view forKey)
{
    if (dictionary() == nullptr) _value = Dictionary();
    auto& entries = std::get<Dictionary>(_value);
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const auto& entry) { return entry.first == forKey; });
    if (found == entries.end()) {
        entries.emplace_back(std::u16string(forKey), std::move(value));
    } else {
        found->second = std::move(value);
    }
}

}  // namespace vantorel
