#include "PanelWindowFixture.h"
#include "hosts/qt/QtItemList.h"
#include "hosts/qt/QtPopUpButton.h"

#include <QApplication>
#include <QListView>
#include <QMenu>
#include <QTimer>
#include <QToolButton>

#include <set>

namespace vantorel {
namespace {

/// Picks as a user does: a click must give the colour seen under the pointer.
class PickModesTest : public PanelWindowFixture {
protected:
    void TearDown() override
    {
        while (QWidget* open = QApplication::activePopupWidget())
            open->close();
        child<QToolButton>("pickViewModeButton")->click();
    }

    [[nodiscard]] QWidget* colors() const { return child<QWidget>("_hexColorsView"); }

    void showMode(const char* button)
    {
        child<QToolButton>(button)->click();
        _window->grab();  // drawing places the ring buttons, and sorts the palette
    }

    void click(QPoint at)
    {
        QTimer::singleShot(0,
                           [this, at] { QTest::mouseRelease(colors(), Qt::LeftButton, {}, at); });
        QTest::mousePress(colors(), Qt::LeftButton, {}, at);
        QApplication::processEvents();
    }

    /// Whether the pixels around are all of one colour, so that neither an outline nor the border
    /// of two shapes is near.
    static bool isInsideAShape(const QImage& image, QPoint at, int reach)
    {
        for (int dy = -reach; dy <= reach; ++dy) {
            for (int dx = -reach; dx <= reach; ++dx) {
                const QPoint near = at + QPoint(dx, dy);
                if (!image.rect().contains(near) || image.pixel(near) != image.pixel(at)) {
                    return false;
                }
            }
        }
        return true;
    }

    /// Clicks on one pixel of each visible colour and returns the number of colours.
    std::size_t clickEveryColour(const QRect& where, int reach)
    {
        const QRgb background = qRgb(241, 241, 245);
        std::set<QRgb> seen{background};
        const QImage before = colors()->grab().toImage();
        for (int y = where.top(); y <= where.bottom(); ++y) {
            for (int x = where.left(); x <= where.right(); ++x) {
                const QPoint at(x, y);
                const QRgb shown = before.pixel(at) | 0xFF000000U;
                if (seen.count(shown) != 0 || !isInsideAShape(before, at, reach)) continue;
                seen.insert(shown);
                click(at);
                EXPECT_EQ(chosenColor().rgb(), shown)
                    << "at " << x << ", " << y << ", where #" << std::hex << (shown & 0xFFFFFFU)
                    << " is shown";
                EXPECT_EQ(text("_fullHexText"), QColor(shown).name().toUpper());
            }
        }
        return seen.size() - 1;
    }

    QListView* openList(const char* popUp)
    {
        QTest::mouseClick(child<QWidget>(popUp), Qt::LeftButton);
        QWidget* opened = QApplication::activePopupWidget();
        return opened != nullptr ? opened->findChild<QListView*>() : nullptr;
    }

    static QStringList titlesOf(const QListView& view)
    {
        QStringList titles;
        for (int row = 0; row < view.model()->rowCount(); ++row)
            titles.append(view.model()->index(row, 0).data().toString());
        return titles;
    }

