#include "screenpick/PortalPickMethod.h"

#include "PortalStandIn.h"
#include "PrivateBus.h"
#include "screenpick/DesktopScreenPicker.h"

#include <gtest/gtest.h>

#include <QDBusArgument>
#include <QGuiApplication>
#include <QTest>
#include <QWidget>

#include <limits>

namespace vantorel {
namespace {

using Failure = PickMethod::Failure;

const Phrase noPickColor = phrase("the desktop portal has no PickColor");
const Phrase couldNot = phrase("the desktop portal could not pick a colour");

HostColor opaque(double red, double green, double blue)
{
    return HostColor::colorWithCalibratedRed(red, green, blue, 1);
}

class PortalPickMethodTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(_bus.isRunning()) << "is dbus-daemon installed?";
        QObject::connect(_method.get(), &PickMethod::finished,
                         [this](const PickMethod::Outcome& outcome) {
                             _outcome = outcome;
                             ++_answers;
                         });
    }

    void startPortal() { _portal.emplace(_bus.connect(portalConnection)); }
    void killPortal()
    {
        _portal.reset();  // it holds the connection too
        _bus.disconnect(portalConnection);
    }

    void pick(QWidget* parent = nullptr) { _method->start(parent, {}); }
    [[nodiscard]] bool portalIsPicking()
    {
        return QTest::qWaitFor([this] { return _portal->calls == 1; });
    }
    void waitForAnswer()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return _answers > 0; }, 20000));
    }
    /// Waits long enough to see that no answer comes.
    void waitInVain() { QTest::qWait(200); }

    /// Starts a pick and lets the portal answer it.
    void pickWithAnswer(const QVariantList& response)
    {
        pick();
        ASSERT_TRUE(portalIsPicking());
        _portal->respond(response);
        waitForAnswer();
    }

    const QString portalConnection = QStringLiteral("portal");
    PrivateBus _bus;
    std::optional<PortalStandIn> _portal;
    QDBusConnection _client = _bus.connect(QStringLiteral("client"));
    std::unique_ptr<PortalPickMethod> _method =
        std::make_unique<PortalPickMethod>([this] { return _client; });
    std::optional<PickMethod::Outcome> _outcome;
    int _answers = 0;
};

TEST_F(PortalPickMethodTest, takesTheColourFromEveryVersionSince2)
{
    startPortal();
    for (const uint version : {2U, 3U, 40U}) {
        _portal->version = version;
        _portal->calls = 0;
        _answers = 0;
        pickWithAnswer({0U, PortalStandIn::color(0.25, 1.0 / 3, 1)});
        EXPECT_EQ(_outcome, PickMethod::Outcome(opaque(0.25, 1.0 / 3, 1))) << version;
        EXPECT_EQ(_answers, 1);
    }
}

TEST_F(PortalPickMethodTest, reportsThatTheUserCancelled)
{
    startPortal();
    pickWithAnswer({1U, QVariantMap{}});
    EXPECT_EQ(_outcome, PickMethod::Outcome(PickMethod::CancelledByUser{}));
}

TEST_F(PortalPickMethodTest, clampsChannelsOutsideTheRange)
{
    startPortal();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    pickWithAnswer({0U, PortalStandIn::color(-0.5, 1.0001, infinity)});
    EXPECT_EQ(_outcome, PickMethod::Outcome(opaque(0, 1, 1)));
}

