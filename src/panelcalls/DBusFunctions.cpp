#include "panelcalls/DBusFunctions.h"

#include <dlfcn.h>

namespace vantorel {
namespace {

template <class Function>
bool find(void* library, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(::dlsym(library, name));
    return function != nullptr;
}

const DBusFunctions* load()
{
    // Stays loaded: libdbus keeps state of its own.
    void* library = ::dlopen("libdbus-1.so.3", RTLD_LAZY | RTLD_LOCAL);
    if (library == nullptr) return nullptr;
    static DBusFunctions all{};
    const bool isWhole =
        find(library, "dbus_error_init", all.errorInit) &&
        find(library, "dbus_error_free", all.errorFree) &&
        find(library, "dbus_validate_utf8", all.validateUTF8) &&
        find(library, "dbus_bus_get_private", all.busGetPrivate) &&
        find(library, "dbus_connection_set_exit_on_disconnect", all.setExitOnDisconnect) &&
        find(library, "dbus_connection_close", all.connectionClose) &&
        find(library, "dbus_connection_unref", all.connectionUnref) &&
        find(library, "dbus_connection_send_with_reply_and_block", all.sendAndWait) &&
        find(library, "dbus_message_new_method_call", all.newMethodCall) &&
        find(library, "dbus_message_set_auto_start", all.setAutoStart) &&
        find(library, "dbus_message_unref", all.messageUnref) &&
        find(library, "dbus_message_iter_init", all.iterInit) &&
        find(library, "dbus_message_iter_init_append", all.iterInitAppend) &&
        find(library, "dbus_message_iter_append_basic", all.appendBasic) &&
        find(library, "dbus_message_iter_open_container", all.openContainer) &&
        find(library, "dbus_message_iter_close_container", all.closeContainer) &&
        find(library, "dbus_message_iter_get_arg_type", all.argumentType) &&
        find(library, "dbus_message_iter_get_basic", all.getBasic);
    return isWhole ? &all : nullptr;
}

}  // namespace

const DBusFunctions* dbusFunctions()
{
    static const DBusFunctions* const functions = load();
    return functions;
}

}  // namespace vantorel
