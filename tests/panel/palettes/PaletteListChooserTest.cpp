#include "panel/palettes/PaletteListChooser.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace vantorel {
namespace {

TEST(PaletteListChooserTest, ALongNameLeavesRoomForTheCount)
{
    for (const char16_t* program : {u"", u"Inkscape"}) {
        PaletteListChooser chooser(nullptr);
        chooser.resize(176, 28);
        chooser.showLists({{1, u"A list with a long name", program, "/lists/long.gpl"}}, 1);
        chooser.showCount(QStringLiteral("1,000,000"));
        chooser.grab();  // Places the count.
        auto* count = chooser.findChild<QLabel*>(QStringLiteral("paletteCount"));
        ASSERT_NE(count, nullptr);
        ASSERT_TRUE(chooser.rect().contains(count->geometry()));
        count->hide();
        const QImage place = chooser.grab(count->geometry()).toImage();
        // The ground may be shaded from top to bottom.
        for (int y = 0; y < place.height(); ++y) {
            for (int x = 1; x < place.width(); ++x)
                ASSERT_EQ(place.pixelColor(x, y), place.pixelColor(0, y)) << x << " " << y;
        }
    }
}

}  // namespace
}  // namespace vantorel
