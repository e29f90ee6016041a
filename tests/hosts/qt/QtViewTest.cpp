#include "hosts/qt/QtCanvas.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtCustomView.h"
#include "hosts/qt/QtInterfaceFactory.h"

#include <gtest/gtest.h>

#include <QMouseEvent>
#include <QTest>
#include <QTimer>

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

TEST(QtViewTest, WidgetsFollowTheirViews)
{
    QtInterfaceFactory factory;
    const auto outer = factory.makeView(describe("outer", {0, 0, 100, 100}));
    const auto inner = factory.makeView(describe("inner", {10, 10, 20, 20}));
    outer->addSubview(*inner);
    EXPECT_EQ(widgetOf(inner.get())->parentWidget(), widgetOf(outer.get()));
    EXPECT_EQ(widgetOf(inner.get())->geometry(), QRect(10, 70, 20, 20));
    outer->setFrame({0, 0, 100, 150});
    EXPECT_EQ(widgetOf(inner.get())->geometry(), QRect(10, 120, 20, 20))
        << "what keeps its frame keeps its distance from the bottom";
    inner->removeFromSuperview();
    EXPECT_EQ(widgetOf(inner.get())->parentWidget(), nullptr);
    EXPECT_TRUE(widgetOf(inner.get())->isHidden());
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
    void drawRect(HostCanvas& canvas) override
    {
        HostBezierPath path;
        path.appendBezierPathWithRect({0, 0, 50, 10});  // the lowest tenth of the view
        canvas.fill(path, HostColor::colorWithCalibratedRed(1, 0, 0, 1));
    }
    void mouseDown(const HostEvent& event) override
    {
        _down = event;
        if (_onDown) _onDown();
    }
    void mouseDragged(const HostEvent&) override { ++_drags; }
    void mouseEntered(const HostEvent&) override { _calls += "entered "; }
    void mouseExited(const HostEvent&) override { _calls += "exited "; }
    void mouseMoved(const HostEvent&) override { _calls += "moved "; }

    [[nodiscard]] bool takesKeys() const override { return true; }
    bool keyDown(const HostKeyEvent&) override
    {
        ++_keys;
        return true;
    }

    HostEvent _down;
    std::function<void()> _onDown;
    int _keys = 0;
    int _drags = 0;
    std::string _calls;
};

class QtCustomViewTest : public testing::Test {
protected:
    QtCustomViewTest()
    {
        widget()->resize(50, 100);
        widget()->show();
    }
    [[nodiscard]] QWidget* widget() const { return _view->widget(); }
    void send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(type, at, widget()->mapToGlobal(at), button, buttons, modifiers);
        QApplication::sendEvent(widget(), &event);
    }
    void press(QPoint at) { send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton); }
    void drag(QPoint at, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, modifiers);
    }
    void release(QPoint at) { send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton); }

    Content _content;
    std::unique_ptr<QtCustomView> _view =
        std::make_unique<QtCustomView>(describe("view", {0, 0, 50, 100}), _content);
};

constexpr std::uint32_t dragOrUp = 68;

TEST_F(QtCustomViewTest, PaintsWithYUp)
{
    const QImage image = widget()->grab().toImage();
    EXPECT_EQ(image.pixelColor(25, 95), QColor(Qt::red));
    EXPECT_NE(image.pixelColor(25, 85), QColor(Qt::red));
}

TEST_F(QtCustomViewTest, MouseEventsAreConvertedToHostPointsAndModifiers)
{
    send(QEvent::MouseButtonPress, {10, 30}, Qt::LeftButton, Qt::LeftButton,
         Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(_content._down.location, (HostPoint{10, 70}));
    EXPECT_EQ(_content._down.modifierFlags, shiftModifierFlag | controlModifierFlag);
    drag({11, 30});
    release({11, 30});
    drag({12, 30});
    EXPECT_EQ(_content._drags, 1) << "a drag counts between press and release";
}

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
    press({10, 30});
    release({10, 30});
    EXPECT_FALSE(takes(Qt::Key_Return));
}

TEST_F(QtCustomViewTest, ATrackingLoopReceivesDragsInOrderWhileTheProgramRuns)
{
    std::vector<HostEvent> taken;
    int ticks = 0;
    QTimer ticking;
    QObject::connect(&ticking, &QTimer::timeout, [&] { ++ticks; });
    ticking.start(1);
    _content._onDown = [&] {
        // One after the other: on a busy machine two timers would come in one go.
        QTimer::singleShot(10, [&] {
            drag({5, 90}, Qt::ShiftModifier);
            QTimer::singleShot(10, [&] {
                // Two moves in one go: only the latest counts, and the release is not lost.
                drag({5, 80});
                drag({5, 70});
                release({5, 60});
            });
        });
        do {
            taken.push_back(_view->nextMouseEvent(dragOrUp));
        } while (taken.back().type != HostEventType::leftMouseUp);
    };
    press({5, 95});
    ASSERT_EQ(taken.size(), 3U);
    EXPECT_EQ(taken[0].location, (HostPoint{5, 10}));
    EXPECT_EQ(taken[0].modifierFlags, shiftModifierFlag);
    EXPECT_EQ(taken[1].location, (HostPoint{5, 30}));
    EXPECT_EQ(taken[2].location, (HostPoint{5, 40}));
    EXPECT_GT(ticks, 2);
    EXPECT_EQ(_content._drags, 0);
}

TEST_F(QtCustomViewTest, ATrackingLoopEndsWhenTheViewIsHidden)
{
    HostEvent last;
    _content._onDown = [&] {
        QTimer::singleShot(5, [&] { widget()->hide(); });
        last = _view->nextMouseEvent(dragOrUp);
    };
    press({5, 95});
    EXPECT_EQ(last.type, HostEventType::leftMouseUp);
    EXPECT_EQ(last.location, (HostPoint{5, 5}));
}

TEST_F(QtCustomViewTest, ATrackingLoopEndsWhenTheViewIsDestroyed)
{
    HostEvent last;
    _content._onDown = [&] {
        QtCustomView* view = _view.get();
        QTimer::singleShot(5, [&] { delete widget(); });
        last = view->nextMouseEvent(dragOrUp);
    };
    press({5, 95});
    EXPECT_EQ(last.type, HostEventType::leftMouseUp);
}

TEST_F(QtCustomViewTest, MovesCrossTheTrackingRectangleOnce)
{
    const auto move = [&](QPoint at) { send(QEvent::MouseMove, at, Qt::NoButton, Qt::NoButton); };
    move({5, 5});
    const auto tag = _view->addTrackingRect({0, 0, 50, 50}, false);
    move({5, 60});
    move({5, 61});
    _view->setAcceptsMouseMoved(true);
    move({5, 62});
    move({5, 20});
    EXPECT_EQ(_content._calls, "entered moved exited ");
    _view->removeTrackingRect(tag);
    move({5, 60});
    EXPECT_EQ(_content._calls, "entered moved exited ");
}

}  // namespace
}  // namespace vantorel