TEST_F(PortalPickMethodTest, rejectsAnAnswerThatIsNotAColour)
{
    const QString key = QStringLiteral("color");
    QDBusArgument two;
    two.beginStructure();
    two << 0.5 << 0.5;
    two.endStructure();
    const QVariantMap color = PortalStandIn::color(0, 0, 0);
    const QVariantList answers[] = {
        {2U, QVariantMap{}},
        {2U, color},
        {77U, color},
        {0U, QVariantMap{}},
        {0U, QVariantMap{{key, QStringLiteral("#ff0000")}}},
        {0U, QVariantMap{{key, QVariant::fromValue(two)}}},
        {0U, PortalStandIn::color(0, std::numeric_limits<double>::quiet_NaN(), 0)},
        {QStringLiteral("0"), color},
        {0U},
        {},
    };
    startPortal();
    for (const QVariantList& answer : answers) {
        _portal->calls = 0;
        _outcome.reset();
        _answers = 0;
        pickWithAnswer(answer);
        EXPECT_EQ(_outcome, PickMethod::Outcome(Failure{couldNot}))
            << testing::PrintToString(answer.size());
    }
}

TEST_F(PortalPickMethodTest, reportsAPortalThatCannotPick)
{
    const std::optional<uint> versions[] = {std::nullopt, 0U, 1U};
    startPortal();
    for (const auto version : versions) {
        _portal->version = version;
        _answers = 0;
        pick();
        waitForAnswer();
        EXPECT_EQ(_outcome, PickMethod::Outcome(Failure{noPickColor}));
    }
    EXPECT_EQ(_portal->calls, 0);
}

TEST_F(PortalPickMethodTest, reportsWhyTheCallFailed)
{
    const struct {
        QString error;
        Phrase clause;
    } rows[] = {
        {QStringLiteral("org.freedesktop.DBus.Error.UnknownMethod"), noPickColor},
        {QStringLiteral("org.freedesktop.DBus.Error.AccessDenied"), couldNot},
        {QStringLiteral("org.freedesktop.portal.Error.NotAllowed"), couldNot},
    };
    startPortal();
    for (const auto& row : rows) {
        _portal->errorOfPickColor = row.error;
        _answers = 0;
        pick();
        waitForAnswer();
        EXPECT_EQ(_outcome, PickMethod::Outcome(Failure{row.clause})) << row.error.toStdString();
    }
}

TEST_F(PortalPickMethodTest, reportsThatThereIsNoPortal)
{
    pick();
    waitForAnswer();
    EXPECT_EQ(_outcome, PickMethod::Outcome(Failure{phrase("there is no desktop portal")}));
}

TEST_F(PortalPickMethodTest, reportsThatThereIsNoBus)
{
    _client = QDBusConnection(QStringLiteral("never connected"));
    pick();
    EXPECT_EQ(_answers, 0) << "answers come from the event loop";
    waitForAnswer();
    EXPECT_EQ(_outcome, PickMethod::Outcome(Failure{phrase("there is no session bus")}));
}

TEST_F(PortalPickMethodTest, timesOutOnAPortalThatHangs)
{
    startPortal();
    _portal->isSilent = true;
    pick();
    waitForAnswer();
    EXPECT_EQ(_outcome, PickMethod::Outcome(Failure{phrase("the desktop portal does not answer")}));
}

TEST_F(PortalPickMethodTest, acceptsAnAnswerBeforeTheCallReturns)
{
    startPortal();
    _portal->answersBeforeItReturns = true;
    pick();
    waitForAnswer();
    EXPECT_EQ(_outcome, PickMethod::Outcome(opaque(0, 1, 0)));
}

TEST_F(PortalPickMethodTest, acceptsAPortalThatChoosesItsOwnHandles)
{
    startPortal();
    _portal->makesUpItsHandles = true;
    pick();
    ASSERT_TRUE(portalIsPicking());
    QTest::qWait(50);
    _portal->respond(0, PortalStandIn::color(1, 0, 0));
    waitForAnswer();
    EXPECT_EQ(_outcome, PickMethod::Outcome(opaque(1, 0, 0)));
}

TEST_F(PortalPickMethodTest, noticesThatThePortalExitsDuringAPick)
{
    startPortal();
    pick();
    ASSERT_TRUE(portalIsPicking());
    killPortal();
    waitForAnswer();
    EXPECT_EQ(_outcome, PickMethod::Outcome(Failure{phrase("the desktop portal has gone")}));
    waitInVain();
    EXPECT_EQ(_answers, 1);
}

