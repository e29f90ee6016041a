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
        // As the loader has it: the dialog is visible then.
        gtk_widget_show(dialog);
        GtkDialogPage::putInto(dialog, _plugin, desktopOfProgram());
        runUntil([=] { return gtk_widget_get_mapped(dialog) != FALSE; });
        handleGtkEvents();
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
    runUntil([this] { return gtk_widget_get_allocated_width(page()) > 1; });
    EXPECT_EQ(gtk_widget_get_allocated_width(page()), pixels(280));
    EXPECT_GE(gtk_widget_get_allocated_height(page()), pixels(450));
}

TEST_F(GtkDialogPageTest, TheDialogFitsTheScreen)
{
    AskedPicker::preferred() = {5000, 5000};
    show(gtk_color_chooser_dialog_new("Test", nullptr));
    runUntil([this] { return gtk_widget_get_allocated_width(page()) > 1; });
    const GdkRectangle room = workAreaAt(gtk_widget_get_window(_dialog.get()), 0, 0);
    EXPECT_LE(gtk_widget_get_allocated_width(_dialog.get()), room.width);
    EXPECT_LE(gtk_widget_get_allocated_height(_dialog.get()), room.height);
    EXPECT_GT(gtk_widget_get_allocated_width(page()), pixels(260));
}

/// The older colour selection, in a dialog of its own.
class GtkSelectionPageTest : public GtkDialogPageTest {
protected:
    GtkSelectionPageTest()
    {
        AskedPicker::preferred() = {260, 300};
        g_object_ref_sink(_selection);
        gtk_color_selection_set_current_rgba(_selection, &initial);
    }
    ~GtkSelectionPageTest() override { g_object_unref(_selection); }

    void showInBox()
    {
        GtkWidget* dialog = gtk_dialog_new();
        GtkWidget* content = gtk_dialog_get_content_area(GTK_DIALOG(dialog));
        gtk_container_add(GTK_CONTAINER(content), GTK_WIDGET(_selection));
        gtk_widget_show(GTK_WIDGET(_selection));
        show(dialog);
    }
    static void choose(double red, double alpha = 1)
    {
        AskedPicker::shown()->colorPanel().setColor(
            HostColor::colorWithCalibratedRed(red, 0, 0, alpha));
    }
    [[nodiscard]] GdkRGBA current() const
    {
        GdkRGBA color;
        gtk_color_selection_get_current_rgba(_selection, &color);
        return color;
    }
    void runUntilRed(double red)
    {
        runUntil([this, red] { return current().red == red; });
    }

    static constexpr GdkRGBA initial{0.25, 0.5, 0.75, 1};
    GtkColorSelection* _selection = GTK_COLOR_SELECTION(gtk_color_selection_new());
};

TEST_F(GtkSelectionPageTest, PageAndSelectionHaveTheSameColor)
{
    showInBox();
    EXPECT_EQ(AskedPicker::shown()->color, HostColor::colorWithCalibratedRed(0.25, 0.5, 0.75, 1));
    choose(0.125);
    runUntilRed(0.125);
    const GdkRGBA other{0, 1, 0, 1};
    gtk_color_selection_set_current_rgba(_selection, &other);
    EXPECT_EQ(AskedPicker::shown()->color, HostColor::colorWithCalibratedRed(0, 1, 0, 1));
}

TEST_F(GtkSelectionPageTest, StepsOfADragLeaveThePreviousColorAndThePalette)
{
    // No program has given this one a colour.
    g_object_unref(_selection);
    _selection = GTK_COLOR_SELECTION(g_object_ref_sink(gtk_color_selection_new()));
    gtk_color_selection_set_has_palette(_selection, TRUE);
    showInBox();
    const auto palette = [] {
        gchar* colors = nullptr;
        g_object_get(gtk_settings_get_default(), "gtk-color-palette", &colors, nullptr);
        return std::string(GText(colors).get());
    };
    const std::string paletteBefore = palette();
    GdkRGBA before;
    gtk_color_selection_get_previous_rgba(_selection, &before);
    HostColorPanel& panel = AskedPicker::shown()->colorPanel();
    panel.continuousChangeDidBegin();
    for (const double red : {0.125, 0.25, 0.375}) {
        choose(red);
        runUntilRed(red);
    }
    panel.continuousChangeDidEnd();
    handleGtkEvents();
    GdkRGBA after;
    gtk_color_selection_get_previous_rgba(_selection, &after);
    EXPECT_TRUE(gdk_rgba_equal(&before, &after));
    EXPECT_EQ(palette(), paletteBefore);
}

