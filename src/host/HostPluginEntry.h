#pragma once

#include "host/HostPlugin.h"

#include <cstdint>
#include <type_traits>

/// VANTOREL_PICKER_PLUGIN(Picker, "org.example.name", "Name"): the two symbols of a plug-in whose
/// one page is a `Picker`, a class derived from `HostColorPicker`. It is written once in a library,
/// outside of every namespace.
///
/// The page is made by `Picker(pickerMask, panel, bundle)`, or without the bundle where the class
/// has no such constructor. One that throws counts as a page that cannot be made.
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
