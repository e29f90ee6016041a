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

/// Keeps the order of keys, which property lists have.
using Json = nlohmann::ordered_json;

/// A request that cannot be met; its text becomes the reply's `error`.
class DriverError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Each reads one kind of argument, and throws a DriverError that names `what` for any other.

[[nodiscard]] bool booleanFrom(const Json& value, const std::string& what);
[[nodiscard]] double numberFrom(const Json& value, const std::string& what);
[[nodiscard]] std::int64_t integerFrom(const Json& value, const std::string& what);
/// 0 and above, up to the largest unsigned word.
[[nodiscard]] std::uint64_t unsignedFrom(const Json& value, const std::string& what);
[[nodiscard]] std::u16string textFrom(const Json& value, const std::string& what);
[[nodiscard]] std::optional<std::u16string> optionalTextFrom(const Json& value,
                                                             const std::string& what);
[[nodiscard]] HostPoint pointFrom(const Json& value, const std::string& what);
[[nodiscard]] HostRect rectFrom(const Json& value, const std::string& what);
/// `[r, g, b, a]`, "pattern", or null for no colour.
[[nodiscard]] std::optional<HostColor> optionalColorFrom(const Json& value,
                                                         const std::string& what);
[[nodiscard]] HostColor colorFrom(const Json& value, const std::string& what);
/// `{"components", "remainders", "alpha"}`, or null.
[[nodiscard]] std::optional<QTXHexColorSpec> optionalSpecFrom(const Json& value,
                                                              const std::string& what);
[[nodiscard]] PropertyList propertyListFrom(const Json& value, const std::string& what);

/// An enumeration's number, whether or not it has a name.
template <class Enumeration>
[[nodiscard]] Enumeration enumerationFrom(const Json& value, const std::string& what)
{
    const std::int64_t number = integerFrom(value, what);
    if (number < INT32_MIN || number > INT32_MAX) throw DriverError(what + " is out of range");
    return static_cast<Enumeration>(static_cast<std::int32_t>(number));
}

/// The value of a key; throws where it is missing.
[[nodiscard]] const Json& requiredMember(const Json& object, std::string_view key);
/// The value of a key, which may be a JSON null; a null pointer where it is missing.
[[nodiscard]] const Json* memberOf(const Json& object, std::string_view key);
/// The value of a key that may be left out; a JSON null leaves it out, too.
[[nodiscard]] const Json* optionalMember(const Json& object, std::string_view key);
/// Element `index` of a list of arguments; throws where there are fewer.
[[nodiscard]] const Json& argumentAt(const Json& arguments, std::size_t index);
/// The elements of a list.
[[nodiscard]] const Json& listFrom(const Json& value, std::string_view what);

}  // namespace vantorel
