#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtCustomView.h"
#include "hosts/qt/QtInterfaceFactory.h"

#include <gtest/gtest.h>

#include <QTest>

namespace vantorel {
namespace {

HostControlDescription describe(const char* name, HostRect frame)
{
    HostControlDescription description;
    description.identifier = name;
    description.frame = frame;
    return description;
}

TEST(QtViewTest, FramesWithYUpAreConvertedToYDown)
{
    EXPECT_EQ(widgetGeometry({10, 20, 30, 40}, {0, 0, 100, 200}), QRect(10, 140, 30, 40));
    EXPECT_EQ(widgetGeometry({10, 20, 30, 40}, {10, 20, 100, 200}), QRect(0, 160, 30, 40));
    EXPECT_EQ(viewPoint({5, 0}, {10, 20, 100, 200}), (HostPoint{15, 220}));
    EXPECT_EQ(widgetPoint({15, 220}, {10, 20, 100, 200}), QPointF(5, 0));
}

TEST(QtViewTest, EdgesAreRoundedSoThatNeighboursMeet)
{
    const QRect left = widgetGeometry({0, 0, 33.4, 10}, {0, 0, 100, 10});
    const QRect right = widgetGeometry({33.4, 0, 33.4, 10}, {0, 0, 100, 10});
    EXPECT_EQ(left.right() + 1, right.left());
}

class UnpaintedContent final : public HostViewContent {
public:
    void drawRect(HostCanvas&) override {}
};

TEST(QtViewTest, LabelsAreReadableOnTheGroundThatAPagePaints)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(30, 30, 30)));
    UnpaintedContent content;
    QtInterfaceFactory factory;
    const auto painted = factory.makeCustomView(describe("painted", {0, 0, 100, 100}), content);
    HostControlDescription description = describe("label", {10, 10, 50, 20});
    description.editable = false;
    const auto label = factory.makeTextField(description);
    painted->addSubview(*label);
    const auto lightness = [&] {
        label->setTextColor(HostColor::blackColor());
        return widgetOf(label.get())->palette().color(QPalette::WindowText).lightness();
    };
    EXPECT_GT(lightness(), 128) << "on the theme's dark ground";
    painted->setGroundColor(HostColor::whiteColor());
    EXPECT_LT(lightness(), 128);
    EXPECT_LT(widgetOf(painted.get())->palette().color(QPalette::ButtonText).lightness(), 128);
    QApplication::setPalette(before);
}

TEST(QtViewTest, ALongTitleBeforeAControlIsWhole)
{
    QtInterfaceFactory factory;
    const auto outer = factory.makeView(describe("outer", {0, 0, 400, 100}));
    HostControlDescription description = describe("label", {200, 10, 30, 20});
    description.alignment = HostControlDescription::Alignment::right;
    description.editable = false;
    const auto label = factory.makeTextField(description);
    outer->addSubview(*label);
    const QWidget* widget = widgetOf(label.get());
    EXPECT_EQ(widget->geometry(), QRect(200, 70, 30, 20));

    label->setStringValue(u"Beim Herausziehen");
    EXPECT_GE(widget->width(), widget->sizeHint().width());
    EXPECT_EQ(widget->geometry().right(), 229) << "beside its control";
    label->setFrame({205, 10, 30, 20});
    EXPECT_EQ(widget->geometry().right(), 234);
    EXPECT_GE(widget->width(), widget->sizeHint().width());
    label->setStringValue(std::u16string(100, u'x'));
    EXPECT_EQ(widget->geometry().left(), 0) << "not outside the page";
    EXPECT_EQ(label->frame(), (HostRect{205, 10, 30, 20})) << "the page's rules do not change";
}

class Content final : public HostViewContent {
public:
    void drawRect(HostCanvas&) override {}
    [[nodiscard]] bool takesKeys() const override { return true; }
    bool keyDown(const HostKeyEvent&) override
    {
        ++_keys;
        return true;
    }

    int _keys = 0;
};

class QtCustomViewTest : public testing::Test {
protected:
    QtCustomViewTest() { widget()->show(); }
    [[nodiscard]] QWidget* widget() const { return _view.widget(); }

    Content _content;
    QtCustomView _view{describe("view", {0, 0, 50, 100}), _content};
};

TEST_F(QtCustomViewTest, ReturnPicksOnlyWhileACellIsMarked)
{
    const auto takes = [this](int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        const int before = _content._keys;
        QApplication::sendEvent(widget(), &event);
        EXPECT_EQ(event.isAccepted(), _content._keys > before);
        return event.isAccepted();
    };
    QFocusEvent click(QEvent::FocusIn, Qt::MouseFocusReason);
    QApplication::sendEvent(widget(), &click);
    EXPECT_FALSE(takes(Qt::Key_Return)) << "it ends the dialogue that the view is in";
    EXPECT_TRUE(takes(Qt::Key_Left));
    EXPECT_TRUE(takes(Qt::Key_Return));
    QTest::mouseClick(widget(), Qt::LeftButton, {}, {10, 30});
    EXPECT_FALSE(takes(Qt::Key_Return));
}

}  // namespace
}  // namespace vantorel
