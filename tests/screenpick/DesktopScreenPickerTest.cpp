#include "screenpick/DesktopScreenPicker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCoreApplication>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::ResultOf;

/// Answers on request of the test.
class FakeMethod final : public PickMethod {
public:
    explicit FakeMethod(FakeMethod** self, bool canAverage) : _canAverage(canAverage)
    {
        *self = this;
    }
    [[nodiscard]] bool canAverage() const override { return _canAverage; }
    void start(QWidget*, const PickOptions& given) override
    {
        options = given;
        ++starts;
        _isWaiting = true;
    }
    void cancel() override
    {
        ++cancels;
        _isWaiting = false;
    }
    void answer(const Outcome& outcome)
    {
        if (std::exchange(_isWaiting, false)) emit finished(outcome);
    }
    [[nodiscard]] bool isWaiting() const { return _isWaiting; }

    PickOptions options;
    int starts = 0;
    int cancels = 0;

private:
    bool _canAverage;
    bool _isWaiting = false;
};

ScreenPickResult picked(const HostColor& color)
{
    return {.outcome = ScreenPickResult::Outcome::picked, .color = color};
}

/// What a result says where nothing can be picked, in English.
std::string reasonOf(const ScreenPickResult& result)
{
    return result.outcome == ScreenPickResult::Outcome::notPossible ? english(result.reason) : "";
}

class DesktopScreenPickerTest : public testing::Test {
protected:
    DesktopScreenPickerTest()
    {
        DesktopScreenPicker::Methods methods;
        methods.push_back(std::make_unique<FakeMethod>(&_portal, false));
        methods.push_back(std::make_unique<FakeMethod>(&_magnifier, true));
        _picker = std::make_unique<DesktopScreenPicker>(std::move(methods));
    }

    void start()
    {
        _picker->start(nullptr, {}, [this](const ScreenPickResult& r) { _results.push_back(r); });
    }
    const std::vector<ScreenPickResult>& results()
    {
        QCoreApplication::processEvents();
        return _results;
    }

    FakeMethod* _portal = nullptr;
    FakeMethod* _magnifier = nullptr;
    std::unique_ptr<DesktopScreenPicker> _picker;
    std::vector<ScreenPickResult> _results;
};

const HostColor orange = HostColor::colorWithCalibratedRed(1, 0.5, 0, 1);
const PickMethod::Failure noPortal{phrase("the desktop portal has no PickColor")};
const PickMethod::Failure noDisplay{phrase("there is no X11 display")};

TEST_F(DesktopScreenPickerTest, stopsAtTheFirstMethodThatPicks)
{
    start();
    EXPECT_TRUE(_picker->isPicking());
    _portal->answer(orange);
    EXPECT_FALSE(_picker->isPicking());
    EXPECT_THAT(_results, ElementsAre()) << "answers come from the event loop";
    EXPECT_THAT(results(), ElementsAre(picked(orange)));
    EXPECT_EQ(_magnifier->starts, 0);
}

TEST_F(DesktopScreenPickerTest, triesTheNextMethodWhenOneFails)
{
    start();
    _portal->answer(noPortal);
    EXPECT_TRUE(_picker->isPicking());
    _magnifier->answer(orange);
    EXPECT_THAT(results(), ElementsAre(picked(orange)));
}

TEST_F(DesktopScreenPickerTest, triesNoOtherMethodWhenTheUserCancels)
{
    start();
    _portal->answer(PickMethod::CancelledByUser{});
    EXPECT_THAT(results(), ElementsAre(ScreenPickResult{}));
    EXPECT_EQ(_magnifier->starts, 0);
}

TEST_F(DesktopScreenPickerTest, reportsInOneSentenceWhatIsMissing)
{
    start();
    _portal->answer(noPortal);
    _magnifier->answer(noDisplay);
    const auto sentence = ResultOf(
        reasonOf,
        "this desktop offers no way to pick a colour: the desktop portal has no PickColor and "
        "there is no X11 display");
    EXPECT_THAT(results(), ElementsAre(sentence));

    start();
    _portal->answer(noPortal);
    _magnifier->answer(noDisplay);
    EXPECT_THAT(results(), ElementsAre(sentence, sentence)) << "earlier reasons are not repeated";
}

TEST_F(DesktopScreenPickerTest, cancelsTheActiveMethod)
{
    start();
    _portal->answer(noPortal);
    _picker->cancel();
    EXPECT_FALSE(_picker->isPicking());
    EXPECT_EQ(_magnifier->cancels, 1);
    EXPECT_EQ(_portal->cancels, 0);
    EXPECT_THAT(results(), ElementsAre(ScreenPickResult{}));
    _picker->cancel();
    EXPECT_THAT(results(), ElementsAre(ScreenPickResult{}));
}

TEST_F(DesktopScreenPickerTest, aSecondStartCancelsTheFirstAndRestartsWithTheFirstMethod)
{
    start();
    _portal->answer(noPortal);
    start();
    EXPECT_EQ(_magnifier->cancels, 1);
    EXPECT_TRUE(_portal->isWaiting());
    _portal->answer(orange);
    EXPECT_THAT(results(), ElementsAre(ScreenPickResult{}, picked(orange)));
}

