#include "hosts/qt-dialog/DialogPage.h"

#include "host/HostControls.h"
#include "hosts/qt/EventGuard.h"
#include "hosts/qt/TextScale.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <stdexcept>

namespace vantorel {
namespace {

/// A page with a field for the lightness of a grey, and a surface that throws when it is clicked.
class SmallPicker final : public HostColorPicker, private HostViewContent {
public:
    SmallPicker(std::uint32_t mask, HostColorPanel& panel) : HostColorPicker(mask, panel)
    {
        HostInterfaceFactory& factory = panel.desktop().interfaceFactory();
        const auto described = [](const char* name, HostRect frame) {
            HostControlDescription description;
            description.identifier = name;
            description.frame = frame;
            return description;
        };
        _view = factory.makeView(described("page", {0, 0, 200, 100}));
        _field = factory.makeTextField(described("field", {10, 60, 100, 22}));
        _surface = factory.makeCustomView(described("surface", {10, 10, 40, 40}), *this);
        _view->addSubview(*_field);
        _view->addSubview(*_surface);
        _field->setAction([this](HostControl&) {
            const std::u16string text = _field->stringValue();
            const double value = std::stod(std::string(text.begin(), text.end()));
            colorPanel().setColor(HostColor::colorWithCalibratedRed(value, value, value, 1));
        });
    }

    HostView* provideNewView(bool) override { return _view.get(); }
    [[nodiscard]] bool supportsMode(int) const override { return true; }
    [[nodiscard]] int currentMode() const override { return 0; }
    [[nodiscard]] std::u16string buttonToolTip() const override { return {}; }
    [[nodiscard]] HostSize minContentSize() const override { return {200, 100}; }
    [[nodiscard]] HostSize preferredContentSize() const override { return preferred(); }
    static HostSize& preferred()
    {
        static HostSize size{260, 300};
        return size;
    }
    void setColor(const std::optional<HostColor>&) override {}
    void viewSizeChanged(HostView*) override {}
    bool performAction(std::string_view, HostControl*) override { return false; }

private:
    void drawRect(HostCanvas&) override {}
    void mouseDown(const HostEvent&) override { throw std::runtime_error("on purpose"); }

    std::unique_ptr<HostView> _view;
    std::unique_ptr<HostTextField> _field;
    std::unique_ptr<HostCustomView> _surface;
};

HostColorPicker* createSmallPicker(std::uint32_t mask, HostColorPanel& panel, const HostBundle&)
{
    return new SmallPicker(mask, panel);
}

void destroySmallPicker(HostColorPicker* picker)
{
    delete picker;
}

class DialogPageTest : public testing::Test {
protected:
    DialogPageTest() { EventGuard::install(DialogPage::pageHasThrown); }

    void put(QColorDialog& dialog)
    {
        DialogPage::putInto(dialog, _plugin, _desktop);
        dialog.show();
    }
    static QWidget* pageOf(QColorDialog& dialog)
    {
        return dialog.findChild<QWidget*>(QStringLiteral("vantorelPage"));
    }
    static void type(QColorDialog& dialog, const char* text)
    {
        auto* field = dialog.findChild<QLineEdit*>(QStringLiteral("field"));
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, text);
    }

    const HostPlugin _description{"test", "Test", createSmallPicker, destroySmallPicker};
    const LoadedPlugin _plugin{_description, "/nowhere/test.so"};
    QtDesktop _desktop{QtLog::nowhere};
};

TEST_F(DialogPageTest, ThePageIsBesideTheControls)
{
    QColorDialog bare;
    bare.show();
    QColorDialog dialog;
    put(dialog);
    ASSERT_NE(pageOf(dialog), nullptr);
    EXPECT_GT(dialog.width(), bare.width() + 200);
    EXPECT_EQ(dialog.height(), bare.height());
    DialogPage::putInto(dialog, _plugin, _desktop);
    EXPECT_EQ(dialog.findChildren<QWidget*>(QStringLiteral("vantorelPage")).size(), 1);
}

TEST_F(DialogPageTest, ThePageHasItsPreferredSizeIfTheScreenHasRoomForIt)
{
    SmallPicker::preferred() = {250, 450};
    QColorDialog dialog;
    put(dialog);
    EXPECT_EQ(pageOf(dialog)->size(), QSize(scaled(250), scaled(450)));
    SmallPicker::preferred() = {5000, 5000};
    QColorDialog large;
    put(large);
    const QSize screen = large.screen()->availableSize();
    EXPECT_EQ(large.size(), screen);
    EXPECT_GE(pageOf(large)->width(), scaled(200));
}

TEST_F(DialogPageTest, ThePageIsBelowTheControlsOfADialogThatIsLaidOutOtherwise)
{
    QColorDialog dialog;
    delete dialog.layout();
    auto* grid = new QGridLayout(&dialog);
    auto* control = new QPushButton;
    grid->addWidget(control);
    put(dialog);
    ASSERT_NE(pageOf(dialog), nullptr);
    EXPECT_GT(pageOf(dialog)->y(), control->geometry().bottom());
}

TEST_F(DialogPageTest, ADialogWithoutALayoutStaysAsItIs)
{
    QColorDialog dialog;
    delete dialog.layout();
    put(dialog);
    EXPECT_EQ(pageOf(dialog), nullptr);
}

TEST_F(DialogPageTest, ReturnEndsTheEntryAndOkTakesWhatWasTyped)
{
    QColorDialog dialog;
    QSignalSpy selected(&dialog, &QColorDialog::colorSelected);
    put(dialog);
    type(dialog, "0.2");
    QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("field")), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.currentColor() == QColor(51, 51, 51); }));
    type(dialog, "0.4");
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    EXPECT_FALSE(dialog.isVisible());
    ASSERT_EQ(selected.size(), 1);
    EXPECT_EQ(selected[0][0].value<QColor>(), QColor(102, 102, 102));
}

TEST_F(DialogPageTest, APageThatThrowsInAnEventLeavesTheDialog)
{
    QColorDialog bare;
    bare.show();
    QColorDialog dialog;
    put(dialog);
    auto* surface = dialog.findChild<QWidget*>(QStringLiteral("surface"));
    EXPECT_NO_THROW(QTest::mouseClick(surface, Qt::LeftButton));
    EXPECT_TRUE(QTest::qWaitFor([&] { return pageOf(dialog) == nullptr; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.size() == bare.size(); }));
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(DialogPageTest, WhatThePageThrowsInAnActionEndsThere)
{
    QColorDialog dialog;
    put(dialog);
    type(dialog, "no number");
    EXPECT_NO_THROW(
        QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("field")), Qt::Key_Return));
    EXPECT_TRUE(QTest::qWaitFor([&] { return pageOf(dialog) == nullptr; }));
}

TEST_F(DialogPageTest, ADialogCanBeDestroyedAtAnyTime)
{
    auto dialog = std::make_unique<QColorDialog>();
    put(*dialog);
    const QPointer<QWidget> page = pageOf(*dialog);
    dialog.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return page == nullptr; }));
}

}  // namespace
}  // namespace vantorel
