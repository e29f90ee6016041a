#include "ConformanceTest.h"

namespace vantorel {
namespace {

using testing::ElementsAre;

class DesktopConformance : public ConformanceTest {
protected:
    HostDesktop& desktop = host->desktop();
};

TEST_F(DesktopConformance, TimersFireOnceInTheOrderInWhichTheyAreDue)
{
    std::vector<int> fired;
    const auto late = desktop.scheduleTimer(0.03, [&] { fired.push_back(3); });
    const auto early = desktop.scheduleTimer(0.001, [&] { fired.push_back(1); });
    EXPECT_TRUE(fired.empty()) << "not before the program runs on";
    EXPECT_TRUE(host->runUntil([&] { return fired.size() == 2; }));
    EXPECT_THAT(fired, ElementsAre(1, 3));
    host->handleEvents();
    EXPECT_EQ(fired.size(), 2U);
}

TEST_F(DesktopConformance, ATimerThatIsDestroyedDoesNotFire)
{
    bool cancelledFired = false;
    bool laterFired = false;
    auto cancelled = desktop.scheduleTimer(0, [&] { cancelledFired = true; });
    const auto later = desktop.scheduleTimer(0.01, [&] { laterFired = true; });
    cancelled.reset();
    EXPECT_TRUE(host->runUntil([&] { return laterFired; }));
    EXPECT_FALSE(cancelledFired);
}

TEST_F(DesktopConformance, ATimerMayDestroyItselfAndScheduleAnother)
{
    int fired = 0;
    std::unique_ptr<HostTimer> timer;
    timer = desktop.scheduleTimer(0, [&] {
        ++fired;
        timer = desktop.scheduleTimer(0, [&] {
            ++fired;
            timer.reset();
        });
    });
    EXPECT_TRUE(host->runUntil([&] { return fired == 2; }));
    host->handleEvents();
    EXPECT_EQ(fired, 2);
}

TEST_F(DesktopConformance, ATextIsAsWideAsItsWidestLineAndAsHighAsItsLines)
{
    const auto size = [this](const char16_t* text, double points) {
        return desktop.sizeOfText({text, points});
    };
    const HostSize one = size(u"wide", 11);
    EXPECT_GT(one.width, 4);
    EXPECT_GE(one.height, 11);
    EXPECT_GT(size(u"wide", 22).width, 1.5 * one.width);
    EXPECT_GT(size(u"widewide", 11).width, 1.5 * one.width);
    const HostSize two = size(u"wide\nw", 11);
    EXPECT_NEAR(two.width, one.width, 1);
    EXPECT_GT(two.height, 1.5 * one.height);
    EXPECT_EQ(size(u"", 11).width, 0);
}

TEST_F(DesktopConformance, BoldTextsAreMeasuredAsTheyAreDrawn)
{
    EXPECT_GT(desktop.sizeOfText({.string = u"wide wide", .isBold = true}).width,
              desktop.sizeOfText({.string = u"wide wide"}).width);
}

TEST_F(DesktopConformance, AnyTextIsCopied)
{
    for (const std::u16string text : {u"--a: #3b82f6;\n--b: \u00E4\U0001F3A8;\n", u"<b>"}) {
        host->panel().copyText(text);
        EXPECT_EQ(host->textOnClipboard(), text);
    }
}

TEST_F(DesktopConformance, ATextWithoutTranslationIsItself)
{
    EXPECT_EQ(desktop.localizedString(u"NoSuchKey <b> \u00E4"), u"NoSuchKey <b> \u00E4");
}

}  // namespace
}  // namespace vantorel
