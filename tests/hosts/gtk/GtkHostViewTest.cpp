#include "GtkHostFixture.h"
#include "hosts/common/ReadableColor.h"
#include "hosts/gtk/GtkStyles.h"

#include <gdk/gdkkeysyms.h>

#include <array>

namespace vantorel {
namespace {

using testing::ElementsAre;

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

/// Red, green and blue of a pixel on the screen, in the window of a widget.
std::array<int, 3> pixelOf(GtkWidget* widget, int x, int y)
{
    GdkWindow* window = gtk_widget_get_window(widget);
#if GTK_MAJOR_VERSION >= 3
    const auto picture =
        GtkReference<GdkPixbuf>::adopt(gdk_pixbuf_get_from_window(window, x, y, 1, 1));
#else
    const auto picture = GtkReference<GdkPixbuf>::adopt(gdk_pixbuf_get_from_drawable(
        nullptr, window, gdk_drawable_get_colormap(window), x, y, 0, 0, 1, 1));
#endif
    const guchar* bytes = gdk_pixbuf_get_pixels(picture.get());
    return {bytes[0], bytes[1], bytes[2]};
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

TEST_F(GtkHostTest, WidgetsHaveTheFramesOfTheirViewsWhateverTheThemeWants)
{
    auto button = factory.makeButton(described({10, 20, 22, 20}));
    auto field = factory.makeTextField(described({50, 20, 46, 22}));
    field->setResizing({.bottomMargin = true});
    root.addSubview(*button);
    root.addSubview(*field);
    showWindow();
    const GtkAllocation buttonPlace = placeOf(gtkWidgetOf(button.get()));
    EXPECT_EQ(buttonPlace.x, 10);
    EXPECT_EQ(buttonPlace.y, 160);
    EXPECT_EQ(buttonPlace.width, 22);
    EXPECT_EQ(buttonPlace.height, 20);
    EXPECT_EQ(placeOf(gtkWidgetOf(field.get())).height, 22);

    root.setFrame({0, 0, 300, 240});
    gtk_widget_set_size_request(root.widget(), 300, 240);
    runUntil([&] { return placeOf(root.widget()).height == 240; });
    handleEvents();
    // One keeps its distance from the bottom, the other from the top.
    EXPECT_EQ(placeOf(gtkWidgetOf(button.get())).y, 200);
    EXPECT_EQ(placeOf(gtkWidgetOf(field.get())).y, 158);
}

TEST_F(GtkHostTest, WhatIsParkedOrOutsideIsNotShown)
{
    auto label = factory.makeTextField(described({-500, 20, 60, 20}));
    root.addSubview(*label);
    showWindow();
    GtkWidget* widget = gtkWidgetOf(label.get());
    EXPECT_FALSE(gtk_widget_get_mapped(widget));
    label->setFrameOrigin({10, 20});
    EXPECT_TRUE(gtk_widget_get_mapped(widget));
    label->setParked(true);
    EXPECT_FALSE(gtk_widget_get_mapped(widget));
    gtk_widget_show_all(window());
    EXPECT_FALSE(gtk_widget_get_mapped(widget)) << "a program may show all of its dialog";
}

TEST_F(GtkHostTest, TheFocusReturnsWhenAFaceIsTakenOut)
{
    auto field = factory.makeTextField(described({10, 20, 100, 22}));
    root.addSubview(*field);
    showWindow();
    gtk_widget_grab_focus(gtkWidgetOf(field.get()));
    auto face = factory.makeView(described({0, 60, 300, 100}));
    auto inner = factory.makeTextField(described({10, 20, 100, 22}));
    face->addSubview(*inner);
    root.addSubview(*face);
    gtk_widget_grab_focus(gtkWidgetOf(inner.get()));
    face->removeFromSuperview();
    EXPECT_EQ(gtk_window_get_focus(GTK_WINDOW(window())), gtkWidgetOf(field.get()));
}

TEST_F(GtkHostTest, ToolTipsAreNeverMarkup)
{
    auto label = factory.makeTextField(described({10, 20, 60, 20}));
    label->setToolTip(u"<b>bold</b> & more");
    const GText shown(gtk_widget_get_tooltip_text(gtkWidgetOf(label.get())));
    EXPECT_STREQ(shown.get(), "<b>bold</b> & more");
    label->setToolTip(u"  ");
    EXPECT_FALSE(gtk_widget_get_has_tooltip(gtkWidgetOf(label.get())));
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
    handleEvents();
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
    handleEvents();
    const GtkAllocation area = placeOf(gtkWidgetOf(view.get()));
    const GtkAllocation place = placeOf(gtkWidgetOf(button.get()));
    EXPECT_TRUE(isBlue(pixelOf(root.widget(), area.x + 5, area.y + 5)));
    EXPECT_FALSE(isBlue(pixelOf(root.widget(), place.x + place.width / 2, place.y + 4)));
}

TEST_F(GtkHostTest, TheTrackingRectangleReportsCrossings)
{
    RecordingContent content;
    auto made = factory.makeCustomView(described({10, 10, 100, 100}), content);
    auto& view = static_cast<GtkHostCustomView&>(*made);
    root.addSubview(view);
    showWindow();
    content.events.clear();
    const auto tag = view.addTrackingRect({0, 0, 50, 50}, false);
    sendMouse(view, GDK_MOTION_NOTIFY, {80, 80});
    sendMouse(view, GDK_MOTION_NOTIFY, {20, 20});
    view.setAcceptsMouseMoved(true);
    sendMouse(view, GDK_MOTION_NOTIFY, {21, 20});
    sendMouse(view, GDK_MOTION_NOTIFY, {80, 20});
    EXPECT_THAT(content.events, ElementsAre("entered", "moved", "exited"));
    view.removeTrackingRect(tag);
    sendMouse(view, GDK_MOTION_NOTIFY, {20, 20});
    EXPECT_EQ(content.events.size(), 3U);
}

/// Queues a function that runs while a content waits for events.
void runLater(GtkDeferral& deferral, std::function<void()> function)
{
    deferral.callAfter(0, std::move(function));
}

TEST_F(GtkHostTest, AContentCanWaitForTheEventsOfItsDrag)
{
    RecordingContent content;
    auto made = factory.makeCustomView(described({10, 10, 100, 100}), content);
    auto& view = static_cast<GtkHostCustomView&>(*made);
    root.addSubview(view);
    showWindow();
    std::vector<HostEvent> got;
    GtkDeferral deferral;
    const auto mask = maskOfEventType(HostEventType::leftMouseDragged) |
                      maskOfEventType(HostEventType::leftMouseUp);
    content.whenPressed = [&](const HostEvent&) {
        runLater(deferral, [&] {
            sendMouse(view, GDK_MOTION_NOTIFY, {30, 40}, GDK_BUTTON1_MASK);
            sendMouse(view, GDK_MOTION_NOTIFY, {31, 40}, GDK_BUTTON1_MASK);
            sendMouse(view, GDK_BUTTON_RELEASE, {32, 40}, GDK_BUTTON1_MASK);
        });
        got.push_back(view.nextMouseEvent(mask));
        got.push_back(view.nextMouseEvent(mask));
    };
    sendMouse(view, GDK_BUTTON_PRESS, {20, 20});
    ASSERT_EQ(got.size(), 2U);
    EXPECT_EQ(got[0].type, HostEventType::leftMouseDragged);
    EXPECT_EQ(got[0].location, (HostPoint{31, 40}));
    EXPECT_EQ(got[1].type, HostEventType::leftMouseUp);
}

TEST_F(GtkHostTest, AWindowMayBeDestroyedInTheMiddleOfADrag)
{
    RecordingContent content;
    auto made = factory.makeCustomView(described({10, 10, 100, 100}), content);
    auto& view = static_cast<GtkHostCustomView&>(*made);
    root.addSubview(view);
    showWindow();
    HostEventType last = HostEventType::leftMouseDown;
    GtkDeferral deferral;
    content.whenPressed = [&](const HostEvent&) {
        runLater(deferral, [&] { gtk_widget_destroy(window()); });
        last = view.nextMouseEvent(maskOfEventType(HostEventType::leftMouseUp)).type;
    };
    sendMouse(view, GDK_BUTTON_PRESS, {20, 20});
    EXPECT_EQ(last, HostEventType::leftMouseUp);
    EXPECT_EQ(view.widget(), nullptr);
    // The views get no notice. Calling them has no effect.
    view.setNeedsDisplay(true);
    view.setFrame({0, 0, 20, 20});
    view.setToolTip(u"tip");
}

TEST_F(GtkHostTest, AHiddenViewGetsItsRelease)
{
    RecordingContent content;
    auto made = factory.makeCustomView(described({10, 10, 100, 100}), content);
    auto& view = static_cast<GtkHostCustomView&>(*made);
    root.addSubview(view);
    showWindow();
    HostEventType last = HostEventType::leftMouseDown;
    GtkDeferral deferral;
    content.whenPressed = [&](const HostEvent&) {
        runLater(deferral, [&] { view.setParked(true); });
        last = view.nextMouseEvent(maskOfEventType(HostEventType::leftMouseUp)).type;
    };
    sendMouse(view, GDK_BUTTON_PRESS, {20, 20});
    EXPECT_EQ(last, HostEventType::leftMouseUp);
}

TEST_F(GtkHostTest, KeysGoToTheContentExceptThoseOfShortcuts)
{
    RecordingContent content;
    auto made = factory.makeCustomView(described({10, 10, 100, 100}), content);
    auto& view = static_cast<GtkHostCustomView&>(*made);
    root.addSubview(view);
    showWindow();
    GtkWidget* area = view.activeWidget();
    EXPECT_TRUE(sendKey(area, GDK_KEY_Left));
    EXPECT_TRUE(sendKey(area, GDK_KEY_Return)) << "a cell is marked";
    EXPECT_FALSE(sendKey(area, GDK_KEY_Left, GDK_CONTROL_MASK));
    EXPECT_FALSE(sendKey(area, GDK_KEY_a));
    EXPECT_THAT(content.keys, ElementsAre(HostKey::left, HostKey::pick));
    sendMouse(view, GDK_BUTTON_PRESS, {20, 20});
    sendMouse(view, GDK_BUTTON_RELEASE, {20, 20}, GDK_BUTTON1_MASK);
    EXPECT_FALSE(sendKey(area, GDK_KEY_Return)) << "after a click it belongs to the dialog";
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
