#include "EmbeddedPageFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Chosen = RecordingDialog::Chosen;

constexpr HostColor gray(double value, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(value, value, value, alpha);
}

constexpr double roundingToBytes = 0.5 / 255;

HostColorPicker* createObedientPicker(std::uint32_t mask, HostColorPanel& panel, const HostBundle&)
{
    return new ObedientPicker(mask, panel);
}

void destroyObedientPicker(HostColorPicker* picker)
{
    delete picker;
}

class EmbeddedPageTest : public testing::Test {
protected:
    EmbeddedPageTest()
    {
        ObedientPicker::interruption() = nullptr;
        ObedientPicker::hasView() = true;
    }
    ~EmbeddedPageTest() override { ObedientPicker::interruption() = nullptr; }

    bool show(const HostColor& color = gray(0.5))
    {
        return _panel->showPage(_plugin, _holder, color);
    }
    void letTimePass()
    {
        _desktop.advance(0, [] {});
    }
    [[nodiscard]] static ObedientPicker& picker() { return *ObedientPicker::shown(); }
    void throwFrom(const std::string& place)
    {
        ObedientPicker::interruption() = [place](const std::string& function) {
            if (function == place) throw std::runtime_error("on purpose");
        };
    }

    const HostPlugin _description{"test", "Test", createObedientPicker, destroyObedientPicker};
    const LoadedPlugin _plugin{_description, "/nowhere/test.so"};
    HeadlessDesktop _desktop{{std::make_unique<MemoryFiles>(), 0.6, {}}};
    RecordingDialog _dialog;
    HostView _holder{{0, 0, 240, 300}};
    std::unique_ptr<EmbeddedPanel<QueuePanel>> _panel = std::make_unique<EmbeddedPanel<QueuePanel>>(
        _dialog, EmbeddingTraits{roundingToBytes}, _desktop);
};

TEST_F(EmbeddedPageTest, ThePageFillsItsHolderAndHasTheDialogsColor)
{
    ASSERT_TRUE(show(gray(0.25, 0.5)));
    EXPECT_EQ(picker().view().superview(), &_holder);
    EXPECT_THAT(picker().sizes, ElementsAre(HostSize{240, 300}));
    EXPECT_THAT(picker().colors, ElementsAre(gray(0.25, 0.5)));
    EXPECT_EQ(_panel->color(), gray(0.25, 0.5));
    _holder.setFrame({10, 10, 300, 400});
    _panel->page().resize();
    EXPECT_EQ(picker().view().frame(), (HostRect{0, 0, 300, 400}));
    EXPECT_EQ(picker().sizes.back(), (HostSize{300, 400}));
    letTimePass();
    EXPECT_THAT(_dialog.chosen, IsEmpty());
}

TEST_F(EmbeddedPageTest, TheDialogMakesRoomForThePage)
{
    ASSERT_TRUE(show());
    EXPECT_EQ(_dialog.wantedRoom, (std::pair{HostSize{250, 400}, HostSize{190, 117}}));
}

TEST_F(EmbeddedPageTest, ADialogThatHasNoRoomShowsNoPage)
{
    _dialog.hasRoom = false;
    EXPECT_FALSE(show());
    EXPECT_THAT(_holder.subviews(), IsEmpty());
    letTimePass();
    EXPECT_EQ(_dialog.failures, 0);
}

TEST_F(EmbeddedPageTest, ThePanelGrowsIfTheDialogCan)
{
    ASSERT_TRUE(show());
    EXPECT_EQ(_panel->size(), (HostSize{240, 300}));
    EXPECT_EQ(_panel->growPage({10, 20}), HostSize{});
    EXPECT_EQ(_panel->size(), (HostSize{240, 300}));
    _dialog.growth = [this](HostSize wanted) {
        _holder.setFrame({0, 0, 240, 300 + wanted.height});
        _panel->page().resize();
        return HostSize{0, wanted.height};
    };
    EXPECT_EQ(_panel->growPage({10, 20}), (HostSize{0, 20}));
    EXPECT_EQ(_panel->size(), (HostSize{240, 320}));
    EXPECT_EQ(picker().sizes.back(), (HostSize{240, 320}));
}

TEST_F(EmbeddedPageTest, AChosenColorGoesToPageAndDialog)
{
    ASSERT_TRUE(show());
    _panel->setColor(gray(0.75));
    EXPECT_EQ(picker().colors.back(), gray(0.75)) << "before setColor returns";
    letTimePass();
    EXPECT_THAT(_dialog.chosen, ElementsAre(Chosen{gray(0.75), true}));
    _panel->setColor(gray(0.75));
    _panel->setColor(std::nullopt);
    _panel->setColor(HostColor::patternColor());
    letTimePass();
    EXPECT_EQ(_dialog.chosen.size(), 1U);
}