    static void clickRow(QListView& view, int row)
    {
        const QModelIndex index = view.model()->index(row, 0);
        view.scrollTo(index);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
    }
};

TEST_F(PickModesTest, EverySwatchOfThePaletteIsPickedByAClick)
{
    _window->colors().setColor(HostColor::colorWithCalibratedRed(0.3, 0.4, 0.5, 1));
    showMode("paletteViewModeButton");
    EXPECT_EQ(clickEveryColour(colors()->rect(), 2), 17U) << "the colours of CSS Keyword";
}

TEST_F(PickModesTest, EveryColourOfTheWheelIsPickedByAClick)
{
    _window->colors().setColor(HostColor::colorWithCalibratedRed(0.3, 0.4, 0.5, 1));
    showMode("wheelViewModeButton");
    // Without the ring buttons in the upper corners.
    const QRect below = colors()->rect().adjusted(0, 26, 0, 0);
    EXPECT_GT(clickEveryColour(below, 2), 200U) << "8 rings have 384 cells";
}

TEST_F(PickModesTest, AClickOutsideTheWheelPicksNoColour)
{
    _window->colors().setColor(HostColor::colorWithCalibratedRed(0, 0, 1, 1));
    showMode("wheelViewModeButton");
    click(QPoint(6, colors()->height() - 6));
    EXPECT_EQ(chosenColor(), QColor(0, 0, 255));
}

TEST_F(PickModesTest, TheRingButtonsChangeTheWheel)
{
    showMode("wheelViewModeButton");
    const QImage eight = colors()->grab().toImage();
    child<QToolButton>("increaseCubeRingsButton")->click();
    const QImage nine = colors()->grab().toImage();
    EXPECT_NE(nine, eight);
    child<QToolButton>("decreaseCubeRingsButton")->click();
    EXPECT_EQ(colors()->grab().toImage(), eight);
}

TEST_F(PickModesTest, ANameIsSelectedFromTheList)
{
    _window->colors().setColor(HostColor::blackColor());
    QListView* view = openList("hexColorNamePopUp");
    ASSERT_NE(view, nullptr);
    const QStringList titles = titlesOf(*view);
    EXPECT_EQ(titles.size(), 19);
    EXPECT_EQ(view->currentIndex().data().toString(), "black");
    EXPECT_FALSE(view->model()->index(2, 0).data(QtItemList::pictureRole).isNull());
    clickRow(*view, static_cast<int>(titles.indexOf("navy")));
    EXPECT_EQ(text("_fullHexText"), "#000080");
    EXPECT_EQ(chosenColor(), QColor(0, 0, 128));
}

TEST_F(PickModesTest, CloseNamesComeFirst)
{
    _window->colors().setColor(HostColor::colorWithCalibratedRed(1, 0, 4 / 255.0, 1));
    QListView* view = openList("hexColorNamePopUp");
    ASSERT_NE(view, nullptr);
    const QStringList titles = titlesOf(*view);
    EXPECT_EQ(titles.mid(0, 4), QStringList({"* red", "red", "", "maroon"}));
    clickRow(*view, 0);
    EXPECT_EQ(text("_fullHexText"), "#FF0004") << "the first item changes nothing";
}

TEST_F(PickModesTest, AListIsAddedAndRemovedInTheSubmenus)
{
    auto list = std::make_shared<HostColorList>(u"Brand & more");
    list->setColor(HostColor::colorWithCalibratedRed(0, 128 / 255.0, 1, 1), u"sky");
    ASSERT_TRUE(_desktop.colorLists().writeColorList(list));
    auto* popUp = child<QWidget>("hexColorsListPopUp");

    const auto chooseInSubmenu = [&](const QString& parent, const QString& title) {
        // Qt 6.8 closes a menu that is clicked before the pointer has moved away from where it was
        // when the menu opened. Clicks of QTest move no pointer, so it has no place until now.
        QTest::mouseMove(popUp);
        QTest::mouseClick(popUp, Qt::LeftButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (QAction* action : menu->actions()) {
            if (action->text() != parent) continue;
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            QMenu* submenu = action->menu();
            ASSERT_TRUE(QTest::qWaitFor([&] { return submenu->isVisible(); }));
            for (QAction* item : submenu->actions()) {
                if (item->text() != title) continue;
                QTest::mouseClick(submenu, Qt::LeftButton, {},
                                  submenu->actionGeometry(item).center());
                return;
            }
        }
        ADD_FAILURE() << "no " << parent.toStdString() << " > " << title.toStdString();
    };
    const auto topTitles = [&] {
        QTest::mouseClick(popUp, Qt::LeftButton);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QStringList titles;
        for (const QAction* action : menu->actions())
            titles.append(action->text());
        menu->close();
        return titles;
    };

    chooseInSubmenu("Add", "Brand && more");
    EXPECT_TRUE(topTitles().contains("Brand && more"));
    QTest::keyClicks(popUp, "Brand");
    EXPECT_EQ(titlesOf(*openList("hexColorNamePopUp")), QStringList({"No Match", "", "sky"}));
    while (QWidget* open = QApplication::activePopupWidget())
        open->close();
    chooseInSubmenu("Remove", "Brand && more");
    EXPECT_FALSE(topTitles().contains("Brand && more"));
    QListView* names = openList("hexColorNamePopUp");
    ASSERT_NE(names, nullptr);
    EXPECT_TRUE(titlesOf(*names).contains("maroon")) << "CSS Keyword names the colours again";
}

}  // namespace
}  // namespace vantorel
