#pragma once

#include "wayland/WaylandObject.h"

#include <wayland-client.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace vantorel {

/// A connection to the compositor, apart from Qt's.
class WaylandConnection {
public:
    using Clock = std::chrono::steady_clock;

    /// Connects to the compositor that the environment names. All waits end when the file `end`
    /// becomes readable.
    explicit WaylandConnection(int end);

    /// False if no compositor was found, or it has exited.
    [[nodiscard]] bool isOpen() const { return _isOpen; }

    [[nodiscard]] bool offers(const std::string& interfaceName) const
    {
        return _globals.count(interfaceName) != 0;
    }

    /// Returns null if the compositor does not offer it. `interface` must have static storage
    /// duration.
    template <typename T>
    [[nodiscard]] WaylandObject<T> bind(const wl_interface& interface) const
    {
        constexpr std::uint32_t version = 1;
        const auto global = _globals.find(interface.name);
        if (global == _globals.end()) return nullptr;
        return WaylandObject<T>(static_cast<T*>(
            wl_registry_bind(_registry.get(), global->second, &interface, version)));
    }

    /// Handles events until the condition is true. Returns whether it has become true; false at the
    /// deadline, at the end of the connection, and if the file `end` is readable.
    bool waitUntil(const std::function<bool()>& condition,
                   std::optional<Clock::time_point> deadline = std::nullopt);

    /// Waits until the compositor has handled all requests and we have handled its events.
    bool waitForCompositor(Clock::time_point deadline);

private:
    /// Waits for events and handles them.
    bool handleEvents(std::optional<Clock::time_point> deadline);
    bool waitForEvents(std::optional<Clock::time_point> deadline) const;

    int _end;
    WaylandObject<wl_display> _display;
    WaylandObject<wl_registry> _registry;
    std::map<std::string, std::uint32_t> _globals;
    bool _isOpen = false;
};

}  // namespace vantorel