TEST_F(EmbeddedPageTest, PressingOkDoesNotWaitForTheEventLoop)
{
    ASSERT_TRUE(show());
    _panel->setColor(gray(0.75));
    _panel->page().sendPendingColor();
    EXPECT_THAT(_dialog.chosen, ElementsAre(Chosen{gray(0.75), true}));
    letTimePass();
    EXPECT_EQ(_dialog.chosen.size(), 1U);
}

TEST_F(EmbeddedPageTest, TheDialogsRoundedEchoDoesNotReachThePage)
{
    ASSERT_TRUE(show());
    _dialog.reaction = [this](const HostColor&) {
        _panel->page().dialogColorDidChange(gray(26 / 255.0));
    };
    _panel->setColor(gray(0.1));
    const auto before = picker().colors.size();
    letTimePass();
    // Again, and later.
    _panel->page().dialogColorDidChange(gray(26 / 255.0));
    EXPECT_EQ(picker().colors.size(), before);
    EXPECT_EQ(_panel->color(), gray(0.1));
    _panel->page().dialogColorDidChange(gray(27 / 255.0));
    EXPECT_EQ(picker().colors.back(), gray(27 / 255.0));
    letTimePass();
    EXPECT_EQ(_dialog.chosen.size(), 1U);
}

TEST_F(EmbeddedPageTest, ThePageFollowsADialogThatTakesAnotherColor)
{
    ASSERT_TRUE(show());
    _dialog.reaction = [this](const HostColor&) {
        _panel->page().dialogColorDidChange(gray(0.875));
    };
    _panel->setColor(gray(0.1));
    letTimePass();
    EXPECT_EQ(picker().colors.back(), gray(0.875));
    EXPECT_EQ(_panel->color(), gray(0.875));
}

TEST_F(EmbeddedPageTest, AColorOfTheDialogReplacesAnOlderOneOfThePage)
{
    ASSERT_TRUE(show());
    _panel->setColor(gray(0.1));
    _panel->page().dialogColorDidChange(gray(0.2));
    letTimePass();
    EXPECT_THAT(_dialog.chosen, IsEmpty());
    EXPECT_EQ(_panel->color(), gray(0.2));
}

TEST_F(EmbeddedPageTest, TheOpacityIsTheDialogsUnlessItTakesThePages)
{
    ASSERT_TRUE(show(gray(0.5, 1)));
    _panel->setColor(gray(0.1, 0.5));
    EXPECT_EQ(_panel->color(), gray(0.1, 1));
    _panel->page().setTakesOpacity(true);
    _panel->setColor(gray(0.1, 0.5));
    letTimePass();
    EXPECT_THAT(_dialog.chosen, ElementsAre(Chosen{gray(0.1, 0.5), true}));
}

TEST_F(EmbeddedPageTest, StepsOfADragAreToldApartFromItsEnd)
{
    ASSERT_TRUE(show());
    const HostEvent dragged{HostEventType::leftMouseDragged, {}, 0};
    const HostEvent released{HostEventType::leftMouseUp, {}, 0};
    _panel->events = {dragged, released};
    // The event loop runs while the page waits.
    _panel->whileWaiting = [this] { letTimePass(); };
    for (const double value : {0.1, 0.2, 0.3}) {
        _panel->setColor(gray(value));
        if (value < 0.3) {
            static_cast<void>(_panel->nextEventMatchingMask(~0U, picker().view()));
        }
    }
    letTimePass();
    EXPECT_THAT(_dialog.chosen, ElementsAre(Chosen{gray(0.1), false}, Chosen{gray(0.2), false},
                                            Chosen{gray(0.3), true}));
}

TEST_F(EmbeddedPageTest, ADragThatEndsWhereItsLastStepWasEndsAllTheSame)
{
    ASSERT_TRUE(show());
    _panel->setColor(gray(0.1));
    static_cast<void>(_panel->nextEventMatchingMask(~0U, picker().view()));
    letTimePass();
    EXPECT_THAT(_dialog.chosen, ElementsAre(Chosen{gray(0.1), false}, Chosen{gray(0.1), true}));
    static_cast<void>(_panel->nextEventMatchingMask(~0U, picker().view()));
    letTimePass();
    EXPECT_EQ(_dialog.chosen.size(), 2U) << "a press that chooses no colour is no choice";
}

TEST_F(EmbeddedPageTest, AChangeInStepsEndsWithAFinalColor)
{
    ASSERT_TRUE(show());
    _panel->continuousChangeDidBegin();
    for (const double value : {0.1, 0.2}) {
        _panel->setColor(gray(value));
        letTimePass();
    }
    _panel->continuousChangeDidEnd();
    letTimePass();
    EXPECT_THAT(_dialog.chosen, ElementsAre(Chosen{gray(0.1), false}, Chosen{gray(0.2), false},
                                            Chosen{gray(0.2), true}));
    _panel->continuousChangeDidBegin();
    _panel->continuousChangeDidEnd();
    letTimePass();
    EXPECT_EQ(_dialog.chosen.size(), 3U);
}

