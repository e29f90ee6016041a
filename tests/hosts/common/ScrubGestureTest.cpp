#include "hosts/common/ScrubGesture.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace vantorel {
namespace {

class ScrubbedField final : public HostTextField {
public:
    ScrubbedField() : HostTextField({0, 0, 60, 24}) {}
    [[nodiscard]] std::u16string stringValue() const override { return {}; }
    void setStringValue(const std::u16string&) override {}
    void setTextColor(const HostColor&) override {}
};

class ScrubGestureTest : public testing::Test {
protected:
    using Phase = HostTextField::Scrub::Phase;

    ScrubGestureTest()
    {
        field.setScrub([this](const HostTextField::Scrub& part) {
            if (part.phase == Phase::begin) ++begun;
            if (part.phase == Phase::end) ++ended;
            if (part.phase == Phase::move) distances.push_back(part.distance);
        });
    }

    ScrubbedField field;
    ScrubGesture gesture{field};
    int begun = 0;
    int ended = 0;
    std::vector<double> distances;
};

TEST_F(ScrubGestureTest, AClickIsNotADrag)
{
    ASSERT_TRUE(gesture.press(10));
    gesture.move(12.5, 0);
    gesture.move(8, 0);
    EXPECT_TRUE(gesture.release());
    EXPECT_FALSE(gesture.isUnderWay());
    EXPECT_EQ(begun + ended, 0);
}

TEST_F(ScrubGestureTest, ADragBeginsWhereItIsNoClickAnyMore)
{
    ASSERT_TRUE(gesture.press(10));
    gesture.move(14, 0);
    EXPECT_EQ(begun, 1);
    EXPECT_TRUE(distances.empty());
    gesture.move(20, 0);
    gesture.move(20, 0);
    gesture.move(17, 0);
    EXPECT_EQ(distances, (std::vector{6.0, -3.0}));
    EXPECT_FALSE(gesture.release());
    EXPECT_EQ(ended, 1);
    gesture.move(40, 0);
    EXPECT_EQ(distances.size(), 2U);
}

TEST_F(ScrubGestureTest, AFieldThatCannotBeScrubbedIsLeftAlone)
{
    field.setScrub({});
    EXPECT_FALSE(gesture.press(10));
    EXPECT_FALSE(gesture.release());
}

TEST_F(ScrubGestureTest, ADragThatIsBrokenOffEndsOnce)
{
    ASSERT_TRUE(gesture.press(10));
    gesture.move(20, 0);
    gesture.breakOff();
    gesture.breakOff();
    EXPECT_FALSE(gesture.release());
    EXPECT_EQ(ended, 1);
}

TEST_F(ScrubGestureTest, TheReactionMayEndTheGesture)
{
    std::optional<ScrubGesture> own(std::in_place, field);
    field.setScrub([&](const HostTextField::Scrub&) { own.reset(); });
    ASSERT_TRUE(own->press(10));
    own->move(20, 0);
    EXPECT_FALSE(own.has_value());
}

}  // namespace
}  // namespace vantorel
