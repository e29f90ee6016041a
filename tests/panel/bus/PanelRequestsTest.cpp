#include "PanelWindowFixture.h"
#include "panel/bus/PanelNames.h"
#include "panel/bus/PanelRequests.h"

#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>

namespace vantorel {
namespace {

using Kind = PanelError::Kind;
using Outcome = ScreenPickResult::Outcome;

/// Answers on request of the test.
class HeldScreenPicker final : public ScreenPicker {
public:
    void start(QWidget*, const PickOptions&, Callback done) override
    {
        cancel();
        _done = std::move(done);
    }
    void cancel() override { answer({}); }
    [[nodiscard]] bool isPicking() const override { return _done != nullptr; }
    void answer(const ScreenPickResult& result)
    {
        if (const auto done = std::exchange(_done, nullptr)) done(result);
    }

private:
    Callback _done;
};

class PanelRequestsTest : public PanelWindowFixture {
protected:
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        _requests = std::make_unique<PanelRequests>(*_window);
    }
    std::unique_ptr<ScreenPicker> screenPicker() override
    {
        auto picker = std::make_unique<HeldScreenPicker>();
        _picker = picker.get();
        return picker;
    }
    PanelRequests::Done keep()
    {
        return [this](const PanelAnswer& answer) { _answers.push_back(answer); };
    }

    PanelOrder::Say sayInto()
    {
        return [this](const QString& text) { _said.append(text); };
    }

    HeldScreenPicker* _picker = nullptr;
    std::unique_ptr<PanelRequests> _requests;
    std::vector<PanelAnswer> _answers;
    QStringList _said;
};

TEST_F(PanelRequestsTest, APickedColourIsSaidBeforeItIsCopied)
{
    QStringList saidBefore;
    QObject::connect(QApplication::clipboard(), &QClipboard::dataChanged, _requests.get(),
                     [&] { saidBefore = _said; });
    _requests->carryOut({PanelOrder::Step::pickAndCopy, {}, {}, {}}, sayInto(), keep());
    _picker->answer({.outcome = Outcome::picked});
    EXPECT_EQ(saidBefore, QStringList{QStringLiteral("#000000")});
    EXPECT_EQ(_said, saidBefore);
    EXPECT_EQ(_answers, std::vector<PanelAnswer>{QStringLiteral("#000000")});
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("#000000"));
}

TEST_F(PanelRequestsTest, APickReturnsThePickedColour)
{
    _requests->pick(false, keep());
    EXPECT_TRUE(_answers.empty());
    _picker->answer({.outcome = Outcome::picked});
    EXPECT_EQ(_answers, std::vector<PanelAnswer>{QStringLiteral("#000000")});
    EXPECT_EQ(_requests->color(), "#000000");
}

TEST_F(PanelRequestsTest, ASecondPickCancelsTheFirst)
{
    _requests->pick(false, keep());
    _requests->pick(false, keep());
    ASSERT_EQ(_answers.size(), 1U);
    EXPECT_EQ(_answers[0].error().kind, Kind::cancelled);
    _requests->cancelPick();
    ASSERT_EQ(_answers.size(), 2U);
}

TEST_F(PanelRequestsTest, AnImpossiblePickSaysWhy)
{
    _requests->pick(true, keep());
    _picker->answer({.outcome = Outcome::notPossible, .reason = {phrase("there is no screen")}});
    const PanelError expected{Kind::notPossible, {phrase("there is no screen")}};
    EXPECT_EQ(_answers, std::vector<PanelAnswer>{expected});
}

TEST_F(PanelRequestsTest, ARequestSetsTheColourBeforeItsStep)
{
    _requests->carryOut({PanelOrder::Step::copy, "lime", "HSL (CSS)", {}}, sayInto(), keep());
    EXPECT_EQ(_answers, std::vector<PanelAnswer>{QStringLiteral("hsl(120 100% 50%)")});
}

TEST_F(PanelRequestsTest, ARequestWithAnInvalidColourIsRejectedWhole)
{
    _requests->carryOut({PanelOrder::Step::pick, "nonsense", {}, {}}, sayInto(), keep());
    ASSERT_EQ(_answers.size(), 1U);
    EXPECT_EQ(_answers[0].error().kind, Kind::notAColor);
    EXPECT_FALSE(_picker->isPicking());
}

TEST_F(PanelRequestsTest, APanelWithoutAWindowExitsOnceEveryRequestIsAnswered)
{
    QSignalSpy nothingLeft(_requests.get(), &PanelRequests::nothingLeft);
    _requests->pick(false, keep());
    _picker->cancel();
    EXPECT_EQ(nothingLeft.count(), 0) << "the window is shown";
    _window->hide();
    _requests->pick(false, keep());
    _requests->pick(false, keep());
    EXPECT_EQ(nothingLeft.count(), 0) << "a pick is under way";
    _picker->cancel();
    EXPECT_EQ(nothingLeft.count(), 1);
}

TEST(PanelNamesTest, EveryErrorIsReadBackFromItsName)
{
    for (Kind kind : {Kind::notAColor, Kind::noSuchForm, Kind::cancelled, Kind::notPossible})
        EXPECT_EQ(errorKindFor(errorNameFor(kind)), kind);
    EXPECT_EQ(errorNameFor(Kind::notAColor), "org.vantorel.ColorPanel1.Error.NotAColor");
    EXPECT_EQ(errorKindFor("org.freedesktop.DBus.Error.NoReply"), std::nullopt);
}

}  // namespace
}  // namespace vantorel