TEST_F(EmbeddedPageTest, TheDialogDoesNotSeeTheBlackOfADraggedText)
{
    ASSERT_TRUE(show(gray(0.5)));
    _panel->whileWaiting = [this] { letTimePass(); };
    _panel->setColor(HostColor::blackColor());
    _panel->dragImage({}, std::string("#808080"), {}, picker().view());
    EXPECT_EQ(_panel->color(), HostColor::blackColor());
    _panel->setColor(gray(0.5));
    letTimePass();
    EXPECT_THAT(_dialog.chosen, IsEmpty());
    EXPECT_EQ(_panel->color(), gray(0.5));
}

TEST_F(EmbeddedPageTest, ADialogThatIsGoneDuringADragIsNotCalled)
{
    ASSERT_TRUE(show());
    _panel->whileWaiting = [this] {
        EXPECT_TRUE(_panel->page().isBusy());
        _panel->page().forgetDialog();
    };
    _panel->setColor(gray(0.1));
    static_cast<void>(_panel->nextEventMatchingMask(~0U, picker().view()));
    EXPECT_FALSE(_panel->page().isBusy());
    _panel->setColor(gray(0.2));
    letTimePass();
    EXPECT_EQ(_dialog.chosen.size(), 1U);
}

TEST_F(EmbeddedPageTest, ADialogMayEndThePageWhenItIsGivenAColor)
{
    ASSERT_TRUE(show());
    _dialog.reaction = [this](const HostColor&) { _panel.reset(); };
    _panel->setColor(gray(0.1));
    letTimePass();
    EXPECT_EQ(ObedientPicker::shown(), nullptr);
    EXPECT_THAT(_holder.subviews(), IsEmpty());
}

TEST_F(EmbeddedPageTest, APageIsDestroyedBeforeItsPanelIs)
{
    ASSERT_TRUE(show());
    _panel->page().close();
    EXPECT_EQ(ObedientPicker::shown(), nullptr);
    EXPECT_THAT(_holder.subviews(), IsEmpty());
    _panel->page().dialogColorDidChange(gray(0.1));
    _panel->page().resize();
    EXPECT_EQ(_panel->color(), gray(0.1));
}

TEST_F(EmbeddedPageTest, APageThatCannotBeCreatedLeavesTheHolderEmpty)
{
    ObedientPicker::hasView() = false;
    EXPECT_FALSE(show());
    EXPECT_THAT(_holder.subviews(), IsEmpty());
}

class ThrowingPageTest : public EmbeddedPageTest,
                         public testing::WithParamInterface<const char*> {};

TEST_P(ThrowingPageTest, APageThatThrowsWhileItIsCreatedIsNotShown)
{
    throwFrom(GetParam());
    EXPECT_FALSE(show());
    EXPECT_THAT(_holder.subviews(), IsEmpty());
    letTimePass();
    EXPECT_EQ(_dialog.failures, 0);
}

INSTANTIATE_TEST_SUITE_P(Functions, ThrowingPageTest,
                         testing::Values("provideNewView", "viewSizeChanged", "setColor"));

TEST_F(EmbeddedPageTest, APageThatThrowsIsTakenOutAndNotCalledAgain)
{
    ASSERT_TRUE(show());
    throwFrom("setColor");
    _panel->page().dialogColorDidChange(gray(0.1));
    EXPECT_THAT(_holder.subviews(), IsEmpty());
    EXPECT_EQ(_dialog.failures, 0);
    letTimePass();
    EXPECT_EQ(_dialog.failures, 1);
    ObedientPicker::interruption() = nullptr;
    const auto before = picker().colors.size();
    _panel->page().dialogColorDidChange(gray(0.2));
    _panel->page().resize();
    EXPECT_FALSE(_panel->page().guarded([] {}));
    EXPECT_EQ(picker().colors.size(), before);
    letTimePass();
    EXPECT_EQ(_dialog.failures, 1);
}

TEST_F(EmbeddedPageTest, WhatThePageThrowsInAnEventEndsThere)
{
    ASSERT_TRUE(show());
    EXPECT_TRUE(_panel->page().guarded([] {}));
    EXPECT_FALSE(_panel->page().guarded([] { throw std::bad_alloc(); }));
    letTimePass();
    EXPECT_EQ(_dialog.failures, 1);
}

TEST_F(EmbeddedPageTest, WhatTheDialogThrowsEndsThere)
{
    ASSERT_TRUE(show());
    _dialog.reaction = [](const HostColor&) { throw std::runtime_error("on purpose"); };
    _panel->setColor(gray(0.1));
    EXPECT_NO_THROW(letTimePass());
    EXPECT_EQ(_dialog.failures, 1);
}

}  // namespace
}  // namespace vantorel
