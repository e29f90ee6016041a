#include "PanelWindowFixture.h"
#include "hosts/qt/TextScale.h"

#include <QAccessible>
#include <QTabBar>

namespace vantorel {
namespace {

class PageBarTest : public PanelWindowFixture {
protected:
    [[nodiscard]] QTabBar& tabs() const { return *_window->findChild<QTabBar*>(); }
};

TEST_F(PageBarTest, AClickAndKeysShowAPage)
{
    QTest::mouseClick(&tabs(), Qt::LeftButton, {}, tabs().tabRect(3).center());
    EXPECT_EQ(_window->pages().current()->key(), "palettes");
    tabs().setFocus();
    QTest::keyClick(&tabs(), Qt::Key_Left);
    EXPECT_EQ(_window->pages().current()->key(), "scales");
    _window->pages().showPageWithKey(QStringLiteral("hex"));
    EXPECT_EQ(tabs().currentIndex(), 0);
}

TEST_F(PageBarTest, ScreenReadersPressAPage)
{
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(&tabs());
    ASSERT_NE(bar, nullptr);
    QAccessibleInterface* tab = bar->child(3);
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    EXPECT_EQ(tab->text(QAccessible::Name), "Palettes");
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(_window->pages().current()->key(), "palettes");
}

TEST_F(PageBarTest, TheRowDoesNotMoveWithTheChosenPage)
{
    const QRect last = tabs().tabRect(3);
    for (int i = 0; i < 4; ++i) {
        tabs().setCurrentIndex(i);
        _window->resizeToPage({296, 340});
        EXPECT_EQ(tabs().tabRect(3), last) << i;
    }
}

TEST_F(PageBarTest, ANarrowPanelShowsPicturesForTheOtherPages)
{
    _window->findChild<PageBar*>()->addPage(QIcon(), QStringLiteral("Another page"), {});
    _window->resizeToPage({420, 340});
    const int wide = tabs().tabRect(4).width();
    _window->resizeToPage({180, 340});
    EXPECT_LT(tabs().tabRect(4).width(), wide / 2);
    EXPECT_GT(tabs().tabRect(0).width(), tabs().tabRect(1).width()) << "the current one is a word";
    EXPECT_LE(tabs().geometry().right(), tabs().parentWidget()->width());
    EXPECT_EQ(tabs().accessibleTabName(1), "Mix");
}

}  // namespace
}  // namespace vantorel
