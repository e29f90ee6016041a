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

/// The mapped pop-up window of a list, or null.
GtkWidget* openedList()
{
    GtkWidget* found = nullptr;
    GList* windows = gtk_window_list_toplevels();
    for (const GList* entry = windows; entry != nullptr; entry = entry->next) {
        GtkWidget* window = GTK_WIDGET(entry->data);
        if (gtk_widget_get_mapped(window) && g_object_get_data(G_OBJECT(window), "vantorel-list")) {
            found = window;
        }
    }
    g_list_free(windows);
    return found;
}

/// The menu that is attached to a widget, or null.
GtkWidget* openedMenu(GtkWidget* widget)
{
    GList* menus = gtk_menu_get_for_attach_widget(widget);
    return menus != nullptr ? GTK_WIDGET(menus->data) : nullptr;
}

std::vector<GtkWidget*> rowsOf(GtkWidget* menu)
{
    std::vector<GtkWidget*> rows;
    GList* children = gtk_container_get_children(GTK_CONTAINER(menu));
    for (const GList* child = children; child != nullptr; child = child->next)
        rows.push_back(GTK_WIDGET(child->data));
    g_list_free(children);
    return rows;
}

HostMenuItem titled(const std::u16string& title)
{
    HostMenuItem item;
    item.title = title;
    return item;
}

TEST_F(GtkHostTest, WhatCodeChangesIsNotReported)
{
    int reports = 0;
    auto field = factory.makeTextField(described({10, 20, 100, 22}));
    field->setTextDidChange([&] { ++reports; });
    auto toggleDescription = described({10, 50, 22, 20});
    toggleDescription.buttonKind = HostControlDescription::ButtonKind::toggle;
    auto toggle = factory.makeButton(toggleDescription);
    auto popUp = factory.makePopUpButton(described({10, 80, 100, 22}));
    for (HostControl* control :
         {static_cast<HostControl*>(field.get()), static_cast<HostControl*>(toggle.get()),
          static_cast<HostControl*>(popUp.get())}) {
        control->setAction([&](HostControl&) { ++reports; });
        root.addSubview(*control);
    }
    showWindow();
    field->setStringValue(u"#FF8000");
    toggle->setState(1);
    popUp->setItems({titled(u"One"), titled(u"Two")});
    popUp->selectItemAtIndex(1);
    handleEvents();
    EXPECT_EQ(reports, 0);
    EXPECT_EQ(field->stringValue(), u"#FF8000");
    EXPECT_TRUE(gtk_toggle_button_get_active(GTK_TOGGLE_BUTTON(gtkWidgetOf(toggle.get()))));
}

TEST_F(GtkHostTest, ButtonsSendTheirAction)
{
    int actions = 0;
    auto push = described({10, 20, 60, 22});
    push.title = u"Do_ne";
    auto check = described({10, 50, 60, 22});
    check.buttonKind = HostControlDescription::ButtonKind::checkBox;
    auto button = factory.makeButton(push);
    auto box = factory.makeButton(check);
    button->setAction([&](HostControl&) { ++actions; });
    box->setAction([&](HostControl&) { ++actions; });
    root.addSubview(*button);
    root.addSubview(*box);
    showWindow();
    EXPECT_STREQ(gtk_button_get_label(GTK_BUTTON(gtkWidgetOf(button.get()))), "Do_ne");
    gtk_button_clicked(GTK_BUTTON(gtkWidgetOf(button.get())));
    gtk_button_clicked(GTK_BUTTON(gtkWidgetOf(box.get())));
    EXPECT_EQ(actions, 2);
    EXPECT_EQ(box->state(), 1);
}

/// A field that completes to "orange", as a page does.
class GtkEntryTest : public GtkHostTest {
protected:
    GtkEntryTest() : made(factory.makeTextField(described({10, 20, 100, 22})))
    {
        field().setTextDidChange([this] {
            caret = field().selectedRange().location;
            if (field().stringValue() == u"ora") field().setStringValue(u"orange");
        });
        field().setAction([this](HostControl&) { entered.push_back(field().stringValue()); });
        root.addSubview(field());
        showWindow();
        gtk_widget_grab_focus(widget());
        handleEvents();
    }

    [[nodiscard]] GtkHostTextField& field() { return static_cast<GtkHostTextField&>(*made); }
    [[nodiscard]] GtkWidget* widget() { return field().widget(); }

    void type(const char* text)
    {
        g_signal_emit_by_name(widget(), "insert-at-cursor", text);
        handleEvents();
    }

    std::unique_ptr<HostTextField> made;
    std::vector<std::u16string> entered;
    std::size_t caret = 0;
};

TEST_F(GtkEntryTest, TheInsertionPointIsBehindWhatWasTyped)
{
    type("or");
    EXPECT_EQ(caret, 2U);
    type("\xF0\x9F\x8E\xA8");
    EXPECT_EQ(caret, 4U) << "positions are counted in UTF-16 units";
}

TEST_F(GtkEntryTest, ACompletionStaysSelected)
{
    type("ora");
    EXPECT_EQ(field().stringValue(), u"orange");
    EXPECT_EQ(field().selectedRange(), (HostSelection{3, 3}));
    sendKey(widget(), GDK_KEY_n);
    handleEvents();
    EXPECT_EQ(field().stringValue(), u"oran") << "the next key replaces the completion";
}

