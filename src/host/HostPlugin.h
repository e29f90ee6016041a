#pragma once

#include "host/HostColorPicker.h"

#include <cstdint>

/// A picker plug-in is a shared library with two C symbols:
///
///     extern "C" const std::uint32_t vantorelPluginABI;                 // = hostPluginABI
///     extern "C" const vantorel::HostPlugin* vantorelPlugin();
///
/// The panel reads the first before it calls anything and refuses a library of another number: what
/// crosses the border are C++ objects, so both sides must be built for the same `host/` folder. The
/// number grows with every change there.
namespace vantorel {

inline constexpr std::uint32_t hostPluginABI = 9;

/// What a plug-in offers. It lives as long as the library is loaded.
struct HostPlugin {
    /// A name that no other plug-in has, e.g. "org.vantorel.hex".
    const char* identifier;
    /// What people call it.
    const char* displayName;
    /// Makes a picker for a panel. `bundle` gives the plug-in's resources and outlives the picker.
    /// Null when it cannot be made. May throw nothing.
    HostColorPicker* (*createPicker)(std::uint32_t pickerMask, HostColorPanel& panel,
                                     const HostBundle& bundle);
    void (*destroyPicker)(HostColorPicker* picker);
};

}  // namespace vantorel
