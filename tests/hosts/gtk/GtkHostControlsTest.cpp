#include "GtkHostFixture.h"
#include "hosts/common/Translator.h"
#include "hosts/gtk/GtkHostItemList.h"
#include "hosts/gtk/GtkHostPopUpButton.h"
#include "hosts/gtk/GtkHostTextField.h"
#include "hosts/gtk/GtkTranslations.h"

#include <gdk/gdkkeysyms.h>

namespace vantorel {
namespace {

using testing::ElementsAre;

HostMenuItem titled(const std::u16string& title)
{
    HostMenuItem item;
    item.title = title;
    return item;
}

TEST_F(GtkHostTest, AnUnderscoreInATitleIsShown)
{
    auto description = described({10, 20, 60, 22});
    description.title = u"Do_ne";
    const auto button = factory.makeButton(description);
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(gtkWidgetOf(button.get()))), "Do_ne");
}

class GtkEntryTest : public GtkHostTest {
protected:
    GtkEntryTest() : made(factory.makeTextField(described({10, 20, 100, 22})))
    {
        field().setAction([this](HostControl&) { entered.push_back(field().stringValue()); });
        root.addSubview(field());
        showWindow();
        gtk_widget_grab_focus(widget());
        handleGtkEvents();
    }

    [[nodiscard]] GtkHostTextField& field() { return static_cast<GtkHostTextField&>(*made); }
    [[nodiscard]] GtkWidget* widget() { return field().widget(); }

    void type(const char* text)
    {
        g_signal_emit_by_name(widget(), "insert-at-cursor", text);
        handleGtkEvents();
    }

    std::unique_ptr<HostTextField> made;
    std::vector<std::u16string> entered;
};

TEST_F(GtkEntryTest, ReturnEntersAndEscapeGivesUp)
{
    int restored = 0;
    field().setPanel({[&] { ++restored; }, {}});
    EXPECT_FALSE(sendKey(widget(), GDK_KEY_Escape)) << "it belongs to the dialog";
    type("blue");
    gtk_widget_activate(widget());
    EXPECT_THAT(entered, ElementsAre(u"blue"));
    type("s");
    EXPECT_TRUE(sendKey(widget(), GDK_KEY_Escape));
    EXPECT_EQ(restored, 1);
    field().finishEditing();
    EXPECT_EQ(entered.size(), 1U);
}

TEST_F(GtkEntryTest, TypingThatGtkHasNotReportedYetIsEnteredToo)
{
    type("re");
    g_signal_emit_by_name(widget(), "insert-at-cursor", "d");
    field().finishEditing();
    EXPECT_THAT(entered, ElementsAre(u"red"));
}

TEST_F(GtkEntryTest, PastedTextReplacesAllAndLosesItsEnds)
{
    type("x");
    gtk_widget_activate(widget());
    GtkClipboard* clipboard = gtk_widget_get_clipboard(widget(), GDK_SELECTION_CLIPBOARD);
    gtk_clipboard_set_text(clipboard, "\t#00ff80;\n", -1);
    g_signal_emit_by_name(widget(), "paste-clipboard");
    runUntil([this] { return field().stringValue() != u"x"; });
    EXPECT_EQ(field().stringValue(), u"#00ff80");
}

class GtkPopUpTest : public GtkHostTest {
protected:
    GtkPopUpTest() : made(factory.makePopUpButton(described({10, 20, 100, 22})))
    {
        popUp().setAction([this](HostControl&) { ++actions; });
        root.addSubview(popUp());
        showWindow();
    }

    [[nodiscard]] GtkHostPopUpButton& popUp() { return static_cast<GtkHostPopUpButton&>(*made); }

    void fill(int count)
    {
        HostMenu items;
        for (int i = 0; i < count; ++i)
            items.push_back(titled(utf16FromUtf8("Item " + std::to_string(i))));
        popUp().setItems(std::move(items));
    }

    std::unique_ptr<HostPopUpButton> made;
    int actions = 0;
};

TEST(GtkTranslationsTest, OnlyThePagesOwnWordsAreTranslated)
{
    setTranslator([](std::string_view context, std::u16string_view text) {
        return context == "DisplayNames" ? u"de " + std::u16string(text) : std::u16string(text);
    });
    HostMenuItem item;
    item.title = u"Color";
    EXPECT_EQ(shownTitle(item), u"Color") << "a list of the user's";
    item.isOwnWord = true;
    EXPECT_EQ(shownTitle(item), u"de Color");
    item.title = u"* red";
    EXPECT_EQ(shownTitle(item), u"* red");
    setTranslator({});
}

TEST_F(GtkPopUpTest, LongListsOpenAsListsAndAreOperatedByKeys)
{
    fill(5000);
    popUp().openMenu();
    GtkWidget* list = openedList();
    ASSERT_NE(list, nullptr);
    sendKey(list, GDK_KEY_End);
    sendKey(list, GDK_KEY_Up);
    sendKey(list, GDK_KEY_Return);
    handleGtkEvents();
    EXPECT_EQ(popUp().indexOfSelectedItem(), 4998);
    EXPECT_EQ(actions, 1);
    EXPECT_EQ(openedList(), nullptr);
}

TEST_F(GtkPopUpTest, AListIsSearchedByLettersAndClosedByEscape)
{
    fill(100);
    popUp().insertItem(titled(u"Zebra"), 50);
    popUp().openMenu();
    GtkWidget* list = openedList();
    ASSERT_NE(list, nullptr);
    sendKey(list, GDK_KEY_z);
    sendKey(list, GDK_KEY_Return);
    handleGtkEvents();
    EXPECT_EQ(popUp().indexOfSelectedItem(), 50);
    popUp().openMenu();
    list = openedList();
    ASSERT_NE(list, nullptr);
    sendKey(list, GDK_KEY_Escape);
    handleGtkEvents();
    EXPECT_EQ(openedList(), nullptr);
    EXPECT_EQ(actions, 1);
}

TEST_F(GtkPopUpTest, LettersSearchInAClosedPopUp)
{
    popUp().setItems({titled(u"Ash"), titled(u"Blue"), titled(u"Brown")});
    sendKey(popUp().widget(), GDK_KEY_b);
    EXPECT_EQ(popUp().indexOfSelectedItem(), 1);
    sendKey(popUp().widget(), GDK_KEY_r);
    EXPECT_EQ(popUp().indexOfSelectedItem(), 2);
    EXPECT_EQ(actions, 2);
}

}  // namespace
}  // namespace vantorel
