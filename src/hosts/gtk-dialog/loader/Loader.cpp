#include "embedding/loader/DialogLibrary.h"

#include <dlfcn.h>
#include <glib-object.h>

/// The module that GTK loads at the start of every program. It links neither GTK nor the rest of
/// our code: most programs never open a colour dialog, and a program of GTK 2 must not get GTK 3
/// from us.
namespace vantorel {
namespace {

constexpr const char* toolkitName = "libgtk-3.so.0";
constexpr const char* dialogClassName = "GtkColorChooserDialog";
constexpr const char* libraryName = VANTOREL_DIALOG_LIBRARY;

/// The type of GTK 3's widgets; 0 if this is a program of another GTK.
GType typeOfWidgets()
{
    void* toolkit = ::dlopen(toolkitName, RTLD_LAZY | RTLD_NOLOAD);
    if (toolkit == nullptr) return 0;
    const auto typeOf = reinterpret_cast<GType (*)()>(::dlsym(toolkit, "gtk_widget_get_type"));
    return typeOf != nullptr ? typeOf() : 0;
}

/// Called whenever any widget is shown.
gboolean widgetIsShown(GSignalInvocationHint*, guint, const GValue* arguments, gpointer)
{
    static DialogLibrary library;
    // Unknown until the program has its first dialog.
    static GType dialogClass = 0;
    if (dialogClass == 0) dialogClass = g_type_from_name(dialogClassName);
    if (dialogClass == 0) return TRUE;
    void* widget = g_value_peek_pointer(arguments);
    if (g_type_check_instance_is_a(static_cast<GTypeInstance*>(widget), dialogClass) != FALSE &&
        library.open(libraryName)) {
        library.attachPage(widget);
    }
    return TRUE;
}

}  // namespace
}  // namespace vantorel

extern "C" {

__attribute__((visibility("default"))) void gtk_module_init(int*, char***);

void gtk_module_init(int*, char***)
{
    const GType widgets = vantorel::typeOfWidgets();
    if (widgets == 0) return;
    // Signals are known once the class is.
    g_type_class_ref(widgets);
    const guint show = g_signal_lookup("show", widgets);
    if (show != 0) g_signal_add_emission_hook(show, 0, vantorel::widgetIsShown, nullptr, nullptr);
}
}
