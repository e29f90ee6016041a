#pragma once

#include "host/HostColorList.h"

#include <string>
#include <unordered_map>

namespace vantorel {

/// Adds colours to a list under unique keys, so that none is lost. A colour without a name becomes
/// "Untitled"; a repeated name gets a number appended.
class KeyedEntries {
public:
    /// `list` must outlive this object.
    explicit KeyedEntries(HostColorList& list) : _list(list) {}

    void add(const HostColor& color, std::u16string name)
    {
        if (name.empty()) name = u"Untitled";
        if (_list.addColor(color, name)) return;
        std::u16string key;
        do {
            const std::string number =
                std::to_string(++_lastNumber.try_emplace(name, 1).first->second);
            key = name + u" " + std::u16string(number.begin(), number.end());
        } while (!_list.addColor(color, key));
    }

private:
    HostColorList& _list;
    std::unordered_map<std::u16string, std::size_t> _lastNumber;
};

}  // namespace vantorel
