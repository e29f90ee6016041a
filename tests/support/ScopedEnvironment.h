#pragma once

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

namespace vantorel {

/// Sets and unsets environment variables; the destructor restores the old values.
class ScopedEnvironment {
public:
    ScopedEnvironment() = default;
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
    ~ScopedEnvironment()
    {
        for (const auto& [name, value] : _before)
            put(name, value);
    }

    /// Pass `std::nullopt` to unset the variable.
    void set(const std::string& name, const std::optional<std::string>& value)
    {
        const char* before = std::getenv(name.c_str());
        _before.try_emplace(name, before != nullptr ? std::optional<std::string>(before)
                                                    : std::optional<std::string>());
        put(name, value);
    }

private:
    static void put(const std::string& name, const std::optional<std::string>& value)
    {
        if (value) {
            ::setenv(name.c_str(), value->c_str(), 1);
        } else {
            ::unsetenv(name.c_str());
        }
    }

    std::map<std::string, std::optional<std::string>> _before;
};

}  // namespace vantorel
