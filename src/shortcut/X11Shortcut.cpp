#include "shortcut/X11Shortcut.h"

#include "shortcut/DesktopKeys.h"

#include <QSocketNotifier>

#include <array>
#include <cstdlib>

#include <xcb/xcb.h>

namespace vantorel {
namespace {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using OwnedReply = std::unique_ptr<Reply, FreeReply>;

/// Caps Lock and Num Lock count as modifiers, and must make no difference.
constexpr std::array<std::uint16_t, 4> locks{0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2,
                                             XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

}  // namespace

void X11Shortcut::Disconnect::operator()(xcb_connection_t* server) const
{
    xcb_disconnect(server);
}

X11Shortcut::X11Shortcut(QObject* parent, const char* display)
    : ShortcutMethod(parent), _server(xcb_connect(display, nullptr))
{
    // A connection of our own: Qt's gives events of other windows to nobody.
    if (xcb_connection_has_error(_server.get()) != 0) return;
    _root = xcb_setup_roots_iterator(xcb_get_setup(_server.get())).data->root;
    _notifier =
        new QSocketNotifier(xcb_get_file_descriptor(_server.get()), QSocketNotifier::Read, this);
    connect(_notifier, &QSocketNotifier::activated, this, &X11Shortcut::readEvents);
}

X11Shortcut::~X11Shortcut()
{
    delete _notifier;
}

std::uint8_t X11Shortcut::keyCodeOf(std::uint32_t symbol) const
{
    const xcb_setup_t* setup = xcb_get_setup(_server.get());
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const OwnedReply<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        _server.get(), xcb_get_keyboard_mapping(_server.get(), setup->min_keycode, count),
        nullptr));
    if (!mapping) return 0;
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int columns = mapping->keysyms_per_keycode;
    // A layout that is not Latin has the Latin letters in a later column.
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < count; ++row)
            if (symbols[row * columns + column] == symbol)
                return static_cast<std::uint8_t>(setup->min_keycode + row);
    }
    return 0;
}

void X11Shortcut::bind(const QKeySequence& keys)
{
    _keys = keys;
    if (_notifier == nullptr) {
        emit unavailable();
        return;
    }
    grab();
}

void X11Shortcut::grab()
{
    const std::string shown = _keys.toString(QKeySequence::NativeText).toStdString();
    const auto key = desktopKeyFrom(_keys);
    _keyCode = key ? keyCodeOf(key->symbol) : std::uint8_t{0};
    if (_keyCode == 0) {
        emit failed(
            {phrase("the keyboard has no key %1", shown), phrase("choose another shortcut")});
        return;
    }
    _modifiers = key->modifiers;
    bool isTaken = false;
    for (const std::uint16_t lock : locks) {
        const auto modifiers = static_cast<std::uint16_t>(_modifiers | lock);
        const xcb_void_cookie_t request = xcb_grab_key_checked(
            _server.get(), 1, _root, modifiers, _keyCode, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        const OwnedReply<xcb_generic_error_t> error(xcb_request_check(_server.get(), request));
        isTaken = isTaken || error;
    }
    if (!isTaken) {
        emit bound();
        return;
    }
    release();
    emit failed(
        {phrase("another program has the shortcut %1", shown), phrase("choose another shortcut")});
}

void X11Shortcut::release()
{
    if (_keyCode != 0) xcb_ungrab_key(_server.get(), _keyCode, _root, XCB_MOD_MASK_ANY);
    xcb_flush(_server.get());
    _keyCode = 0;
}

void X11Shortcut::readEvents()
{
    bool isPressed = false;
    bool hasNewKeyboard = false;
    while (const OwnedReply<xcb_generic_event_t> event{xcb_poll_for_event(_server.get())}) {
        constexpr std::uint8_t typeBits = 0x7f;
        const auto type = static_cast<std::uint8_t>(event->response_type & typeBits);
        if (type == XCB_MAPPING_NOTIFY) hasNewKeyboard = true;
        if (type != XCB_KEY_PRESS) continue;
        isPressed = true;
        // The key keeps the keyboard until it is let go, which whatever picks would notice.
        xcb_ungrab_keyboard(_server.get(), XCB_CURRENT_TIME);
        xcb_flush(_server.get());
    }
    if (xcb_connection_has_error(_server.get()) != 0) _notifier->setEnabled(false);
    if (hasNewKeyboard && _keyCode != 0) {
        release();
        grab();
    }
    if (isPressed) emit activated();
}

}  // namespace vantorel
