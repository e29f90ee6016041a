#include "PanelCommandsFixture.h"
#include "colormath/SeenPixels.h"
#include "panel/window/VisionMenu.h"

#include <QScreen>

namespace vantorel {
namespace {

/// The panel with an orange colour.
class VisionMenuTest : public PanelCommandsFixture {
protected:
    [[nodiscard]] QMenu& menu() const
    {
        auto* menu = _window->findChild<VisionMenu*>();
        emit menu->aboutToShow();
        return *menu;
    }
    void choose(const QString& name)
    {
        for (QAction* action : menu().actions()) {
            if (action->text() == name) action->trigger();
        }
    }
    /// A pixel in the middle of the colour in the band.
    [[nodiscard]] QRgb pixelOfTheColor() const
    {
        const QImage image = _window->grab().toImage();
        const QWidget* well = child<QWidget>("colorWell");
        const QPoint place = well->mapTo(_window.get(), well->rect().center());
        return image.pixel(place * image.devicePixelRatio());
    }
};

std::uint32_t seenPixel(ColorVision vision, std::uint32_t pixel)
{
    SeenPixels(vision).replace({&pixel, 1});
    return pixel;
}

TEST_F(VisionMenuTest, TheWindowIsShownAsItIsSeen)
{
    const QRgb orange = qRgb(255, 128, 0);
    EXPECT_EQ(pixelOfTheColor(), orange);
    choose(QStringLiteral("Deuteranopia"));
    EXPECT_EQ(pixelOfTheColor(), seenPixel(ColorVision::deuteranopia, orange));
    EXPECT_EQ(_window->windowTitle(), QStringLiteral("Vantorel (Deuteranopia)"));
    choose(QStringLiteral("Grey"));
    EXPECT_EQ(pixelOfTheColor(), seenPixel(ColorVision::grey, orange));
    choose(QStringLiteral("Not simulated"));
    EXPECT_EQ(pixelOfTheColor(), orange);
    EXPECT_EQ(_window->windowTitle(), QStringLiteral("Vantorel"));
    EXPECT_EQ(chosenColor(), QColor(orange)) << "only its look changes";
}

TEST_F(VisionMenuTest, WhatChangesIsShownAsItIsSeen)
{
    choose(QStringLiteral("Tritanopia"));
    _window->colors().setColor(rgb(51, 102, 204));
    EXPECT_EQ(pixelOfTheColor(), seenPixel(ColorVision::tritanopia, qRgb(51, 102, 204)));
}

TEST_F(VisionMenuTest, TheGroundOfTheWindowIsPaintedAnewAndSeenSo)
{
    // A theme's ground may be coloured.
    QPalette palette = _window->palette();
    palette.setColor(QPalette::Window, QColor(200, 240, 200));
    _window->setPalette(palette);
    choose(QStringLiteral("Deuteranopia"));
    const auto onScreen = [this] {
        QCoreApplication::processEvents();
        return _window->screen()->grabWindow(_window->winId()).toImage();
    };
    const QImage first = onScreen();
    EXPECT_EQ(first.pixel(2, 2), seenPixel(ColorVision::deuteranopia, qRgb(200, 240, 200)));
    for (int i = 0; i < 3; ++i) {
        child<QWidget>("colorWell")->update();
        EXPECT_EQ(onScreen(), first) << "edges of texts painted over each other";
    }
}

TEST_F(VisionMenuTest, OneWayIsChecked)
{
    choose(QStringLiteral("Protanopia"));
    QStringList checked;
    for (const QAction* action : menu().actions()) {
        if (action->isChecked()) checked.append(action->text());
    }
    EXPECT_EQ(checked, QStringList{QStringLiteral("Protanopia")});
}

}  // namespace
}  // namespace vantorel
