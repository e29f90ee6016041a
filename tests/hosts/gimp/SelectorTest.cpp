#include "GtkHostFixture.h"
#include "hosts/gimp/SelectorColor.h"

#include <algorithm>
#include <map>

/// The module in a program that uses GIMP's libraries as GIMP does. VANTOREL_GIMP_MODULES names the
/// folder with the module.
namespace vantorel {
namespace {

GType loadedSelectorType()
{
    // As GIMP does. The modules stay until the program ends.
    static GimpModuleDB* const modules = [] {
        babl_init();
        GimpModuleDB* created = gimp_module_db_new(FALSE);
        gimp_module_db_load(created, g_getenv("VANTOREL_GIMP_MODULES"));
        return created;
    }();
    return modules != nullptr ? g_type_from_name("VantorelColorSelector") : G_TYPE_INVALID;
}

HostColor rgb(int red, int green, int blue, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
}

void collectNamedWidgets(GtkWidget* widget, gpointer data)
{
    auto& widgets = *static_cast<std::map<std::string, GtkWidget*>*>(data);
    widgets[gtk_widget_get_name(widget)] = widget;
    if (GTK_IS_CONTAINER(widget))
        gtk_container_forall(GTK_CONTAINER(widget), collectNamedWidgets, data);
}

void sendMouse(GtkWidget* area, GdkEventType type, double x, double y)
{
    const GdkEventCopy event(gdk_event_new(type));
    event->any.window = GDK_WINDOW(g_object_ref(gtk_widget_get_window(area)));
    if (type == GDK_MOTION_NOTIFY) {
        event->motion.x = x;
        event->motion.y = y;
        event->motion.state = GDK_BUTTON1_MASK;
    } else {
        event->button.x = x;
        event->button.y = y;
        event->button.button = 1;
    }
#if GTK_MAJOR_VERSION >= 3
    GdkSeat* seat = gdk_display_get_default_seat(gtk_widget_get_display(area));
    gdk_event_set_device(event.get(), gdk_seat_get_pointer(seat));
#endif
    gtk_widget_event(area, event.get());
}

/// A selector in a dialog with OK and Cancel.
class SelectorTest : public testing::Test {
protected:
    SelectorTest()
        : dialog(gtk_dialog_new_with_buttons("Trial", nullptr, static_cast<GtkDialogFlags>(0),
                                             "Cancel", GTK_RESPONSE_CANCEL, "OK", GTK_RESPONSE_OK,
                                             nullptr))
    {
        auto* created =
            static_cast<GimpColorSelector*>(g_object_new(loadedSelectorType(), nullptr));
        selector = GIMP_COLOR_SELECTOR(created);
        gtk_widget_show(GTK_WIDGET(selector));
        gtk_box_pack_start(GTK_BOX(gtk_dialog_get_content_area(GTK_DIALOG(dialog))),
                           GTK_WIDGET(selector), TRUE, TRUE, 0);
    }

    ~SelectorTest() override
    {
        _signals.clear();
        gtk_widget_destroy(dialog);
        handleGtkEvents();
    }

    void showDialog()
    {
        gtk_widget_show(dialog);
        runUntil([this] { return gtk_widget_get_mapped(dialog) != FALSE; });
        handleGtkEvents();
    }

    void hideDialog()
    {
        gtk_widget_hide(dialog);
        handleGtkEvents();
    }

    void followChanges()
    {
        followColorOfSelector(_signals, selector,
                              [this] { heard.push_back(colorOfSelector(selector)); });
    }

    [[nodiscard]] std::map<std::string, GtkWidget*> widgets() const
    {
        std::map<std::string, GtkWidget*> found;
        collectNamedWidgets(GTK_WIDGET(selector), &found);
        return found;
    }

    [[nodiscard]] std::string textOf(const std::string& field) const
    {
        return gtk_entry_get_text(GTK_ENTRY(widgets().at(field)));
    }

    void type(const std::string& name, const char* text)
    {
        GtkWidget* field = widgets().at(name);
        gtk_widget_grab_focus(field);
        gtk_editable_select_region(GTK_EDITABLE(field), 0, -1);
        gtk_editable_delete_selection(GTK_EDITABLE(field));
        g_signal_emit_by_name(field, "insert-at-cursor", text);
        handleGtkEvents();
    }

    void enter(const std::string& name, const char* text)
    {
        type(name, text);
        gtk_widget_activate(widgets().at(name));
        handleGtkEvents();
    }