TEST_F(GtkSelectionPageTest, TheOpacityCountsIfTheSelectionHasIt)
{
    gtk_color_selection_set_has_opacity_control(_selection, FALSE);
    showInBox();
    choose(0.125, 0.5);
    runUntilRed(0.125);
    gtk_color_selection_set_has_opacity_control(_selection, TRUE);
    EXPECT_EQ(current().alpha, 1);
    choose(0.25, 0.5);
    runUntilRed(0.25);
    EXPECT_EQ(current().alpha, 0.5);
}

TEST_F(GtkSelectionPageTest, ADialogReadsTheChosenColorInItsAnswer)
{
    showInBox();
    double answered = 0;
    GtkConnections answers;
    answers.connect<void, int>(_dialog.get(), "response", [&](int) { answered = current().red; });
    choose(0.125);
    gtk_dialog_response(GTK_DIALOG(_dialog.get()), 0);
    EXPECT_EQ(answered, 0.125);
}

TEST_F(GtkSelectionPageTest, ThePageIsBelowASelectionThatIsNotInABox)
{
    GtkWidget* dialog = gtk_dialog_new();
    GtkWidget* grid = gtk_grid_new();
    gtk_grid_attach(GTK_GRID(grid), GTK_WIDGET(_selection), 0, 0, 1, 1);
    gtk_container_add(GTK_CONTAINER(gtk_dialog_get_content_area(GTK_DIALOG(dialog))), grid);
    gtk_widget_show_all(grid);
    show(dialog);
    ASSERT_NE(page(), nullptr);
    EXPECT_EQ(gtk_widget_get_parent(page()), GTK_WIDGET(_selection));
}

TEST_F(GtkSelectionPageTest, ASelectionThatIsShownLaterGetsAPage)
{
    GtkWidget* dialog = gtk_dialog_new();
    show(dialog);
    EXPECT_EQ(page(), nullptr);
    GtkWidget* content = gtk_dialog_get_content_area(GTK_DIALOG(dialog));
    gtk_container_add(GTK_CONTAINER(content), GTK_WIDGET(_selection));
    gtk_widget_show(GTK_WIDGET(_selection));
    for (int i = 0; i < 2; ++i)
        GtkDialogPage::putInto(GTK_WIDGET(_selection), _plugin, desktopOfProgram());
    ASSERT_NE(page(), nullptr);
    gtk_widget_destroy(GTK_WIDGET(_selection));
    runUntil([] { return AskedPicker::shown() == nullptr; });
    EXPECT_TRUE(gtk_widget_get_visible(dialog));
}

TEST_F(GtkSelectionPageTest, AButtonOfAWindowReadsTheChosenColor)
{
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    GtkWidget* box = newBox(GTK_ORIENTATION_VERTICAL, 0);
    GtkWidget* button = gtk_button_new_with_label("OK");
    gtk_container_add(GTK_CONTAINER(box), GTK_WIDGET(_selection));
    gtk_container_add(GTK_CONTAINER(box), button);
    gtk_container_add(GTK_CONTAINER(window), box);
    gtk_widget_show_all(box);
    show(window);
    ASSERT_NE(page(), nullptr);
    double answered = 0;
    GtkConnections clicks;
    clicks.connect<void>(button, "clicked", [&] { answered = current().red; });
    choose(0.125);
    gtk_button_clicked(GTK_BUTTON(button));
    EXPECT_EQ(answered, 0.125);
}

TEST_F(GtkDialogPageTest, TheOlderColorDialogGetsAPage)
{
    show(gtk_color_selection_dialog_new("Test"));
    EXPECT_NE(page(), nullptr);
}

}  // namespace
}  // namespace vantorel
