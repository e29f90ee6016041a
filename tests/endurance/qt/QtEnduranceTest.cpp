#include "../../panel/window/PanelWindowFixture.h"
#include "../Endurance.h"
#include "QtUser.h"
#include "hosts/qt/QtColors.h"

#include <QApplication>
#include <QDBusConnection>
#include <QPixmapCache>
#include <QThread>

namespace vantorel {
namespace {

class QtEnduranceTest : public PanelWindowFixture {};

/// Leaves out threads: the toolkit paints large gradients in threads that end after some idle
/// time.
std::vector<std::string> handlesButOfThreads(std::vector<std::string> handles)
{
    std::erase(handles, "anon_inode:[eventfd]");
    return handles;
}

TEST_F(QtEnduranceTest, MemoryDoesNotGrowWhateverTheUserDoes)
{
    // The toolkit caches the swatches of past colours up to a limit that a short run does not
    // reach.
    QPixmapCache::setCacheLimit(100);
    // The first pick from the screen would start the bus connection's thread, which stays.
    QDBusConnection::sessionBus();
    constexpr std::uint64_t usualSeed = 20;
    RandomChoices choices(seedToEndure(usualSeed));
    QtUser user(*_window, choices);
    const Endurance run = endure(
        eventsToEndure(5'000), [&] { user.act(); },
        [&] {
            // A large window needs much memory.
            _window->pages().showPage(0);
            _window->resizeToPage({260, 340});
            QApplication::processEvents();
        });
    // Lets the toolkit's caches of glyphs and text sizes fill, however long that takes.
    EXPECT_LT(run.growth(), 4e6);
    const std::vector<std::string> handles = handlesButOfThreads(run.handlesAfter);
    EXPECT_EQ(handles, handlesButOfThreads(run.handlesBefore));
    // One is the event loop's own, one the bus connection's.
    EXPECT_LE(run.handlesAfter.size() - handles.size(),
              2U + static_cast<unsigned>(QThread::idealThreadCount()));
    _window->pages().showPage(0);
    _window->colors().setColor(hostColorFrom(QColor(0x33, 0x66, 0x99)));
    EXPECT_EQ(chosenColor(), QColor(0x33, 0x66, 0x99));
}

}  // namespace
}  // namespace vantorel