TEST_F(GtkEntryTest, DeletingBringsNoCompletion)
{
    type("orab");
    g_signal_emit_by_name(widget(), "backspace");
    handleEvents();
    EXPECT_EQ(field().stringValue(), u"ora");
    EXPECT_EQ(field().selectedRange(), (HostSelection{3, 0}));
}

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

TEST_F(GtkEntryTest, WhatWasTypedIsEnteredWhenTheFieldIsLeftOrTheDialogAnswered)
{
    auto other = factory.makeTextField(described({10, 60, 100, 22}));
    root.addSubview(*other);
    handleEvents();
    type("blue");
    gtk_widget_grab_focus(gtkWidgetOf(other.get()));
    // Without a window manager no window is active, and the focus counts as not moved.
    if (gtk_window_has_toplevel_focus(GTK_WINDOW(window()))) {
        EXPECT_THAT(entered, ElementsAre(u"blue"));
    }
    gtk_widget_grab_focus(widget());
    type("red");
    // Typing that GTK has not reported yet.
    g_signal_emit_by_name(widget(), "insert-at-cursor", "d");
    field().finishEditing();
    ASSERT_FALSE(entered.empty());
    EXPECT_EQ(entered.back().back(), u'd');
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

TEST_F(GtkEntryTest, ArrowKeysStep)
{
    EXPECT_FALSE(sendKey(widget(), GDK_KEY_Up) && !entered.empty());
    int sum = 0;
    field().setStep([&](int steps, std::uint64_t) { sum += steps; });
    EXPECT_TRUE(sendKey(widget(), GDK_KEY_Up));
    EXPECT_TRUE(sendKey(widget(), GDK_KEY_Up));
    EXPECT_TRUE(sendKey(widget(), GDK_KEY_Down));
    EXPECT_EQ(sum, 1);
}

TEST_F(GtkEntryTest, MalformedTextIsHarmless)
{
    field().setStringValue(std::u16string{0xD800, u'a', 0, u'b'});
    EXPECT_FALSE(field().stringValue().empty());
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

TEST_F(GtkPopUpTest, AMenuSelectsAndSendsTheAction)
{
    fill(3);
    popUp().openMenu();
    GtkWidget* menu = openedMenu(popUp().widget());
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(rowsOf(menu).size(), 3U);
    gtk_menu_shell_activate_item(GTK_MENU_SHELL(menu), rowsOf(menu)[2], TRUE);
    handleEvents();
    EXPECT_EQ(popUp().indexOfSelectedItem(), 2);
    EXPECT_EQ(actions, 1);
    EXPECT_EQ(openedMenu(popUp().widget()), nullptr) << "the menu is gone";
}

TEST_F(GtkPopUpTest, SubmenusAreMadeWhenTheirItemIsReached)
{
    int times = 0;
    std::u16string chosen;
    HostMenuItem parent = titled(u"Add");
    parent.submenu = [&] {
        ++times;
        HostMenuItem item = titled(u"List");
        item.action = [&](const HostMenuItem& self) { chosen = self.title; };
        return HostMenu{item};
    };
    popUp().setItems({titled(u"One"), parent});
    popUp().openMenu();
    GtkWidget* menu = openedMenu(popUp().widget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(times, 0);
    GtkWidget* row = rowsOf(menu)[1];
    gtk_menu_shell_select_item(GTK_MENU_SHELL(menu), row);
    EXPECT_EQ(times, 1);
    GtkWidget* submenu = gtk_menu_item_get_submenu(GTK_MENU_ITEM(row));
    ASSERT_EQ(rowsOf(submenu).size(), 1U);
    gtk_menu_shell_activate_item(GTK_MENU_SHELL(submenu), rowsOf(submenu)[0], TRUE);
    handleEvents();
    EXPECT_EQ(chosen, u"List");
    EXPECT_EQ(popUp().indexOfSelectedItem(), 0);
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
    handleEvents();
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
    handleEvents();
    EXPECT_EQ(popUp().indexOfSelectedItem(), 50);
    popUp().openMenu();
    list = openedList();
    ASSERT_NE(list, nullptr);
    sendKey(list, GDK_KEY_Escape);
    handleEvents();
    EXPECT_EQ(openedList(), nullptr);
    EXPECT_EQ(actions, 1);
}

TEST_F(GtkPopUpTest, AnOpenListGoesWithItsWindow)
{
    fill(100);
    popUp().openMenu();
    ASSERT_NE(openedList(), nullptr);
    gtk_widget_destroy(window());
    handleEvents();
    EXPECT_EQ(openedList(), nullptr);
}

TEST_F(GtkPopUpTest, KeysSelectNeighboursAndLettersSearch)
{
    popUp().setItems(
        {titled(u"Ash"), HostMenuItem::separatorItem(), titled(u"Blue"), titled(u"Brown")});
    GtkWidget* button = popUp().widget();
    sendKey(button, GDK_KEY_Down);
    EXPECT_EQ(popUp().indexOfSelectedItem(), 2);
    sendKey(button, GDK_KEY_b);
    EXPECT_EQ(popUp().indexOfSelectedItem(), 3);
    sendKey(button, GDK_KEY_Up);
    EXPECT_EQ(popUp().indexOfSelectedItem(), 2);
    EXPECT_EQ(actions, 3);
}

}  // namespace
}  // namespace vantorel
