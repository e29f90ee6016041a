#include <QAccessible>

#include "PalettesPageFixture.h"

namespace vantorel {
namespace {

/// The page with more lists than it looks at in one step.
class ManyPalettesTest : public PalettesPageTest {
protected:
    void SetUp() override
    {
        // NOLINTNEXTLINE(bugprone-parent-virtual-call): the lists come before the page.
        PanelWindowFixture::SetUp();
        // Only now, because the page that the window opens with may look for a list in all files.
        for (std::size_t i = 0; i < 3 * PaletteRefresh::filesOfStep; ++i) {
            const QByteArray number = QByteArray::number(static_cast<int>(1000 + i));
            put("data/Vantorel/Palettes/" + number + ".gpl",
                "GIMP Palette\nName: List " + number + "\n1 2 3\tfirst\n");
        }
        ASSERT_TRUE(_window->pages().showPageWithKey("palettes"));
    }
    [[nodiscard]] QWidget* progress() const { return child<QWidget>("paletteProgress"); }
    [[nodiscard]] QString firstList() const
    {
        return lists()->itemText(lists()->findText("List 1", Qt::MatchStartsWith));
    }
    [[nodiscard]] int listCount() const
    {
        return static_cast<int>(3 * PaletteRefresh::filesOfStep);
    }
};

TEST_F(ManyPalettesTest, ThePageFillsWhileItIsUsed)
{
    ASSERT_TRUE(progress()->isVisible());
    EXPECT_TRUE(child<QLabel>("paletteProgressText")->text().startsWith("256 of 7"));
    const QString list = firstList();
    show(list);
    click(0);
    EXPECT_EQ(chosenColor(), QColor(1, 2, 3));
    EXPECT_LT(lists()->count(), listCount());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !progress()->isVisible(); }));
    EXPECT_GE(lists()->findText("Reds"), 0);
    EXPECT_GT(lists()->count(), listCount());
    EXPECT_EQ(shownList(), list.toStdString()) << "the list on show stays";
}

TEST_F(ManyPalettesTest, TheUserCanStop)
{
    const int before = lists()->count();
    QTest::mouseClick(child<QWidget>("paletteStop"), Qt::LeftButton);
    EXPECT_FALSE(progress()->isVisible());
    QApplication::processEvents();
    EXPECT_EQ(lists()->count(), before);
    EXPECT_LT(before, listCount());
}

TEST_F(ManyPalettesTest, APageThatIsLeftStops)
{
    _window->pages().showPage(0);
    ASSERT_TRUE(_window->pages().showPageWithKey("palettes"));
    EXPECT_TRUE(progress()->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !progress()->isVisible(); }));
    EXPECT_GE(lists()->findText("Reds"), 0);
}

/// A panel whose first start finds more lists than it looks at before it shows its window.
class FirstStartTest : protected UserFolders, public PanelWindowFixture {
protected:
    FirstStartTest()
    {
        QFile::remove(at(builtIn));
        for (std::size_t i = 0; i <= ColorListSearch::filesAtOnce; ++i) {
            const QByteArray number = QByteArray::number(static_cast<int>(10000 + i));
            put("data/Vantorel/Palettes/" + number + ".gpl",
                "GIMP Palette\nName: List " + number + "\n1 2 3\tfirst\n");
        }
    }
    void SetUp() override { _search = loadPlugins({VANTOREL_PICKERS}, {}); }
    /// Makes the window without letting the event loop run.
    void start()
    {
        _window =
            std::make_unique<PanelWindow>(_desktop, _search.plugins, _problems, screenPicker());
    }
    [[nodiscard]] bool isSearching() { return _desktop.colorLists().isRunning(); }
    /// The name that the page shows for the panel's colour.
    [[nodiscard]] QString name() const
    {
        QAccessibleInterface* shown =
            QAccessible::queryAccessibleInterface(child<QWidget>("hexColorNamePopUp"));
        return shown->text(QAccessible::Value);
    }

    static constexpr const char* builtIn = "data/Vantorel/Palettes/CSS Keyword.gpl";
};

TEST_F(FirstStartTest, TheBuiltInListsBecomeFilesWhileTheWindowIsUsed)
{
    start();
    EXPECT_TRUE(isSearching());
    _window->colors().setColor(HostColor::whiteColor());
    EXPECT_EQ(name(), "white");
    EXPECT_EQ(rowsAt(builtIn), "none");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isSearching(); }));
    EXPECT_THAT(rowsAt(builtIn), testing::HasSubstr("white=ffffff"));
    EXPECT_EQ(name(), "white");
}

TEST_F(FirstStartTest, TheUsersListIsShownWhenItIsFound)
{
    put("data/Vantorel/Palettes/Zebra.gpl",
        "GIMP Palette\nName: CSS Keyword\n255 255 255\tstripe\n");
    start();
    _window->colors().setColor(HostColor::whiteColor());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isSearching(); }));
    EXPECT_EQ(name(), "stripe");
    EXPECT_EQ(rowsAt(builtIn), "none");
}

/// The page with a list that is longer than it reads in two steps.
class LongPaletteTest : public PalettesPageTest {
protected:
    static constexpr int count = 4 * static_cast<int>(PaletteLoading::linesOfStep);

    LongPaletteTest()
    {
        QByteArray text("GIMP Palette\nName: Long\n");
        for (int i = 0; i < count; ++i)
            text += "1 2 3\tcolour " + QByteArray::number(i) + '\n';
        put("data/Vantorel/Palettes/Long.gpl", text);
    }
    [[nodiscard]] QWidget* progress() const { return child<QWidget>("paletteProgress"); }
    [[nodiscard]] int rows() const { return view()->model()->rowCount(); }
};

TEST_F(LongPaletteTest, TheListFillsWhileItIsUsed)
{
    show("Long");
    EXPECT_TRUE(progress()->isVisible());
    EXPECT_LT(rows(), count);
    click(1);
    EXPECT_EQ(chosenColor(), QColor(1, 2, 3));
    EXPECT_FALSE(command("Remove")->isEnabled()) << "a part of a list cannot be edited";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !progress()->isVisible(); }));
    EXPECT_EQ(rows(), count);
    EXPECT_EQ(view()->selectedPlaces(), std::vector<std::size_t>{1});
    EXPECT_TRUE(command("Remove")->isEnabled());
}

TEST_F(LongPaletteTest, TheUserCanStop)
{
    show("Long");
    QTest::mouseClick(child<QWidget>("paletteStop"), Qt::LeftButton);
    const int before = rows();
    EXPECT_LT(before, count);
    EXPECT_FALSE(progress()->isVisible());
    QApplication::processEvents();
    EXPECT_EQ(rows(), before);
    EXPECT_TRUE(child<QLabel>("paletteCount")->text().endsWith(u'\u2026'));
    show("Reds");
    EXPECT_EQ(shownNames(), "red dark darker darkest");
}

TEST_F(LongPaletteTest, ReadingGoesOnWhenThePageIsShownAgain)
{
    show("Long");
    _window->pages().showPage(0);
    ASSERT_TRUE(_window->pages().showPageWithKey("palettes"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !progress()->isVisible(); }));
    EXPECT_EQ(rows(), count);
}

}  // namespace
}  // namespace vantorel
