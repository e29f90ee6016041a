#include "testing/driver/JsonArguments.h"

#include "plist/PropertyListReader.h"
#include "text/Unicode.h"

#include <array>
#include <cmath>

namespace vantorel {
namespace {

[[noreturn]] void refuse(std::string_view what, const char* wanted)
{
    throw DriverError(std::string(what) + " must be " + wanted);
}

/// Reads an array of exactly `count` numbers.
template <std::size_t count>
std::array<double, count> numbersFrom(const Json& value, const std::string& what,
                                      const char* wanted)
{
    if (!value.is_array() || value.size() != count) refuse(what, wanted);
    std::array<double, count> numbers{};
    for (std::size_t i = 0; i < count; ++i) {
        if (!value[i].is_number()) refuse(what, wanted);
        numbers[i] = value[i].get<double>();
    }
    return numbers;
}

PropertyList propertyListFrom(const Json& value, const std::string& what, std::size_t depth)
{
    if (depth > deepestPropertyList) throw DriverError(what + " is nested too deeply");
    if (value.is_string()) return textFrom(value, what);
    if (value.is_array()) {
        PropertyList::Array array;
        for (const Json& element : value)
            array.push_back(propertyListFrom(element, what, depth + 1));
        return array;
    }
    if (value.is_object()) {
        PropertyList::Dictionary dictionary;
        for (const auto& [key, entry] : value.items()) {
            dictionary.emplace_back(utf16FromUtf8(key), propertyListFrom(entry, what, depth + 1));
        }
        return dictionary;
    }
    refuse(what, "made of strings, lists and objects");
}

}  // namespace

const Json* memberOf(const Json& object, std::string_view key)
{
    if (!object.is_object()) return nullptr;
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

bool booleanFrom(const Json& value, const std::string& what)
{
    if (!value.is_boolean()) refuse(what, "true or false");
    return value.get<bool>();
}

double numberFrom(const Json& value, const std::string& what)
{
    if (!value.is_number()) refuse(what, "a number");
    return value.get<double>();
}

std::int64_t integerFrom(const Json& value, const std::string& what)
{
    constexpr double pastLargest = 9223372036854775808.0;
    if (value.is_number_float()) {
        const double number = value.get<double>();
        if (number != std::floor(number) || !(std::abs(number) < pastLargest)) {
            refuse(what, "an integer");
        }
        return static_cast<std::int64_t>(number);
    }
    if (!value.is_number_integer()) refuse(what, "an integer");
    if (value.is_number_unsigned() && value.get<std::uint64_t>() > INT64_MAX) {
        refuse(what, "an integer of 64 bits");
    }
    return value.get<std::int64_t>();
}

std::uint64_t unsignedFrom(const Json& value, const std::string& what)
{
    if (value.is_number_unsigned()) return value.get<std::uint64_t>();
    const std::int64_t number = integerFrom(value, what);
    if (number < 0) refuse(what, "0 or above");
    return static_cast<std::uint64_t>(number);
}

std::u16string textFrom(const Json& value, const std::string& what)
{
    if (!value.is_string()) refuse(what, "a text");
    return utf16FromUtf8(value.get_ref<const std::string&>());
}

std::optional<std::u16string> optionalTextFrom(const Json& value, const std::string& what)
{
    if (value.is_null()) return std::nullopt;
    if (!value.is_string()) refuse(what, "a text or null");
    return textFrom(value, what);
}

HostPoint pointFrom(const Json& value, const std::string& what)
{
    const auto [x, y] = numbersFrom<2>(value, what, "a point [x, y]");
    return {x, y};
}

HostRect rectFrom(const Json& value, const std::string& what)
{
    const auto [x, y, width, height] =
        numbersFrom<4>(value, what, "a rectangle [x, y, width, height]");
    if (width < 0 || height < 0) refuse(what, "a rectangle without negative sizes");
    return {x, y, width, height};
}

std::optional<HostColor> optionalColorFrom(const Json& value, const std::string& what)
{
    if (value.is_null()) return std::nullopt;
    if (value == "pattern") return HostColor::patternColor();
    const auto [red, green, blue, alpha] =
        numbersFrom<4>(value, what, "a colour: [red, green, blue, alpha], \"pattern\" or null");
    return HostColor::colorWithCalibratedRed(red, green, blue, alpha);
}

HostColor colorFrom(const Json& value, const std::string& what)
{
    const auto color = optionalColorFrom(value, what);
    if (!color) refuse(what, "a colour, not null");
    return *color;
}

std::optional<QTXHexColorSpec> optionalSpecFrom(const Json& value, const std::string& what)
{
    if (value.is_null()) return std::nullopt;
    if (!value.is_object()) refuse(what, "a colour spec or null");
    const Json& components = requiredMember(value, "components");
    if (!components.is_array() || components.size() != 3) refuse("components", "three integers");
    QTXHexColorSpec spec;
    spec.setHexRed(unsignedFrom(components[0], "a component"),
                   unsignedFrom(components[1], "a component"),
                   unsignedFrom(components[2], "a component"));
    if (const Json* remainders = optionalMember(value, "remainders")) {
        const auto [red, green, blue] = numbersFrom<3>(*remainders, "remainders", "three numbers");
        spec.setRedRemainder(red);
        spec.setGreenRemainder(green);
        spec.setBlueRemainder(blue);
    }
    if (const Json* alpha = optionalMember(value, "alpha")) {
        spec.setAlphaComp(numberFrom(*alpha, "alpha"));
    }
    return spec;
}

PropertyList propertyListFrom(const Json& value, const std::string& what)
{
    return propertyListFrom(value, what, 0);
}

const Json& requiredMember(const Json& object, std::string_view key)
{
    const Json* member = memberOf(object, key);
    if (member == nullptr) throw DriverError("\"" + std::string(key) + "\" is missing");
    return *member;
}

const Json* optionalMember(const Json& object, std::string_view key)
{
    const Json* member = memberOf(object, key);
    return member == nullptr || member->is_null() ? nullptr : member;
}

const Json& argumentAt(const Json& arguments, std::size_t index)
{
    if (index >= arguments.size()) {
        throw DriverError("argument " + std::to_string(index + 1) + " is missing");
    }
    return arguments[index];
}

const Json& listFrom(const Json& value, std::string_view what)
{
    if (!value.is_array()) refuse(what, "a list");
    return value;
}

}  // namespace vantorel