TEST_F(PortalPickMethodTest, noticesThatTheBusExitsDuringAPick)
{
    startPortal();
    pick();
    ASSERT_TRUE(portalIsPicking());
    waitInVain();
    _bus.stop();
    waitForAnswer();
    EXPECT_EQ(_outcome, PickMethod::Outcome(Failure{phrase("the session bus has gone")}));
}

TEST_F(PortalPickMethodTest, closesTheRequestOfACancelledPick)
{
    startPortal();
    pick();
    ASSERT_TRUE(portalIsPicking());
    QTest::qWait(50);
    _method->cancel();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !_portal->closedHandles.isEmpty(); }));
    _method->cancel();
    _portal->respond(0, PortalStandIn::color(1, 0, 0));
    waitInVain();
    EXPECT_EQ(_portal->closedHandles, QStringList{_portal->handle});
    EXPECT_EQ(_answers, 0);
}

TEST_F(PortalPickMethodTest, closesTheRequestOfAPickCancelledBeforeItHadAHandle)
{
    startPortal();
    _portal->holdsHandleBack = true;
    _portal->makesUpItsHandles = true;
    pick();
    ASSERT_TRUE(portalIsPicking());
    _method.reset();
    waitInVain();
    EXPECT_EQ(_portal->closedHandles, QStringList{});
    _portal->returnHandle();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !_portal->closedHandles.isEmpty(); }));
    EXPECT_EQ(_portal->closedHandles, QStringList{_portal->handle});
    EXPECT_EQ(_answers, 0);
}

TEST_F(PortalPickMethodTest, makesNoCallsAfterACancelledPick)
{
    startPortal();
    pick();
    _method->cancel();
    waitInVain();
    EXPECT_EQ(_portal->calls, 0);
    EXPECT_EQ(_answers, 0);
}

TEST_F(PortalPickMethodTest, doesNotCloseAFinishedRequest)
{
    startPortal();
    pickWithAnswer({1U, QVariantMap{}});
    _method->cancel();
    waitInVain();
    EXPECT_EQ(_portal->closedHandles, QStringList{});
}

TEST_F(PortalPickMethodTest, aSecondPickCancelsTheFirstAndGetsItsOwnAnswer)
{
    startPortal();
    DesktopScreenPicker::Methods methods;
    methods.push_back(std::move(_method));
    DesktopScreenPicker picker(std::move(methods));
    std::vector<ScreenPickResult> first;
    std::vector<ScreenPickResult> second;
    picker.start(nullptr, {}, [&](const ScreenPickResult& result) { first.push_back(result); });
    ASSERT_TRUE(portalIsPicking());
    QTest::qWait(50);
    const QString firstHandle = _portal->handle;
    picker.start(nullptr, {}, [&](const ScreenPickResult& result) { second.push_back(result); });
    ASSERT_TRUE(QTest::qWaitFor([this] { return _portal->calls == 2; }));
    EXPECT_EQ(_portal->closedHandles, QStringList{firstHandle});
    EXPECT_NE(_portal->handle, firstHandle);
    _portal->respond(0, PortalStandIn::color(0, 0, 1));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !second.empty(); }));
    EXPECT_EQ(first, std::vector{ScreenPickResult{}});
    EXPECT_EQ(second, (std::vector{ScreenPickResult{.outcome = ScreenPickResult::Outcome::picked,
                                                    .color = opaque(0, 0, 1)}}));
}

TEST_F(PortalPickMethodTest, namesTheParentWindowWhereItHasAName)
{
    startPortal();
    QWidget window;
    window.show();
    pick(&window);
    ASSERT_TRUE(portalIsPicking());
    const bool onX11 = QGuiApplication::platformName() == QLatin1String("xcb");
    EXPECT_EQ(_portal->parentWindow,
              onX11 ? QStringLiteral("x11:%1").arg(window.winId(), 0, 16) : QString());
}

}  // namespace
}  // namespace vantorel
