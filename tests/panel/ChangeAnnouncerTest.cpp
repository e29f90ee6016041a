#include "panel/bus/ChangeAnnouncer.h"

#include <gtest/gtest.h>

#include <QTest>

namespace vantorel {
namespace {

class ChangeAnnouncerTest : public testing::Test {
protected:
    [[nodiscard]] bool comesToRest()
    {
        return QTest::qWaitFor([this] { return _announcer.isAtRest(); });
    }

    int _value = 0;
    std::vector<int> _told;
    ChangeAnnouncer _announcer{[this] { _told.push_back(_value); }};
};

TEST_F(ChangeAnnouncerTest, IsAtRestBeforeTheFirstChange)
{
    EXPECT_TRUE(_announcer.isAtRest());
}

TEST_F(ChangeAnnouncerTest, TellsOfAChangeAtOnceAndOnce)
{
    _value = 1;
    _announcer.changed();
    EXPECT_EQ(_told, std::vector{1});
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(_told, std::vector{1});
}

TEST_F(ChangeAnnouncerTest, TellsOfTheFirstAndTheLastOfManyChanges)
{
    for (_value = 1; _value < 1000; ++_value)
        _announcer.changed();
    EXPECT_EQ(_told, std::vector{1});
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(_told, (std::vector{1, 1000}));
}

TEST_F(ChangeAnnouncerTest, TakesAChangeThatIsMadeWhileItTells)
{
    std::vector<int> told;
    int value = 1;
    ChangeAnnouncer* self = nullptr;
    ChangeAnnouncer announcer([&] {
        told.push_back(value);
        if (value++ < 3) self->changed();
    });
    self = &announcer;
    announcer.changed();
    EXPECT_EQ(told, std::vector{1});
    ASSERT_TRUE(QTest::qWaitFor([&] { return announcer.isAtRest(); }));
    EXPECT_EQ(told, (std::vector{1, 2, 3}));
}

}  // namespace
}  // namespace vantorel
