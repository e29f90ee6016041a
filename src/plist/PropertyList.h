#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace vantorel {

/// A property-list value: a string, data, an array or a dictionary. Dictionaries keep their keys in
/// the order in which they were first set.
class PropertyList {
public:
    using Array = std::vector<PropertyList>;
    using Dictionary = std::vector<std::pair<std::u16string, PropertyList>>;

    PropertyList() = default;
    // The constructors are implicit, so that arrays and dictionaries can be written as lists of
    // plain values.
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

    // Each returns null if the value is of another kind.
    [[nodiscard]] const std::u16string* string() const
    {
        return std::get_if<std::u16string>(&_value);
    }
    [[nodiscard]] const std::string* data() const { return std::get_if<std::string>(&_value); }
    [[nodiscard]] const Array* array() const { return std::get_if<Array>(&_value); }
    [[nodiscard]] const Dictionary* dictionary() const { return std::get_if<Dictionary>(&_value); }

    /// Returns the value of a key, or null if the key is missing or this is not a dictionary.
    [[nodiscard]] const PropertyList* valueForKey(std::u16string_view key) const;
    /// Returns the string of a key, or null if the key is missing or its value is not a string.
    [[nodiscard]] const std::u16string* stringForKey(std::u16string_view key) const;
    /// Sets the value of a key. If this is not a dictionary, it is first replaced by an empty one.
    void setValue(PropertyList value, std::u16string_view forKey);

    bool operator==(const PropertyList&) const = default;

private:
    std::variant<std::u16string, std::string, Array, Dictionary> _value;
};

}  // namespace vantorel
