#include "hosts/qt/QtAccessibility.h"
#include "hosts/qt/QtInterfaceFactory.h"
#include "hosts/qt/QtPopUpButton.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QTest>

namespace vantorel {
namespace {

HostControlDescription describe(const char16_t* accessibleName)
{
    HostControlDescription description;
    description.frame = {0, 0, 100, 24};
    description.accessibleName = accessibleName;
    return description;
}

QAccessibleInterface* accessible(const HostView& view)
{
    return QAccessible::queryAccessibleInterface(widgetOf(&view));
}

class NoContent final : public HostViewContent {
    void drawRect(HostCanvas&) override {}
};

TEST(QtAccessibilityTest, APopUpIsAComboBoxWithAValueThatOpens)
{
    QtInterfaceFactory factory;
    const auto popUp = factory.makePopUpButton(describe(u"Letter case"));
    auto* interface = accessible(*popUp);
    ASSERT_NE(interface, nullptr);
    EXPECT_EQ(interface->role(), QAccessible::ComboBox);
    EXPECT_EQ(interface->text(QAccessible::Name), "Letter case");
    EXPECT_EQ(interface->text(QAccessible::Value), "") << "nothing is selected yet";
    popUp->addItemsWithTitles({u"Uppercase", u"Lowercase"});
    popUp->selectItemAtIndex(1);
    EXPECT_EQ(interface->text(QAccessible::Value), "Lowercase");
    EXPECT_TRUE(interface->state().hasPopup);

    widgetOf(popUp.get())->show();
    ASSERT_TRUE(interface->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::showMenuAction()));
    interface->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();

    widgetOf(popUp.get())->setEnabled(false);
    EXPECT_TRUE(interface->actionInterface()->actionNames().isEmpty());
}

TEST(QtAccessibilityTest, ThePopUpsTextAcceptsAnyRange)
{
    QtInterfaceFactory factory;
    const auto popUp = factory.makePopUpButton(describe(u"Letter case"));
    popUp->addItemWithTitle(u"Upper");
    const QAccessibleTextInterface* text = accessible(*popUp)->textInterface();
    ASSERT_NE(text, nullptr);
    struct Row {
        int start;
        int end;
        const char* part;
    };
    for (const Row& row : {Row{0, 5, "Upper"}, Row{1, 3, "pp"}, Row{-4, 99, "Upper"}, Row{3, 1, ""},
                           Row{99, 100, ""}}) {
        EXPECT_EQ(text->text(row.start, row.end), row.part) << row.start << " to " << row.end;
    }
    EXPECT_EQ(text->characterCount(), 5);
}

TEST(QtAccessibilityTest, OnlyAViewWithADescriptionIsAColourChooser)
{
    QtInterfaceFactory factory;
    NoContent content;
    const auto colors = factory.makeCustomView(describe(u"Colours"), content);
    const auto ground = factory.makeCustomView(describe(u"Settings"), content);
    colors->setToolTip(u"Click on color");
    std::u16string shown = u"#FF0000";
    colors->setAccessibleDescription([&] { return shown; });
    EXPECT_EQ(accessible(*colors)->role(), QAccessible::ColorChooser);
    EXPECT_EQ(accessible(*colors)->text(QAccessible::Name), "Colours");
    EXPECT_EQ(accessible(*colors)->text(QAccessible::Description), "#FF0000");
    shown = u"#00FF00";
    EXPECT_EQ(accessible(*colors)->text(QAccessible::Description), "#00FF00");
    EXPECT_EQ(accessible(*ground)->role(), QAccessible::Grouping);
    EXPECT_EQ(accessible(*ground)->text(QAccessible::Name), "Settings");
}

TEST(QtAccessibilityTest, ALabelWithItsOwnNameStillExposesItsText)
{
    QtInterfaceFactory factory;
    auto description = describe(u"Version");
    description.editable = false;
    description.title = u"Version 1";
    const auto label = factory.makeTextField(description);
    EXPECT_EQ(accessible(*label)->text(QAccessible::Name), "Version");
    EXPECT_EQ(accessible(*label)->text(QAccessible::Description), "Version 1");
    label->setStringValue(u"Version 2");
    EXPECT_EQ(accessible(*label)->text(QAccessible::Description), "Version 2");
}

TEST(QtAccessibilityTest, TogglingThroughAccessibilitySendsTheAction)
{
    QtInterfaceFactory factory;
    auto description = describe(u"Lead hex codes with #");
    using ButtonKind = HostControlDescription::ButtonKind;
    for (const auto kind : {ButtonKind::checkBox, ButtonKind::toggle}) {
        description.buttonKind = kind;
        const auto button = factory.makeButton(description);
        int actions = 0;
        button->setAction([&](HostControl&) { ++actions; });
        accessible(*button)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(actions, 1);
        EXPECT_EQ(button->state(), 1);
        button->setState(0);
        EXPECT_EQ(actions, 1) << "setting the state is not a user action";
        static_cast<QAbstractButton*>(widgetOf(button.get()))->click();
        EXPECT_EQ(actions, 2);
    }
}

TEST(QtAccessibilityTest, AViewOutsideItsSuperviewIsInvisible)
{
    QtInterfaceFactory factory;
    const auto page = factory.makeView(describe(u"Page"));
    const auto button = factory.makeButton(describe(u"More"));
    page->addSubview(*button);
    widgetOf(page.get())->show();
    EXPECT_FALSE(accessible(*button)->state().invisible);
    button->setFrameOrigin({-500, 0});
    EXPECT_TRUE(accessible(*button)->state().invisible);
    button->setFrameOrigin({-99, 0});
    EXPECT_FALSE(accessible(*button)->state().invisible);
}

TEST(QtAccessibilityTest, AParkedViewIsInvisibleWhereverItIs)
{
    QtInterfaceFactory factory;
    const auto page = factory.makeView(describe(u"Page"));
    const auto button = factory.makeButton(describe(u"More"));
    page->addSubview(*button);
    widgetOf(page.get())->show();
    button->setParked(true);
    EXPECT_TRUE(accessible(*button)->state().invisible);
    EXPECT_EQ(button->frame(), (HostRect{0, 0, 100, 24})) << "the frame stays";
    button->setFrameOrigin({10, 0});
    EXPECT_TRUE(accessible(*button)->state().invisible);
    button->setParked(false);
    EXPECT_FALSE(accessible(*button)->state().invisible);
}

}  // namespace
}  // namespace vantorel
