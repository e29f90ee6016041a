#include "host/HostPlugin.h"
#include "picker/QTXHexColorPicker.h"

#include <new>

#define VANTOREL_EXPORT __attribute__((visibility("default")))

namespace {

vantorel::HostColorPicker* createPicker(std::uint32_t pickerMask, vantorel::HostColorPanel& panel,
                                        const vantorel::HostBundle& bundle)
{
    return new (std::nothrow) vantorel::QTXHexColorPicker(pickerMask, panel, bundle);
}

void destroyPicker(vantorel::HostColorPicker* picker)
{
    delete picker;
}

constexpr vantorel::HostPlugin plugin{"org.vantorel.hex", "Hex", createPicker, destroyPicker};

}  // namespace

extern "C" {

VANTOREL_EXPORT extern const std::uint32_t vantorelPluginABI;
VANTOREL_EXPORT const vantorel::HostPlugin* vantorelPlugin();

const std::uint32_t vantorelPluginABI = vantorel::hostPluginABI;

const vantorel::HostPlugin* vantorelPlugin()
{
    return &plugin;
}
}
