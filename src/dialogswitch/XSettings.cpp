#include "dialogswitch/XSettings.h"

#include <cstdint>

#if __has_include(<xcb/xcb.h>)
#include <dlfcn.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#endif

namespace vantorel {
namespace {

/// Reads the numbers of a property, in its own byte order.
class PropertyReader {
public:
    explicit PropertyReader(std::string_view bytes) : _bytes(bytes) {}

    void setBigEndian(bool flag) { _isBigEndian = flag; }
    [[nodiscard]] bool failed() const { return _failed; }

    std::uint32_t number(std::size_t size)
    {
        const std::string_view bytes = take(size);
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            const std::size_t place = _isBigEndian ? i : bytes.size() - 1 - i;
            value = value << 8 | static_cast<unsigned char>(bytes[place]);
        }
        return value;
    }
    std::string_view take(std::size_t size)
    {
        if (size > _bytes.size()) {
            _failed = true;
            return {};
        }
        const std::string_view taken = _bytes.substr(0, size);
        _bytes.remove_prefix(size);
        return taken;
    }
    /// Takes a text and the bytes that fill it up to a multiple of four.
    std::string_view takePadded(std::size_t size)
    {
        const std::string_view text = take(size);
        take((4 - size % 4) % 4);
        return text;
    }

private:
    std::string_view _bytes;
    bool _isBigEndian = false;
    bool _failed = false;
};

enum XSettingType : std::uint32_t { integerSetting = 0, textSetting = 1, colorSetting = 2 };

}  // namespace

bool hasXSetting(std::string_view property, std::string_view name)
{
    PropertyReader reader(property);
    constexpr std::uint32_t mostSignificantFirst = 1;
    reader.setBigEndian(reader.number(1) == mostSignificantFirst);
    reader.take(3 + 4);  // unused, and the serial number
    const std::uint32_t count = reader.number(4);
    for (std::uint32_t i = 0; i < count && !reader.failed(); ++i) {
        const std::uint32_t type = reader.number(1);
        reader.take(1);
        const std::string_view found = reader.takePadded(reader.number(2));
        if (reader.failed()) return false;
        if (found == name) return true;
        reader.take(4);  // the serial number of the last change
        switch (type) {
            case integerSetting:
                reader.take(4);
                break;
            case textSetting:
                reader.takePadded(reader.number(4));
                break;
            case colorSetting:
                reader.take(8);
                break;
            default:
                return false;
        }
    }
    return false;
}

#if __has_include(<xcb/xcb.h>)

namespace {

/// The few functions of libxcb. It is not linked: only one command needs it, and a machine without
/// an X server may not have it.
class Xcb {
public:
    Xcb() : _library(::dlopen("libxcb.so.1", RTLD_NOW | RTLD_LOCAL)) {}
    Xcb(const Xcb&) = delete;
    Xcb& operator=(const Xcb&) = delete;
    ~Xcb()
    {
        if (_library != nullptr) ::dlclose(_library);
    }

    template <class Function>
    Function* function(const char* name) const
    {
        return _library == nullptr ? nullptr : reinterpret_cast<Function*>(::dlsym(_library, name));
    }

private:
    void* _library;
};

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

#define VANTOREL_XCB(name) const auto name = xcb.function<decltype(::name)>(#name)

std::string settingsOfDesktop()
{
    const Xcb xcb;
    VANTOREL_XCB(xcb_connect);
    VANTOREL_XCB(xcb_disconnect);
    VANTOREL_XCB(xcb_connection_has_error);
    VANTOREL_XCB(xcb_intern_atom);
    VANTOREL_XCB(xcb_intern_atom_reply);
    VANTOREL_XCB(xcb_get_selection_owner);
    VANTOREL_XCB(xcb_get_selection_owner_reply);
    VANTOREL_XCB(xcb_get_property);
    VANTOREL_XCB(xcb_get_property_reply);
    VANTOREL_XCB(xcb_get_property_value);
    VANTOREL_XCB(xcb_get_property_value_length);
    if (xcb_connect == nullptr || xcb_disconnect == nullptr ||
        xcb_connection_has_error == nullptr || xcb_intern_atom == nullptr ||
        xcb_intern_atom_reply == nullptr || xcb_get_selection_owner == nullptr ||
        xcb_get_selection_owner_reply == nullptr || xcb_get_property == nullptr ||
        xcb_get_property_reply == nullptr || xcb_get_property_value == nullptr ||
        xcb_get_property_value_length == nullptr) {
        return {};
    }
    int screen = 0;
    const std::unique_ptr<xcb_connection_t, decltype(xcb_disconnect)> connection(
        xcb_connect(nullptr, &screen), xcb_disconnect);
    if (xcb_connection_has_error(connection.get()) != 0) return {};
    const auto atom = [&](const std::string& name) -> xcb_atom_t {
        const auto cookie = xcb_intern_atom(connection.get(), 0,
                                            static_cast<std::uint16_t>(name.size()), name.c_str());
        const Owned<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection.get(), cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    };
    const auto selection = atom("_XSETTINGS_S" + std::to_string(screen));
    const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection.get(), xcb_get_selection_owner(connection.get(), selection), nullptr));
    if (!owner || owner->owner == XCB_WINDOW_NONE) return {};
    const auto settings = atom("_XSETTINGS_SETTINGS");
    constexpr std::uint32_t mostWords = 1U << 16;
    const Owned<xcb_get_property_reply_t> property(xcb_get_property_reply(
        connection.get(),
        xcb_get_property(connection.get(), 0, owner->owner, settings, settings, 0, mostWords),
        nullptr));
    if (!property) return {};
    return {static_cast<const char*>(xcb_get_property_value(property.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(property.get()))};
}

#undef VANTOREL_XCB

}  // namespace

bool desktopSetsXSetting(std::string_view name)
{
    const char* display = std::getenv("DISPLAY");
    return display != nullptr && *display != '\0' && hasXSetting(settingsOfDesktop(), name);
}

#else

bool desktopSetsXSetting(std::string_view)
{
    return false;
}

#endif

}  // namespace vantorel
