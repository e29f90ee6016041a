#include "panel/bus/ChangeAnnouncer.h"

#include <gtest/gtest.h>

#include <QTest>

namespace vantorel {
namespace {

class ChangeAnnouncerTest : public testing::Test {
protected:
    ChangeAnnouncerTest()
    {
        QObject::connect(&_announcer, &ChangeAnnouncer::due,
                         [this] { _announced.push_back(_value); });
    }

    [[nodiscard]] bool comesToRest()
    {
        return QTest::qWaitFor([this] { return _announcer.isAtRest(); });
    }

    int _value = 0;
    std::vector<int> _announced;
    ChangeAnnouncer _announcer;
};

TEST_F(ChangeAnnouncerTest, IsIdleBeforeTheFirstChange)
{
    EXPECT_TRUE(_announcer.isAtRest());
}

TEST_F(ChangeAnnouncerTest, AnnouncesAChangeAtOnceAndOnce)
{
    _value = 1;
    _announcer.noteChange();
    EXPECT_EQ(_announced, std::vector{1});
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(_announced, std::vector{1});
}

TEST_F(ChangeAnnouncerTest, AnnouncesTheFirstAndTheLastOfManyChanges)
{
    for (_value = 1; _value < 1000; ++_value)
        _announcer.noteChange();
    EXPECT_EQ(_announced, std::vector{1});
    ASSERT_TRUE(comesToRest());
    EXPECT_EQ(_announced, (std::vector{1, 1000}));
}

TEST_F(ChangeAnnouncerTest, AcceptsAChangeMadeDuringAnAnnouncement)
{
    std::vector<int> announced;
    int value = 1;
    ChangeAnnouncer announcer;
    QObject::connect(&announcer, &ChangeAnnouncer::due, [&] {
        announced.push_back(value);
        if (value++ < 3) announcer.noteChange();
    });
    announcer.noteChange();
    EXPECT_EQ(announced, std::vector{1});
    ASSERT_TRUE(QTest::qWaitFor([&] { return announcer.isAtRest(); }));
    EXPECT_EQ(announced, (std::vector{1, 2, 3}));
}

}  // namespace
}  // namespace vantorel
