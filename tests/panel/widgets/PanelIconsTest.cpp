#include "panel/widgets/PanelIcons.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPixmap>

namespace vantorel {
namespace {

constexpr int drawnSize = 48;

using MakeIcon = QIcon (*)();

constexpr MakeIcon everyIcon[]{
    swapIcon,
    pickIcon,
    copyIcon,
    menuIcon,
    moreIcon,
    downIcon,
    rightIcon,
    settingsIcon,
    [] { return tickIcon(); },
    [] { return warnIcon(); },
    pinIcon,
    gripIcon,
    closeIcon,
    helpIcon,
    hexPageIcon,
    mixPageIcon,
    scalesPageIcon,
    sliderIcon,
    gridIcon,
    wheelIcon,
    listIcon,
    addIcon,
    removeIcon,
    recolorIcon,
    undoIcon,
    redoIcon,
    lockIcon,
    nameIcon,
};

QImage drawnIcon(MakeIcon make)
{
    return make().pixmap(QSize(drawnSize, drawnSize), 1).toImage();
}

TEST(PanelIconsTest, NoIconIsEmptyOrCutOff)
{
    int number = 0;
    for (const MakeIcon make : everyIcon) {
        const QImage picture = drawnIcon(make);
        ASSERT_EQ(picture.size(), QSize(drawnSize, drawnSize));
        bool isEmpty = true;
        for (int y = 0; y < drawnSize; ++y) {
            for (int x = 0; x < drawnSize; ++x) {
                if (qAlpha(picture.pixel(x, y)) == 0) continue;
                isEmpty = false;
                const bool isRim = x == 0 || y == 0 || x == drawnSize - 1 || y == drawnSize - 1;
                EXPECT_FALSE(isRim) << number << ": " << x << ' ' << y;
            }
        }
        EXPECT_FALSE(isEmpty) << number;
        ++number;
    }
}

TEST(PanelIconsTest, NoTwoIconsAreAlike)
{
    QList<QImage> pictures;
    for (const MakeIcon make : everyIcon) {
        const QImage picture = drawnIcon(make);
        EXPECT_FALSE(pictures.contains(picture)) << pictures.size();
        pictures.append(picture);
    }
}

}  // namespace
}  // namespace vantorel
