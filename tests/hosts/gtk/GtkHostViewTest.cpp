#include "GtkHostFixture.h"
#include "hosts/common/ReadableColor.h"
#include "hosts/gtk/GtkStyles.h"

#include <gdk/gdkkeysyms.h>

#include <array>

namespace vantorel {
namespace {

HostControlDescription labelled(HostRect frame)
{
    HostControlDescription description;
    description.identifier = "label";
    description.frame = frame;
    description.title = u"Label";
    description.editable = false;
    return description;
}

GtkAllocation placeOf(GtkWidget* widget)
{
    GtkAllocation place;
    gtk_widget_get_allocation(widget, &place);
    return place;
}

#if GTK_MAJOR_VERSION >= 3
GdkRGBA backgroundOf(GtkWidget* widget)
{
    GtkStyleContext* context = gtk_widget_get_style_context(widget);
    GdkRGBA* color = nullptr;
    gtk_style_context_get(context, gtk_style_context_get_state(context), "background-color", &color,
                          nullptr);
    const GdkRGBA result = *color;
    gdk_rgba_free(color);
    return result;
}

/// Gives everything the colours of a dark theme.
class DarkTheme {
public:
    explicit DarkTheme(GtkWidget*)
    {
        gtk_css_provider_load_from_data(_colors.get(), "* { color: #eeeeee; background: #333333; }",
                                        -1, nullptr);
        gtk_style_context_add_provider_for_screen(gdk_screen_get_default(),
                                                  GTK_STYLE_PROVIDER(_colors.get()),
                                                  GTK_STYLE_PROVIDER_PRIORITY_THEME + 1);
    }
    DarkTheme(const DarkTheme&) = delete;
    DarkTheme& operator=(const DarkTheme&) = delete;
    ~DarkTheme()
    {
        gtk_style_context_remove_provider_for_screen(gdk_screen_get_default(),
                                                     GTK_STYLE_PROVIDER(_colors.get()));
    }

private:
    GtkReference<GtkCssProvider> _colors =
        GtkReference<GtkCssProvider>::adopt(gtk_css_provider_new());
};
#else
/// Gives a window the colours of a dark theme.
class DarkTheme {
public:
    explicit DarkTheme(GtkWidget* window)
    {
        gtk_rc_parse_string(
            "style \"dark-trial\" { fg[NORMAL] = \"#eeeeee\" fg[ACTIVE] = \"#eeeeee\" bg[NORMAL] = "
            "\"#333333\" }\n"
            "widget \"dark-trial*\" style \"dark-trial\"");
        gtk_widget_set_name(window, "dark-trial");
        gtk_widget_reset_rc_styles(window);
    }
};
#endif

bool isBlue(const std::array<int, 3>& pixel)
{
    return pixel == std::array{0, 0, 255};
}

TEST_F(GtkHostTest, AProgramThatShowsAllOfItsDialogDoesNotShowWhatIsParked)
{
    auto label = factory.makeTextField(described({10, 20, 60, 20}));
    root.addSubview(*label);
    label->setParked(true);
    showWindow();
    gtk_widget_show_all(window());
    EXPECT_FALSE(gtk_widget_get_mapped(gtkWidgetOf(label.get())));
}

TEST_F(GtkHostTest, AssistiveTechnologyGetsNamesRolesAndDescriptions)
{
    RecordingContent content;
    auto view = factory.makeCustomView(described({10, 10, 100, 100}), content);
    view->setAccessibleDescription([] { return u"red, 3 of 16"; });
    root.addSubview(*view);
    auto popUp = factory.makePopUpButton(described({120, 10, 100, 22}));
    popUp->addItemWithTitle(u"First");
    root.addSubview(*popUp);
    showWindow();
    runUntil([&] { return content.drawings > 0; });
    AtkObject* area =
        gtk_widget_get_accessible(static_cast<GtkHostCustomView&>(*view).activeWidget());
    EXPECT_EQ(atk_object_get_role(area), ATK_ROLE_COLOR_CHOOSER);
    EXPECT_STREQ(atk_object_get_name(area), "Control");
    EXPECT_STREQ(atk_object_get_description(area), "red, 3 of 16");
    AtkObject* button = gtk_widget_get_accessible(gtkWidgetOf(popUp.get()));
    EXPECT_EQ(atk_object_get_role(button), ATK_ROLE_COMBO_BOX);
    EXPECT_STREQ(atk_object_get_name(button), "Control");
    EXPECT_STREQ(atk_object_get_description(button), "First");
}

TEST_F(GtkHostTest, TextsInAHandPaintedViewAreDarkInADarkTheme)
{
    RecordingContent content;
    auto view = factory.makeCustomView(described({10, 10, 200, 100}), content);
    auto inside = factory.makeTextField(labelled({10, 10, 60, 20}));
    auto beside = factory.makeTextField(labelled({220, 10, 60, 20}));
    auto boxDescription = described({80, 10, 60, 20});
    boxDescription.buttonKind = HostControlDescription::ButtonKind::checkBox;
    auto box = factory.makeButton(boxDescription);
    auto popUp = factory.makePopUpButton(described({10, 40, 60, 20}));
    root.addSubview(*view);
    root.addSubview(*beside);
    for (HostView* subview :
         {static_cast<HostView*>(inside.get()), static_cast<HostView*>(box.get()),
          static_cast<HostView*>(popUp.get())})
        view->addSubview(*subview);
    showWindow();
    const DarkTheme theme(window());
    box->setState(1);
    handleGtkEvents();
    EXPECT_GT(lightnessOf(themeTextColor(gtkWidgetOf(beside.get()))), 0.5);
    GtkWidget* textOfBox = gtk_bin_get_child(GTK_BIN(gtkWidgetOf(box.get())));
    for (GtkWidget* text : {gtkWidgetOf(inside.get()), textOfBox})
        EXPECT_LT(lightnessOf(themeTextColor(text)), 0.5) << G_OBJECT_TYPE_NAME(text);
#if GTK_MAJOR_VERSION >= 3
    for (GtkWidget* seen : {gtkWidgetOf(box.get()), textOfBox})
        EXPECT_EQ(backgroundOf(seen).alpha, 0) << G_OBJECT_TYPE_NAME(seen);
    // Buttons get the look of a light theme. GTK 2 leaves them their own.
    EXPECT_LT(lightnessOf(themeTextColor(gtkWidgetOf(popUp.get()))), 0.5);
#else
    EXPECT_GT(lightnessOf(themeTextColor(gtkWidgetOf(popUp.get()))), 0.5);
#endif
}

TEST_F(GtkHostTest, ControlsOnAHandPaintedViewAreSeen)
{
    RecordingContent content;
    content.paint = [](HostCanvas& canvas) {
        HostBezierPath everything;
        everything.appendBezierPathWithRect({0, 0, 200, 100});
        canvas.fill(everything, HostColor::colorWithCalibratedRed(0, 0, 1, 1));
    };
    auto view = factory.makeCustomView(described({20, 20, 200, 100}), content);
    auto button = factory.makeButton(labelled({50, 30, 80, 30}));
    root.addSubview(*view);
    view->addSubview(*button);
    showWindow();
    runUntil([&] { return content.drawings > 0; });
    handleGtkEvents();
    const GtkAllocation area = placeOf(gtkWidgetOf(view.get()));
    const GtkAllocation place = placeOf(gtkWidgetOf(button.get()));
    EXPECT_TRUE(isBlue(pixelOf(root.widget(), area.x + 5, area.y + 5)));
    EXPECT_FALSE(isBlue(pixelOf(root.widget(), place.x + place.width / 2, place.y + 4)));
}

TEST_F(GtkHostTest, AReactionThatThrowsEndsThereAndIsReported)
{
    RecordingContent content;
    auto made = factory.makeCustomView(described({10, 10, 100, 100}), content);
    auto& view = static_cast<GtkHostCustomView&>(*made);
    root.addSubview(view);
    showWindow();
    int failures = 0;
    setGtkFailureReaction([&] { ++failures; });
    content.whenPressed = [](const HostEvent&) { throw 1; };
    sendMouse(view, GDK_BUTTON_PRESS, {20, 20});
    setGtkFailureReaction({});
    EXPECT_EQ(failures, 1);
}

}  // namespace
}  // namespace vantorel
