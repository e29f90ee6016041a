#include "host/HostPlugin.h"

#include <stdexcept>

/// A picker without an interface, built in several variants with one fault each (see
/// CMakeLists.txt).
namespace {

using namespace vantorel;

class TestPicker final : public HostColorPicker {
public:
    using HostColorPicker::HostColorPicker;
    HostView* provideNewView(bool) override { return nullptr; }
    [[nodiscard]] bool supportsMode(int) const override { return false; }
    [[nodiscard]] int currentMode() const override { return 0; }
    [[nodiscard]] std::u16string buttonToolTip() const override { return u"Test"; }
    [[nodiscard]] HostSize minContentSize() const override { return {100, 100}; }
    void setColor(const std::optional<HostColor>&) override {}
    void viewSizeChanged(HostView*) override {}
    bool performAction(std::string_view, HostControl*) override { return false; }
};

HostColorPicker* createPicker(std::uint32_t mask, HostColorPanel& panel, const HostBundle&)
{
#ifdef TEST_PLUGIN_THROWS
    throw std::runtime_error("on purpose");
#endif
#ifdef TEST_PLUGIN_MAKES_NONE
    return nullptr;
#endif
    return new TestPicker(mask, panel);
}

void destroyPicker(HostColorPicker* picker)
{
    delete picker;
}

constexpr HostPlugin plugin{TEST_PLUGIN_NAME, TEST_PLUGIN_NAME, createPicker, destroyPicker};

}  // namespace

extern "C" {
__attribute__((visibility("default"))) extern const std::uint32_t vantorelPluginABI;
__attribute__((visibility("default"))) const HostPlugin* vantorelPlugin();

#ifdef TEST_PLUGIN_OF_ANOTHER_ABI
const std::uint32_t vantorelPluginABI = hostPluginABI + 1;
// Must never be called: it returns an object of another type.
const HostPlugin* vantorelPlugin()
{
    __builtin_trap();
}
#else
const std::uint32_t vantorelPluginABI = hostPluginABI;
const HostPlugin* vantorelPlugin()
{
    return &plugin;
}
#endif
}
