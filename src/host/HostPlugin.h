#pragma once

#include "host/HostColorPicker.h"

#include <cstdint>

/// A picker plug-in is a shared library with two C symbols:
///
///     extern "C" const std::uint32_t vantorelPluginABI;                 // = hostPluginABI
///     extern "C" const vantorel::HostPlugin* vantorelPlugin();
///
/// The panel reads `vantorelPluginABI` before it calls anything and rejects a library with another
/// number. C++ objects cross the plug-in boundary, so both sides must be built against the same
/// `host/` folder. Every change to that folder increases the number.
namespace vantorel {

inline constexpr std::uint32_t hostPluginABI = 16;

/// The description of a plug-in. It must stay valid as long as the library is loaded.
struct HostPlugin {
    /// A globally unique name, e.g. "org.vantorel.hex".
    const char* identifier;
    /// The name shown to users.
    const char* displayName;
    /// Creates a picker for a panel. `bundle` provides the plug-in's resources and outlives the
    /// picker. Returns null if the picker cannot be created. Must not throw.
    HostColorPicker* (*createPicker)(std::uint32_t pickerMask, HostColorPanel& panel,
                                     const HostBundle& bundle);
    void (*destroyPicker)(HostColorPicker* picker);
};

}  // namespace vantorel
