#include "GtkHostFixture.h"
#include "embedding/EmbeddedPanel.h"
#include "embedding/PageLibrary.h"
#include "hosts/common/ViewTree.h"
#include "hosts/gtk/GtkHostColorPanel.h"
#include "hosts/gtk/GtkHostTextField.h"

#include <fstream>
#include <map>
#include <regex>

namespace vantorel {
namespace {

class GtkTestPanel final : public EmbeddedPanel<GtkHostColorPanel> {
public:
    GtkTestPanel(EmbeddingDialog& dialog, GtkHostDesktop& desktop)
        : EmbeddedPanel(dialog, EmbeddingTraits{}, desktop)
    {
    }
    ~GtkTestPanel() override { page().close(); }

    using GtkHostColorPanel::finishEditing;
    using GtkHostColorPanel::pageDidAppear;

protected:
    [[nodiscard]] HostView* pageView() const override { return page().view(); }
    bool takeText(const std::u16string&) override { return false; }
};

class ChosenColors final : public EmbeddingDialog {
public:
    void colorChosen(const HostColor& color, bool isFinal) override
    {
        if (isFinal) colors.push_back(color);
    }
    void pageDidFail() override { ADD_FAILURE() << "the page has failed"; }

    std::vector<HostColor> colors;
};

void collectWidgets(GtkWidget* widget, gpointer data)
{
    auto& widgets = *static_cast<std::map<std::string, GtkWidget*>*>(data);
    widgets[gtk_widget_get_name(widget)] = widget;
    if (GTK_IS_CONTAINER(widget)) gtk_container_forall(GTK_CONTAINER(widget), collectWidgets, data);
}

/// The real page in a window.
class GtkPageTest : public GtkHostTest {
protected:
    GtkPageTest() : panel(dialog, desktop)
    {
        root.setFrame({0, 0, 260, 300});
        gtk_widget_set_size_request(root.widget(), 260, 300);
        const LoadedPlugin* plugin = pageOfLibrary(VANTOREL_PICKERS "/QTXHexColorPicker.so");
        if (plugin == nullptr || !panel.showPage(*plugin, root, HostColor::blackColor())) {
            ADD_FAILURE() << "no page";
        }
        panel.pageDidAppear();
        showWindow();
        panel.page().resize();
        handleEvents();
    }

    [[nodiscard]] std::map<std::string, GtkWidget*> widgets() const
    {
        std::map<std::string, GtkWidget*> found;
        collectWidgets(root.widget(), &found);
        return found;
    }

    void type(const std::string& name, const char* text)
    {
        GtkWidget* field = widgets().at(name);
        gtk_widget_grab_focus(field);
        gtk_editable_select_region(GTK_EDITABLE(field), 0, -1);
        gtk_editable_delete_selection(GTK_EDITABLE(field));
        g_signal_emit_by_name(field, "insert-at-cursor", text);
        handleEvents();
    }

    ChosenColors dialog;
    GtkTestPanel panel;
};

TEST_F(GtkPageTest, EveryControlOfTheInterfaceFileIsMadeAndHasAName)
{
    std::ifstream file(VANTOREL_RESOURCES "/QTXHexPick");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::regex pattern("Name = \"?([A-Za-z_]+)\"?; Class");
    // One face of the page is not in its tree until it is shown.
    gtk_button_clicked(GTK_BUTTON(widgets().at("settingsButton")));
    handleEvents();
    const auto made = widgets();
    int count = 0;
    const std::regex isFace("_hexColorsView|increaseCubeRingsButton|decreaseCubeRingsButton");
    for (std::sregex_iterator it(text.begin(), text.end(), pattern); it != std::sregex_iterator();
         ++it) {
        const std::string name = (*it)[1];
        if (std::regex_match(name, isFace)) continue;
        ++count;
        ASSERT_TRUE(made.contains(name)) << name;
        const char* shown = atk_object_get_name(gtk_widget_get_accessible(made.at(name)));
        EXPECT_TRUE(shown != nullptr && *shown != '\0') << name;
    }
    EXPECT_GT(count, 25);
}

TEST_F(GtkPageTest, AHexCodeIsChosenWhenItIsEntered)
{
    type("_fullHexText", "#12f");
    gtk_widget_activate(widgets().at("_fullHexText"));
    runUntil([this] { return !dialog.colors.empty(); });
    EXPECT_EQ(dialog.colors.back(),
              HostColor::colorWithCalibratedRed(0x11 / 255.0, 0x22 / 255.0, 1, 1));
}

TEST_F(GtkPageTest, ANameIsCompletedAndWhatWasTypedCountsOnOK)
{
    type("_rgbDecimalText", "nav");
    GtkWidget* field = widgets().at("_rgbDecimalText");
    int start = 0;
    int end = 0;
    EXPECT_TRUE(gtk_editable_get_selection_bounds(GTK_EDITABLE(field), &start, &end));
    EXPECT_EQ(start, 3);
    EXPECT_TRUE(std::string(gtk_entry_get_text(GTK_ENTRY(field))).starts_with("navy"));
    panel.finishEditing();
    panel.page().sendPendingColor();
    ASSERT_FALSE(dialog.colors.empty());
    EXPECT_EQ(dialog.colors.back(), HostColor::colorWithCalibratedRed(0, 0, 128 / 255.0, 1));
}

TEST_F(GtkPageTest, AColourFromOutsideIsShownAndNotSentBack)
{
    panel.page().dialogColorDidChange(HostColor::colorWithCalibratedRed(0, 1, 0, 1));
    handleEvents();
    EXPECT_STREQ(gtk_entry_get_text(GTK_ENTRY(widgets().at("_fullHexText"))), "#00FF00");
    EXPECT_TRUE(dialog.colors.empty());
}

TEST_F(GtkPageTest, ADragInTheSliderChoosesOneColour)
{
    HostView* view = nullptr;
    forEachBelow<GtkHostCustomView>(panel.page().view(), [&](GtkHostCustomView& custom) {
        if (view == nullptr) view = &custom;
    });
    ASSERT_NE(view, nullptr);
    auto& custom = static_cast<GtkHostCustomView&>(*view);
    GtkDeferral deferral;
    deferral.callAfter(0, [&] {
        for (const double y : {60.0, 90.0, 120.0})
            sendMouse(custom, GDK_MOTION_NOTIFY, {20, y}, GDK_BUTTON1_MASK);
        sendMouse(custom, GDK_BUTTON_RELEASE, {20, 120}, GDK_BUTTON1_MASK);
    });
    sendMouse(custom, GDK_BUTTON_PRESS, {20, 40});
    runUntil([this] { return !dialog.colors.empty(); });
    handleEvents();
    EXPECT_EQ(dialog.colors.size(), 1U);
}

}  // namespace
}  // namespace vantorel
