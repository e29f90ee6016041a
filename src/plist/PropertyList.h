#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vantorel {

/// A value of a property list: a string, data, an array or a dictionary. Dictionaries keep the
/// order in which their keys were set first.
class PropertyList {
public:
    using Array = std::vector<PropertyList>;
    using Dictionary = std::vector<std::pair<std::u16string, PropertyList>>;

    PropertyList() = default;
    // Arrays and dictionaries are written down as lists of plain values.
    // NOLINTBEGIN(google-explicit-constructor)
    PropertyList(std::u16string string) : _value(std::move(string)) {}
    PropertyList(const char16_t* string) : _value(std::u16string(string)) {}
    PropertyList(Array array) : _value(std::move(array)) {}
    PropertyList(Dictionary dictionary) : _value(std::move(dictionary)) {}
    // NOLINTEND(google-explicit-constructor)
    [[nodiscard]] static PropertyList data(std::string bytes)
    {
        PropertyList result;
        result._value = std::move(bytes);
        return result;
    }

    // Null for a value of another kind.
    [[nodiscard]] const std::u16string* string() const
    {
        return std::get_if<std::u16string>(&_value);
    }
    [[nodiscard]] const std::string* data() const { return std::get_if<std::string>(&_value); }
    [[nodiscard]] const Array* array() const { return std::get_if<Array>(&_value); }
    [[nodiscard]] const Dictionary* dictionary() const { return std::get_if<Dictionary>(&_value); }

    /// The value of a key; null when there is none, or for a value that is no dictionary.
    [[nodiscard]] const PropertyList* valueForKey(std::u16string_view key) const;
    /// The string of a key; null when there is none, or it is of another kind.
    [[nodiscard]] const std::u16string* stringForKey(std::u16string_view key) const;
    /// Sets a key of a dictionary; any other value becomes an empty dictionary first.
    void setValue(PropertyList value, std::u16string_view forKey);

    bool operator==(const PropertyList&) const = default;

private:
    std::variant<std::u16string, std::string, Array, Dictionary> _value;
};

}  // namespace vantorel
