#include "wayland/FocusWindow.h"
#include "wayland/SelectionWays.h"

#include <unistd.h>

namespace vantorel {
namespace {

class FocusWay final : public SelectionWay {
public:
    FocusWay(WaylandConnection& connection, const std::vector<OfferedForm>& forms,
             std::string activationToken)
        : _connection(connection),
          _forms(forms),
          _activationToken(std::move(activationToken)),
          _window(connection),
          _seat(connection.bind<wl_seat>(wl_seat_interface)),
          _manager(connection.bind<wl_data_device_manager>(wl_data_device_manager_interface))
    {
    }

    [[nodiscard]] bool isPossible() const
    {
        return _window.isPossible() && _seat != nullptr && _manager != nullptr;
    }

    bool take(WaylandConnection::Clock::time_point deadline) override
    {
        listenToSeat();
        if (!_connection.waitForCompositor(deadline) || _keyboard == nullptr) return false;
        _device.reset(wl_data_device_manager_get_data_device(_manager.get(), _seat.get()));
        listenToDevice();
        _window.show(_activationToken);
        const bool isOurs =
            _connection.waitUntil([this] { return _serial.has_value(); }, deadline) &&
            // The focus comes with an event about the selection of before.
            _connection.waitForCompositor(deadline) && setSelection(deadline);
        _window.close();
        _keyboard.reset();
        return isOurs;
    }

    [[nodiscard]] bool isLost() const override { return _isLost; }

private:
    bool setSelection(WaylandConnection::Clock::time_point deadline)
    {
        _isConfirmed = false;
        _source.reset(wl_data_device_manager_create_data_source(_manager.get()));
        listenToSource();
        for (const OfferedForm& form : _forms)
            wl_data_source_offer(_source.get(), form.type.c_str());
        wl_data_device_set_selection(_device.get(), _source.get(), *_serial);
        return _connection.waitUntil([this] { return _isConfirmed || _isLost; }, deadline) &&
               !_isLost;
    }

    void listenToSeat()
    {
        static const wl_seat_listener listener{
            [](void* data, wl_seat* seat, std::uint32_t capabilities) {
                auto& way = *static_cast<FocusWay*>(data);
                const bool hasKeyboard = (capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0;
                if (!hasKeyboard || way._keyboard != nullptr) return;
                way._keyboard.reset(wl_seat_get_keyboard(seat));
                way.listenToKeyboard();
            },
            [](void*, wl_seat*, const char*) {}};
        wl_seat_add_listener(_seat.get(), &listener, this);
    }

    void listenToKeyboard()
    {
        using Serial = std::uint32_t;
        static const wl_keyboard_listener listener{
            [](void*, wl_keyboard*, std::uint32_t, std::int32_t keymap, std::uint32_t) {
                close(keymap);
            },
            [](void* data, wl_keyboard*, Serial serial, wl_surface* surface, wl_array*) {
                auto& way = *static_cast<FocusWay*>(data);
                if (surface == way._window.surface()) way._serial = serial;
            },
            [](void*, wl_keyboard*, Serial, wl_surface*) {},
            [](void*, wl_keyboard*, Serial, std::uint32_t, std::uint32_t, std::uint32_t) {},
            [](void*, wl_keyboard*, Serial, std::uint32_t, std::uint32_t, std::uint32_t,
               std::uint32_t) {},
            [](void*, wl_keyboard*, std::int32_t, std::int32_t) {}};
        wl_keyboard_add_listener(_keyboard.get(), &listener, this);
    }

    void listenToDevice()
    {
        static const wl_data_device_listener listener{
            [](void*, wl_data_device*, wl_data_offer*) {},
            [](void*, wl_data_device*, std::uint32_t, wl_surface*, wl_fixed_t, wl_fixed_t,
               wl_data_offer* offer) {
                if (offer != nullptr) wl_data_offer_destroy(offer);
            },
            [](void*, wl_data_device*) {},
            [](void*, wl_data_device*, std::uint32_t, wl_fixed_t, wl_fixed_t) {},
            [](void*, wl_data_device*) {},
            [](void* data, wl_data_device*, wl_data_offer* offer) {
                if (offer == nullptr) return;
                wl_data_offer_destroy(offer);
                static_cast<FocusWay*>(data)->_isConfirmed = true;
            }};
        wl_data_device_add_listener(_device.get(), &listener, this);
    }

    void listenToSource()
    {
        // Later versions of the interface have more events, which version 1 does not send.
        static const wl_data_source_listener listener{
            [](void*, wl_data_source*, const char*) {},
            [](void* data, wl_data_source*, const char* type, std::int32_t file) {
                serve(static_cast<FocusWay*>(data)->_forms, type, file);
            },
            [](void* data, wl_data_source*) { static_cast<FocusWay*>(data)->_isLost = true; },
            nullptr,
            nullptr,
            nullptr};
        wl_data_source_add_listener(_source.get(), &listener, this);
    }

    WaylandConnection& _connection;
    const std::vector<OfferedForm>& _forms;
    std::string _activationToken;
    FocusWindow _window;
    WaylandObject<wl_seat> _seat;
    WaylandObject<wl_data_device_manager> _manager;
    WaylandObject<wl_keyboard> _keyboard;
    WaylandObject<wl_data_device> _device;
    WaylandObject<wl_data_source> _source;
    /// Of the event that gave the keyboard to the window.
    std::optional<std::uint32_t> _serial;
    bool _isConfirmed = false;
    bool _isLost = false;
};

}  // namespace

std::unique_ptr<SelectionWay> focusWay(WaylandConnection& connection,
                                       const std::vector<OfferedForm>& forms,
                                       const std::string& activationToken)
{
    auto way = std::make_unique<FocusWay>(connection, forms, activationToken);
    if (!way->isPossible()) return nullptr;
    return way;
}

}  // namespace vantorel
