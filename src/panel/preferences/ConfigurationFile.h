#pragma once

#include "plist/PropertyList.h"
#include "result/Message.h"

#include <QString>

#include <functional>
#include <optional>
#include <string>

namespace vantorel {

/// Sets the folder that takes the place of the user's configuration; an empty path brings the
/// user's back.
void setConfigurationFolder(const QString& path);

/// A property list in the folder `Vantorel` of the user's configuration.
class ConfigurationFile {
public:
    /// `name` is that of the file, such as "Panel.plist".
    constexpr explicit ConfigurationFile(const char* name) : _name(name) {}

    /// The folder of all such files.
    [[nodiscard]] static std::string folder();
    /// Prints a failure to read or write them to standard error.
    static void report(const Message& failure);

    /// Returns `std::nullopt` if there is no such file, and an empty list if it is damaged.
    [[nodiscard]] std::optional<PropertyList> contents() const;

    /// Returns what the file is to contain.
    using Change = std::function<PropertyList(const std::optional<PropertyList>& contents)>;
    /// Reads the file and replaces it at once, while no other panel can do so. Returns what was
    /// written. If that fails, it is reported, and the previous file is still there.
    std::optional<PropertyList> change(const Change& makeContents) const;

private:
    const char* _name;
};

}  // namespace vantorel