    GtkWidget* dialog;
    GimpColorSelector* selector;
    std::vector<HostColor> heard;

private:
    GtkConnections _signals;
};

TEST_F(SelectorTest, HasANameAndAnIcon)
{
    const auto* type = GIMP_COLOR_SELECTOR_GET_CLASS(selector);
    EXPECT_STREQ(type->name, "Vantorel");
    EXPECT_TRUE(gtk_icon_theme_has_icon(gtk_icon_theme_get_default(), type->icon_name));
    EXPECT_TRUE(gtk_widget_get_visible(GTK_WIDGET(selector)));
}

TEST_F(SelectorTest, ShowsTheColourOfGIMPAndDoesNotSendItBack)
{
    showDialog();
    followChanges();
    setColorOfSelector(selector, rgb(0x33, 0x66, 0xff));
    handleGtkEvents();
    EXPECT_EQ(textOf("_fullHexText"), "#3366FF");
    EXPECT_EQ(heard.size(), 1U);
}

TEST_F(SelectorTest, AnEntryIsOneChangeOfTheColourOfGIMP)
{
    showDialog();
    followChanges();
    enter("_fullHexText", "#12f");
    ASSERT_EQ(heard.size(), 1U);
    EXPECT_EQ(heard.front(), rgb(0x11, 0x22, 0xff));
}

TEST_F(SelectorTest, EachColourOfADragIsOneChange)
{
    showDialog();
    followChanges();
    GtkWidget* area = widgets().at("_hexColorsView-area");
    GtkAllocation place;
    gtk_widget_get_allocation(area, &place);
    const double column = place.width * 0.1;
    const auto row = [&](double part) { return place.height * part; };
    std::vector<double> parts{0.3, 0.4, 0.5, 0.6};
    GtkDeferral steps;
    const std::function<void()> step = [&] {
        if (parts.empty()) return sendMouse(area, GDK_BUTTON_RELEASE, column, row(0.6));
        steps.callAfter(0, step);
        sendMouse(area, GDK_MOTION_NOTIFY, column, row(parts.front()));
        parts.erase(parts.begin());
    };
    steps.callAfter(0, step);
    sendMouse(area, GDK_BUTTON_PRESS, column, row(0.2));
    handleGtkEvents();
    EXPECT_GE(heard.size(), 4U);
    EXPECT_EQ(std::ranges::adjacent_find(heard), heard.end()) << "a colour is reported twice";
}

TEST_F(SelectorTest, OpacityThatGIMPDoesNotShowStays)
{
    gimp_color_selector_set_show_alpha(selector, FALSE);
    setColorOfSelector(selector, rgb(1, 2, 3, 0.5));
    showDialog();
    followChanges();
    enter("_rgbDecimalText", "rgba(17, 34, 255, 0.25)");
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard.back(), rgb(17, 34, 255, 0.5));
}

TEST_F(SelectorTest, OpacityThatGIMPShowsIsThePages)
{
    gimp_color_selector_set_show_alpha(selector, TRUE);
    setColorOfSelector(selector, rgb(1, 2, 3, 0.5));
    showDialog();
    followChanges();
    enter("_rgbDecimalText", "rgba(17, 34, 255, 0.25)");
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard.back(), rgb(17, 34, 255, 0.25));
}

TEST_F(SelectorTest, OKTakesWhatWasTyped)
{
    HostColor atAnswer = rgb(0, 0, 0);
    GtkConnections signals;
    signals.connect<void, int>(dialog, "response",
                               [&](int) { atAnswer = colorOfSelector(selector); });
    showDialog();
    type("_fullHexText", "abc");
    gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_OK);
    EXPECT_EQ(atAnswer, rgb(0xaa, 0xbb, 0xcc));
}

TEST_F(SelectorTest, CancelDoesNotTakeWhatWasTyped)
{
    showDialog();
    followChanges();
    type("_fullHexText", "abc");
    gtk_dialog_response(GTK_DIALOG(dialog), GTK_RESPONSE_CANCEL);
    EXPECT_TRUE(heard.empty());
}

TEST_F(SelectorTest, APageThatIsHiddenShowsTheColourWhenItIsShownAgain)
{
    showDialog();
    hideDialog();
    setColorOfSelector(selector, rgb(0x33, 0x66, 0xff));
    handleGtkEvents();
    EXPECT_NE(textOf("_fullHexText"), "#3366FF") << "a hidden page works";
    showDialog();
    EXPECT_EQ(textOf("_fullHexText"), "#3366FF");
}

TEST_F(SelectorTest, InADockThePageIsAsSmallAsItCanBeAndOpensItsSettings)
{
    const auto sizeOfPage = [this] {
        GtkRequisition size;
        gtk_widget_get_size_request(widgets().at("vantorel-page"), &size.width, &size.height);
        return size;
    };
    const GtkRequisition inDialog = sizeOfPage();
    GtkWidget* dock = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_widget_reparent(GTK_WIDGET(selector), dock);
    const GtkRequisition inDock = sizeOfPage();
    EXPECT_LT(inDock.width, inDialog.width);
    EXPECT_LT(inDock.height, inDialog.height);
    gtk_widget_show(dock);
    handleGtkEvents();
    gtk_button_clicked(GTK_BUTTON(widgets().at("settingsButton")));
    handleGtkEvents();
    EXPECT_TRUE(gtk_widget_get_mapped(widgets().at("settingsDoneButton")));
    EXPECT_EQ(sizeOfPage().width, inDock.width);
    gtk_widget_destroy(dock);
    handleGtkEvents();
}

TEST_F(SelectorTest, ASecondSelectorIsIndependent)
{
    auto* other = static_cast<GtkWidget*>(g_object_new(loadedSelectorType(), nullptr));
    g_object_ref_sink(other);
    setColorOfSelector(selector, rgb(0x33, 0x66, 0xff));
    EXPECT_EQ(colorOfSelector(GIMP_COLOR_SELECTOR(other)).alphaComponent(), 1);
    gtk_widget_destroy(other);
    g_object_unref(other);
    handleGtkEvents();
    showDialog();
    EXPECT_EQ(textOf("_fullHexText"), "#3366FF");
}

/// With libraries that are missing or damaged.
class EmptySelectorTest : public SelectorTest {};

TEST_F(EmptySelectorTest, IsNeverShown)
{
    showDialog();
    EXPECT_FALSE(gtk_widget_get_visible(GTK_WIDGET(selector)));
    setColorOfSelector(selector, rgb(1, 2, 3));
    EXPECT_EQ(colorOfSelector(selector), rgb(1, 2, 3));
}

}  // namespace
}  // namespace vantorel
