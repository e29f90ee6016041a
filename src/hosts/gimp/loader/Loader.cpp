#include "embedding/loader/DialogLibrary.h"
#include "hosts/gimp/GimpHeaders.h"
#include "hosts/gimp/SelectorNames.h"

#include <dlfcn.h>

/// The module that GIMP loads when it starts. It adds a type of colour selector, and opens the rest
/// when GIMP creates the first of them.
namespace vantorel {
namespace {

constexpr const char* libraryName = VANTOREL_DIALOG_LIBRARY;
constexpr const char* widgetsName = VANTOREL_GIMP_WIDGETS;

void (*showWidget)(GtkWidget*) = nullptr;

/// The type that our selectors are derived from; 0 if this GIMP has no windows.
GType typeOfSelectors()
{
    void* widgets = ::dlopen(widgetsName, RTLD_LAZY | RTLD_NOLOAD);
    if (widgets == nullptr) return 0;
    const auto typeOf =
        reinterpret_cast<GType (*)()>(::dlsym(widgets, "gimp_color_selector_get_type"));
    return typeOf != nullptr ? typeOf() : 0;
}

/// A selector that is not shown has no tab in GIMP's dialogs.
void showSelector(GtkWidget* selector)
{
    auto* object = reinterpret_cast<GObject*>(selector);
    if (g_object_get_data(object, selectorPageKey) != nullptr) showWidget(selector);
}

void initializeClass(gpointer type, gpointer)
{
    auto* selectors = static_cast<GimpColorSelectorClass*>(type);
    selectors->name = "Vantorel";
    selectors->icon_name = selectorIconName;
    auto* widgets = static_cast<GtkWidgetClass*>(type);
    showWidget = widgets->show;
    widgets->show = showSelector;
}

void initializeSelector(GTypeInstance* selector, gpointer)
{
    static DialogLibrary library;
    if (library.open(libraryName)) library.attachPage(selector);
}

}  // namespace
}  // namespace vantorel

const GimpModuleInfo* gimp_module_query(GTypeModule*)
{
    static gchar purpose[] = "Vantorel's colour page";
    static gchar author[] = "The authors of Vantorel";
    static gchar version[] = VANTOREL_VERSION;
    static gchar copyright[] = "(c) 2026";
    static gchar date[] = "2026";
    static const GimpModuleInfo info = {
        GIMP_MODULE_ABI_VERSION, purpose, author, version, copyright, date};
    return &info;
}

gboolean gimp_module_register(GTypeModule* module)
{
    const GType selectors = vantorel::typeOfSelectors();
    if (selectors == 0) return TRUE;
    GTypeQuery sizes = {};
    g_type_query(selectors, &sizes);
    const GTypeInfo info = {static_cast<guint16>(sizes.class_size),
                            nullptr,
                            nullptr,
                            vantorel::initializeClass,
                            nullptr,
                            nullptr,
                            static_cast<guint16>(sizes.instance_size),
                            0,
                            vantorel::initializeSelector,
                            nullptr};
    g_type_module_register_type(module, selectors, "VantorelColorSelector", &info,
                                static_cast<GTypeFlags>(0));
    return TRUE;
}
