#include "embedding/loader/DialogLibrary.h"

#include <dlfcn.h>
#include <glib-object.h>

/// The module that GTK loads at the start of every program. It links neither GTK nor the rest of
/// our code: most programs never open a colour dialog, and a program of GTK 2 must not get GTK 3
/// from us.
namespace vantorel {
namespace {

constexpr const char* toolkitName = "libgtk-3.so.0";
constexpr const char* libraryName = VANTOREL_DIALOG_LIBRARY;

/// The type of GTK 3's widgets; 0 if this is a program of another GTK.
GType typeOfWidgets()
{
    void* toolkit = ::dlopen(toolkitName, RTLD_LAZY | RTLD_NOLOAD);
    if (toolkit == nullptr) return 0;
    const auto typeOf = reinterpret_cast<GType (*)()>(::dlsym(toolkit, "gtk_widget_get_type"));
    return typeOf != nullptr ? typeOf() : 0;
}

/// A class that the program may not have used yet.
class WidgetClass {
public:
    explicit constexpr WidgetClass(const char* name) : _name(name) {}

    [[nodiscard]] bool isKnown()
    {
        if (_type == 0) _type = g_type_from_name(_name);
        return _type != 0;
    }
    [[nodiscard]] bool has(void* widget)
    {
        return isKnown() &&
               g_type_check_instance_is_a(static_cast<GTypeInstance*>(widget), _type) != FALSE;
    }

private:
    const char* _name;
    GType _type = 0;
};

/// Whether a widget is a colour dialog, or may be a window with the older colour selection. Most
/// programs know neither class.
bool mayHavePage(void* widget)
{
    static WidgetClass chooserDialogs("GtkColorChooserDialog");
    static WidgetClass selections("GtkColorSelection");
    static WidgetClass windows("GtkWindow");
    if (chooserDialogs.has(widget)) return true;
    return selections.isKnown() && (windows.has(widget) || selections.has(widget));
}

/// Called whenever any widget is shown.
gboolean widgetIsShown(GSignalInvocationHint*, guint, const GValue* arguments, gpointer)
{
    static DialogLibrary library;
    void* widget = g_value_peek_pointer(arguments);
    if (mayHavePage(widget) && library.open(libraryName)) library.attachPage(widget);
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
