#pragma once

#include <dbus/dbus.h>

namespace vantorel {

/// The functions of libdbus that a caller of methods needs.
struct DBusFunctions {
    decltype(&dbus_error_init) errorInit;
    decltype(&dbus_error_free) errorFree;
    decltype(&dbus_validate_utf8) validateUTF8;
    decltype(&dbus_bus_get_private) busGetPrivate;
    decltype(&dbus_connection_set_exit_on_disconnect) setExitOnDisconnect;
    decltype(&dbus_connection_close) connectionClose;
    decltype(&dbus_connection_unref) connectionUnref;
    decltype(&dbus_connection_send_with_reply_and_block) sendAndWait;
    decltype(&dbus_message_new_method_call) newMethodCall;
    decltype(&dbus_message_set_auto_start) setAutoStart;
    decltype(&dbus_message_unref) messageUnref;
    decltype(&dbus_message_iter_init) iterInit;
    decltype(&dbus_message_iter_init_append) iterInitAppend;
    decltype(&dbus_message_iter_append_basic) appendBasic;
    decltype(&dbus_message_iter_open_container) openContainer;
    decltype(&dbus_message_iter_close_container) closeContainer;
    decltype(&dbus_message_iter_get_arg_type) argumentType;
    decltype(&dbus_message_iter_get_basic) getBasic;
};

/// Loads libdbus at the first call. Returns null if it is not installed.
[[nodiscard]] const DBusFunctions* dbusFunctions();

}  // namespace vantorel
