#include "../panel/PanelWindowFixture.h"
#include "Endurance.h"
#include "QtUser.h"
#include "hosts/qt/QtColors.h"

#include <QApplication>
#include <QPixmapCache>

namespace vantorel {
namespace {

class QtEnduranceTest : public PanelWindowFixture {};

TEST_F(QtEnduranceTest, MemoryStaysAsItIsWhateverTheUserDoes)
{
    // The toolkit keeps the swatches of past colours up to a limit, which is so far away that a
    // short run only sees it come nearer.
    QPixmapCache::setCacheLimit(100);
    constexpr std::uint64_t seed = 20;
    RandomChoices choices(seed);
    QtUser user(*_window, choices);
    const Endurance run = endure(
        eventsToEndure(5'000), [&] { user.act(); },
        [&] {
            // A large window needs much memory.
            _window->showPage(0);
            _window->resizeToPage({260, 340});
            QApplication::processEvents();
        });
    // Caches of the toolkit fill in this time, however long it takes: glyphs, names of pictures.
    EXPECT_LT(run.growth(), 4e6);
    EXPECT_EQ(run.handlesBefore, run.handlesAfter);
    _window->showPage(0);
    _window->chooseColor(hostColorFrom(QColor(0x33, 0x66, 0x99)));
    EXPECT_EQ(_window->chosenColor(), QColor(0x33, 0x66, 0x99));
}

}  // namespace
}  // namespace vantorel
