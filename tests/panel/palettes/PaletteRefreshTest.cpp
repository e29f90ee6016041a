#include "panel/palettes/PaletteRefresh.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include "CountingFiles.h"

namespace vantorel {
namespace {

const std::string ownFolder = "/home/user/.local/share/Vantorel/Palettes";
constexpr std::size_t step = PaletteRefresh::filesOfStep;

class PaletteRefreshTest : public testing::Test {
protected:
    PaletteRefreshTest()
    {
        _files.createDirectory("/home/user/.local/share/Vantorel");
        _files.createDirectory(ownFolder);
    }
    void addLists(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            const std::string number = std::to_string(1000 + i);
            _files.writeAtomically(std::string(ownFolder).append("/").append(number).append(".gpl"),
                                   "GIMP Palette\nName: List " + number + "\n1 2 3\ta\n");
        }
        static_cast<void>(_files.takeCalls());
    }
    [[nodiscard]] std::size_t listed() const { return _session.palettes().size(); }

    CountingFiles _files;
    PaletteFileStore _store{_files};
    PaletteSession _session{_files, _store};
    PaletteRefresh _refresh{_session};
    QSignalSpy _shown{&_refresh, &PaletteRefresh::foundMore};
    QSignalSpy _finished{&_refresh, &PaletteRefresh::finished};
};

TEST_F(PaletteRefreshTest, FewListsAreThereAtOnce)
{
    addLists(step);
    _refresh.start();
    EXPECT_FALSE(_refresh.isRunning());
    EXPECT_EQ(listed(), step);
    EXPECT_EQ(_finished.size(), 1);
}

TEST_F(PaletteRefreshTest, ManyListsAreLookedAtInSteps)
{
    constexpr std::size_t all = 9 * step;
    // At a file: its version, its contents and its identity. At a step: the folders.
    constexpr std::size_t callsOfFile = 3;
    constexpr std::size_t callsOfStep = 100;
    addLists(all);
    _refresh.start();
    EXPECT_TRUE(_refresh.isRunning());
    EXPECT_EQ(listed(), step) << "those of the first step are shown";
    EXPECT_LE(_files.takeCalls(), callsOfFile * step + callsOfStep);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !_refresh.isRunning(); }));
    EXPECT_EQ(listed(), all);
    EXPECT_LE(_files.takeCalls(), callsOfFile * all + 9 * callsOfStep);
    EXPECT_EQ(_shown.size(), 4) << "after 1, 2, 4 and 8 steps";
    EXPECT_EQ(_finished.size(), 1);
}

TEST_F(PaletteRefreshTest, ARefreshCanBeStoppedAndTakenUpAgain)
{
    addLists(5 * step);
    _refresh.start();
    _refresh.stop();
    EXPECT_FALSE(_refresh.isRunning());
    EXPECT_EQ(listed(), step);
    EXPECT_EQ(_finished.size(), 1);
    static_cast<void>(_files.takeCalls());
    QCoreApplication::processEvents();
    EXPECT_EQ(_files.takeCalls(), 0U);
    _refresh.stop();
    EXPECT_EQ(_finished.size(), 1);
    _refresh.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !_refresh.isRunning(); }));
    EXPECT_EQ(listed(), 5 * step);
}

TEST_F(PaletteRefreshTest, AChangeDuringARefreshIsNoticedAfterIt)
{
    addLists(2 * step);
    _refresh.start();
    _files.remove(ownFolder + "/1000.gpl");
    _refresh.start();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !_refresh.isRunning(); }));
    EXPECT_EQ(_finished.size(), 2);
    EXPECT_EQ(listed(), 2 * step - 1);
}

TEST_F(PaletteRefreshTest, AnEditInBetweenFindsAllLists)
{
    addLists(3 * step);
    _refresh.start();
    EXPECT_TRUE(_session.addList(u"List 1700", {}).done);
    EXPECT_EQ(_session.listName(), "List 1768") << "the names of lists ahead are taken";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !_refresh.isRunning(); }));
    EXPECT_EQ(listed(), 3 * step + 1);
}

TEST_F(PaletteRefreshTest, TimeGrowsWithTheNumberOfLists)
{
    // If each list were compared with all others, this would take minutes.
    addLists(20'000);
    static_cast<void>(_session.endRefresh());
    _session.beginRefresh();
    _session.continueRefresh(20'000);
    _session.endRefresh();
    _session.beginRefresh();
    EXPECT_TRUE(_session.endRefresh().empty());
    EXPECT_EQ(listed(), 20'000U);
}

}  // namespace
}  // namespace vantorel