TEST_F(DesktopScreenPickerTest, canBeRestartedFromItsCallback)
{
    _picker->start(nullptr, {}, [this](const ScreenPickResult&) { start(); });
    _portal->answer(PickMethod::CancelledByUser{});
    EXPECT_THAT(results(), ElementsAre());
    EXPECT_TRUE(_picker->isPicking());
    _portal->answer(orange);
    EXPECT_THAT(results(), ElementsAre(picked(orange)));
}

TEST_F(DesktopScreenPickerTest, canBeDestroyedFromItsCallback)
{
    _picker->start(nullptr, {}, [this](const ScreenPickResult&) { _picker.reset(); });
    _portal->answer(orange);
    QCoreApplication::processEvents();
    EXPECT_EQ(_picker, nullptr);
}

TEST_F(DesktopScreenPickerTest, reportsNoResultOnceDestroyed)
{
    start();
    _portal->answer(orange);
    _picker.reset();
    EXPECT_THAT(results(), ElementsAre());
}

TEST_F(DesktopScreenPickerTest, AnAverageIsLeftToAMethodThatCanTakeIt)
{
    _picker->start(nullptr, {.averagedSide = 5},
                   [this](const ScreenPickResult& r) { _results.push_back(r); });
    EXPECT_EQ(_portal->starts, 0);
    EXPECT_EQ(_magnifier->options.averagedSide, 5);
    _magnifier->answer(HostColor::whiteColor());
    EXPECT_THAT(results(), ElementsAre(picked(HostColor::whiteColor())));
}

TEST_F(DesktopScreenPickerTest, NamesLettersAndManyPicksAreLeftToTheOwnMagnifier)
{
    PickOptions named;
    named.nameOf = [](const HostColor&) { return std::u16string(); };
    PickOptions byLetter;
    byLetter.picksByLetter = [](char) { return true; };
    PickOptions many;
    many.goesOn = true;
    int starts = 0;
    for (const PickOptions& options : {named, byLetter, many}) {
        _picker->start(nullptr, options, [](const ScreenPickResult&) {});
        EXPECT_EQ(_magnifier->starts, ++starts);
    }
    EXPECT_EQ(_portal->starts, 0);
}

TEST_F(DesktopScreenPickerTest, ReportsThatAnAverageWasNotPossible)
{
    _picker->start(nullptr, {.averagedSide = 3},
                   [this](const ScreenPickResult& r) { _results.push_back(r); });
    _magnifier->answer(PickMethod::Failure{phrase("there is no X11 display")});
    _portal->answer(HostColor::whiteColor());
    EXPECT_THAT(results(),
                ElementsAre(ScreenPickResult{.outcome = ScreenPickResult::Outcome::picked,
                                             .color = HostColor::whiteColor(),
                                             .lacksAverage = true}));
}

TEST_F(DesktopScreenPickerTest, ReportsThatOnlyOneWasPicked)
{
    PickOptions many;
    many.goesOn = true;
    const auto start = [&] {
        _picker->start(nullptr, many, [this](const ScreenPickResult& r) { _results.push_back(r); });
    };
    start();
    _magnifier->answer(PickMethod::Failure{phrase("there is no X11 display")});
    _portal->answer(HostColor::whiteColor());
    start();
    _magnifier->answer(HostColor::blackColor());
    EXPECT_THAT(results(),
                ElementsAre(ScreenPickResult{.outcome = ScreenPickResult::Outcome::picked,
                                             .color = HostColor::whiteColor(),
                                             .endsAfterOne = true},
                            ScreenPickResult{.outcome = ScreenPickResult::Outcome::picked,
                                             .color = HostColor::blackColor()}));
}

TEST_F(DesktopScreenPickerTest, PassesOnWhatIsPickedOnTheWay)
{
    std::vector<HostColor> colors;
    PickOptions options;
    options.pickedOnTheWay = [&](const HostColor& color) { colors.push_back(color); };
    _picker->start(nullptr, options, [this](const ScreenPickResult& r) { _results.push_back(r); });
    emit _portal->pickedOnTheWay(HostColor::whiteColor());
    EXPECT_THAT(colors, ElementsAre(HostColor::whiteColor()));
    EXPECT_THAT(results(), ElementsAre());
    // A pick without a receiver.
    start();
    emit _portal->pickedOnTheWay(HostColor::blackColor());
    EXPECT_EQ(colors.size(), 1U);
}

TEST(makeScreenPicker, reportsWhatIsMissingWithoutBusAndScreen)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    const auto picker = makeScreenPicker();
    std::vector<ScreenPickResult> results;
    picker->start(nullptr, {}, [&](const ScreenPickResult& result) { results.push_back(result); });
    for (int i = 0; i < 1000 && results.empty(); ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    EXPECT_THAT(results, ElementsAre(ResultOf(reasonOf,
                                              "this desktop offers no way to pick a colour: there "
                                              "is no session bus and there is no X11 display")));
}

}  // namespace
}  // namespace vantorel
