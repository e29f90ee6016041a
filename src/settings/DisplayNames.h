#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The display name of an enumerator.
template <class Value>
struct DisplayName {
    Value value;
    const char16_t* name;
};

template <class Value, std::size_t count>
std::optional<std::u16string> nameOfValue(const std::array<DisplayName<Value>, count>& table,
                                          Value value)
{
    for (const auto& row : table) {
        if (row.value == value) return row.name;
    }
    return std::nullopt;
}

template <class Value, std::size_t count>
Value valueOfName(const std::array<DisplayName<Value>, count>& table, std::u16string_view name,
                  Value fallback)
{
    for (const auto& row : table) {
        if (row.name == name) return row.value;
    }
    return fallback;
}

template <class Value, std::size_t count>
std::vector<std::u16string> namesOfValues(const std::array<DisplayName<Value>, count>& table)
{
    std::vector<std::u16string> names;
    names.reserve(count);
    for (const auto& row : table)
        names.emplace_back(row.name);
    return names;
}

}  // namespace vantorel
