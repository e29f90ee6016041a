#include "hosts/gtk-dialog/GtkDialogPage.h"

#include "GtkHostFixture.h"
#include "hosts/gtk/GtkTextScale.h"

#include <cmath>

namespace vantorel {
namespace {

/// A page that does what a test asks for.
class AskedPicker final : public HostColorPicker {
public:
    AskedPicker(std::uint32_t mask, HostColorPanel& panel) : HostColorPicker(mask, panel)
    {
        shown() = this;
    }
    ~AskedPicker() override { shown() = nullptr; }

    static AskedPicker*& shown()
    {
        static AskedPicker* picker = nullptr;
        return picker;
    }
    static HostSize& preferred()
    {
        static HostSize size{260, 300};
        return size;
    }

    HostView* provideNewView(bool) override { return &_view; }
    [[nodiscard]] bool supportsMode(int) const override { return true; }
    [[nodiscard]] int currentMode() const override { return 0; }
    [[nodiscard]] std::u16string buttonToolTip() const override { return {}; }
    [[nodiscard]] HostSize minContentSize() const override { return {200, 100}; }
    [[nodiscard]] HostSize preferredContentSize() const override { return preferred(); }
    void setColor(const std::optional<HostColor>& newColor) override { color = newColor; }
    void viewSizeChanged(HostView*) override {}
    bool performAction(std::string_view, HostControl*) override { return false; }

    std::optional<HostColor> color;

private:
    HostView _view{{0, 0, 260, 300}};
};

HostColorPicker* createAskedPicker(std::uint32_t mask, HostColorPanel& panel, const HostBundle&)
{
    return new AskedPicker(mask, panel);
}

void destroyAskedPicker(HostColorPicker* picker)
{
    delete picker;
}

GtkWidget* widgetNamed(GtkWidget* widget, const char* name)
{
    if (g_strcmp0(gtk_widget_get_name(widget), name) == 0) return widget;
    if (!GTK_IS_CONTAINER(widget)) return nullptr;
    GtkWidget* found = nullptr;
    GList* children = gtk_container_get_children(GTK_CONTAINER(widget));
    for (const GList* child = children; child != nullptr && found == nullptr; child = child->next)
        found = widgetNamed(GTK_WIDGET(child->data), name);
    g_list_free(children);
    return found;
}

class GtkDialogPageTest : public testing::Test {
protected:
    ~GtkDialogPageTest() override
    {
        if (GtkWidget* dialog = _dialog.get()) gtk_widget_destroy(dialog);
        runUntil([] { return AskedPicker::shown() == nullptr; });
    }

    void show(GtkWidget* dialog)
    {
        _dialog = GtkWeakWidget(dialog);
        GtkDialogPage::putInto(dialog, _plugin, desktopOfProgram());
        gtk_widget_show(dialog);
        runUntil([=] { return gtk_widget_get_mapped(dialog) != FALSE; });
        handleEvents();
    }
    [[nodiscard]] GtkWidget* page() const { return widgetNamed(_dialog.get(), "vantorel-page"); }

    const HostPlugin _description{"test", "Test", createAskedPicker, destroyAskedPicker};
    const LoadedPlugin _plugin{_description, "/nowhere/test.so"};
    GtkWeakWidget _dialog;
};

int pixels(double points)
{
    return static_cast<int>(std::ceil(points * gtkTextScale()));
}

TEST_F(GtkDialogPageTest, ThePageHasItsPreferredSize)
{
    AskedPicker::preferred() = {280, 450};
    show(gtk_color_chooser_dialog_new("Test", nullptr));
    EXPECT_EQ(gtk_widget_get_allocated_width(page()), pixels(280));
    EXPECT_GE(gtk_widget_get_allocated_height(page()), pixels(450));
}

TEST_F(GtkDialogPageTest, TheDialogFitsTheScreen)
{
    AskedPicker::preferred() = {5000, 5000};
    show(gtk_color_chooser_dialog_new("Test", nullptr));
    const GdkRectangle room = workAreaAt(gtk_widget_get_window(_dialog.get()), 0, 0);
    EXPECT_LE(gtk_widget_get_allocated_width(_dialog.get()), room.width);
    EXPECT_LE(gtk_widget_get_allocated_height(_dialog.get()), room.height);
    EXPECT_GT(gtk_widget_get_allocated_width(page()), pixels(260));
}

}  // namespace
}  // namespace vantorel
