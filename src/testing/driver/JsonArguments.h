#pragma once

#include "color/QTXHexColorSpec.h"
#include "host/HostColor.h"
#include "host/HostGeometry.h"
#include "plist/PropertyList.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vantorel {

/// JSON that keeps the order of keys, because the dictionaries of property lists are ordered.
using Json = nlohmann::ordered_json;

/// A request cannot be carried out. The text becomes the reply's `error`.
class DriverError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Each reads an argument of one type. For any other it throws a DriverError that contains `what`.

[[nodiscard]] bool booleanFrom(const Json& value, const std::string& what);
[[nodiscard]] double numberFrom(const Json& value, const std::string& what);
[[nodiscard]] std::int64_t integerFrom(const Json& value, const std::string& what);
/// Accepts 0 up to the largest 64-bit unsigned integer.
[[nodiscard]] std::uint64_t unsignedFrom(const Json& value, const std::string& what);
[[nodiscard]] std::u16string textFrom(const Json& value, const std::string& what);
[[nodiscard]] std::optional<std::u16string> optionalTextFrom(const Json& value,
                                                             const std::string& what);
[[nodiscard]] HostPoint pointFrom(const Json& value, const std::string& what);
[[nodiscard]] HostRect rectFrom(const Json& value, const std::string& what);
/// Reads `[r, g, b, a]`, "pattern", or null for `std::nullopt`.
[[nodiscard]] std::optional<HostColor> optionalColorFrom(const Json& value,
                                                         const std::string& what);
[[nodiscard]] HostColor colorFrom(const Json& value, const std::string& what);
/// Reads `{"components", "remainders", "alpha"}`, or null for `std::nullopt`.
[[nodiscard]] std::optional<QTXHexColorSpec> optionalSpecFrom(const Json& value,
                                                              const std::string& what);
[[nodiscard]] PropertyList propertyListFrom(const Json& value, const std::string& what);

/// Reads the number of an enumerator. Numbers without an enumerator are accepted.
template <class Enumeration>
[[nodiscard]] Enumeration enumerationFrom(const Json& value, const std::string& what)
{
    const std::int64_t number = integerFrom(value, what);
    if (number < INT32_MIN || number > INT32_MAX) throw DriverError(what + " is out of range");
    return static_cast<Enumeration>(static_cast<std::int32_t>(number));
}

/// Returns the value of a key. Throws a DriverError if it is missing.
[[nodiscard]] const Json& requiredMember(const Json& object, std::string_view key);
/// Returns the value of a key, which may be a JSON null, or a null pointer if the key is missing.
[[nodiscard]] const Json* memberOf(const Json& object, std::string_view key);
/// Returns the value of an optional key, or a null pointer if it is missing or a JSON null.
[[nodiscard]] const Json* optionalMember(const Json& object, std::string_view key);
/// Returns element `index` of a list of arguments. Throws a DriverError if there are fewer.
[[nodiscard]] const Json& argumentAt(const Json& arguments, std::size_t index);
/// Returns a JSON array. Throws a DriverError that contains `what` for any other value.
[[nodiscard]] const Json& listFrom(const Json& value, std::string_view what);

}  // namespace vantorel
