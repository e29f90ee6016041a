#include "host/HostColorList.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

const HostColor white = HostColor::whiteColor();
const HostColor black = HostColor::blackColor();

class HostColorListTest : public testing::Test {
protected:
    HostColorList _list{u"List"};
};

TEST_F(HostColorListTest, KeepsColorsInTheOrderAdded)
{
    _list.setColor(white, u"b");
    _list.setColor(white, u"a");
    _list.setColor(black, u"b");
    EXPECT_EQ(_list.allKeys(), (std::vector<std::u16string>{u"b", u"a"}));
    EXPECT_EQ(_list.colorWithKey(u"b"), black);
    EXPECT_EQ(_list.colorAtIndex(0), black);
    EXPECT_EQ(_list.colorWithKey(u"a"), white);
    EXPECT_EQ(_list.colorWithKey(u"c"), std::nullopt);
}

TEST_F(HostColorListTest, AddsOnlyNewKeys)
{
    EXPECT_TRUE(_list.addColor(white, u"a"));
    const std::uint64_t revision = _list.revision();
    EXPECT_FALSE(_list.addColor(black, u"a"));
    EXPECT_EQ(_list.revision(), revision);
    EXPECT_EQ(_list.colorWithKey(u"a"), white);
    EXPECT_TRUE(_list.addColor(black, u""));
    EXPECT_EQ(_list.colorWithKey(u""), black);
}

TEST_F(HostColorListTest, HoldsKeysWithoutColors)
{
    EXPECT_TRUE(_list.addKey(u"none"));
    _list.setColor(white, u"a");
    EXPECT_FALSE(_list.addKey(u"a"));
    EXPECT_EQ(_list.allKeys(), (std::vector<std::u16string>{u"none", u"a"}));
    EXPECT_EQ(_list.colorWithKey(u"none"), std::nullopt);
    EXPECT_FALSE(_list.hasColorAtIndex(0));
    EXPECT_EQ(_list.colorAtIndex(0).calibratedRGB(), std::nullopt);
    EXPECT_TRUE(_list.hasColorAtIndex(1));

    _list.setColor(black, u"none");
    EXPECT_TRUE(_list.hasColorAtIndex(0));
    EXPECT_EQ(_list.colorWithKey(u"none"), black);
}

TEST_F(HostColorListTest, NotifiesOfEachChange)
{
    const std::uint64_t empty = _list.revision();
    _list.setColor(white, u"a");
    const std::uint64_t added = _list.revision();
    _list.setColor(black, u"a");
    EXPECT_GT(added, empty);
    EXPECT_GT(_list.revision(), added);
}

TEST_F(HostColorListTest, FindsEachOfManyKeysEvenInACopy)
{
    constexpr int count = 5000;
    const auto key = [](int i) {
        const std::string digits = std::to_string(i);
        return std::u16string(digits.begin(), digits.end());
    };
    for (int i = 0; i < count; ++i)
        _list.setColor(HostColor::colorWithCalibratedRed(i, 0, 0, 1), key(i));
    const HostColorList copy = _list;
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(copy.colorWithKey(key(i)), HostColor::colorWithCalibratedRed(i, 0, 0, 1));
    EXPECT_EQ(copy.colorWithKey(key(count)), std::nullopt);
}

}  // namespace
}  // namespace vantorel
