#pragma once

#include "host/HostPlugin.h"

#include <cstdint>
#include <type_traits>

/// VANTOREL_PICKER_PLUGIN(Picker, "org.example.name", "Name") defines the two symbols of a plug-in
/// whose only page is a `Picker`, a class derived from `HostColorPicker`. Use it once per library,
/// outside all namespaces.
///
/// The page is created by `Picker(pickerMask, panel, bundle)`, or by `Picker(pickerMask, panel)` if
/// the class has no such constructor. If the constructor throws, `createPicker` returns null.
#define VANTOREL_PICKER_PLUGIN(Picker, identifier, displayName)                              \
    extern "C" {                                                                             \
    __attribute__((visibility("default"))) extern const std::uint32_t vantorelPluginABI;     \
    __attribute__((visibility("default"))) const vantorel::HostPlugin* vantorelPlugin();     \
    const std::uint32_t vantorelPluginABI = vantorel::hostPluginABI;                         \
    const vantorel::HostPlugin* vantorelPlugin()                                             \
    {                                                                                        \
        static constexpr vantorel::HostPlugin plugin{identifier, displayName,                \
                                                     vantorel::plugin_entry::create<Picker>, \
                                                     vantorel::plugin_entry::destroy};       \
        return &plugin;                                                                      \
    }                                                                                        \
    }

namespace vantorel::plugin_entry {

template <class Picker>
HostColorPicker* create(std::uint32_t pickerMask, HostColorPanel& panel, const HostBundle& bundle)
{
    try {
        if constexpr (std::is_constructible_v<Picker, std::uint32_t, HostColorPanel&,
                                              const HostBundle&>) {
            return new Picker(pickerMask, panel, bundle);
        } else {
            return new Picker(pickerMask, panel);
        }
    } catch (...) {
        return nullptr;
    }
}

inline void destroy(HostColorPicker* picker)
{
    delete picker;
}

}  // namespace vantorel::plugin_entry
