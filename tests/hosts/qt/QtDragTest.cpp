#include "hosts/qt/QtDrag.h"

#include <gtest/gtest.h>

#include <QColor>
#include <QMimeData>

namespace vantorel {
namespace {

const HostImage dragImage{{40, 16}, [](HostCanvas&) {}};

TEST(QtDragTest, AColourIsDraggedOnlyAsAColour)
{
    QWidget source;
    const QDrag* drag =
        makeDrag(source, dragImage, HostColor::colorWithCalibratedRed(1, 128 / 255.0, 0, 0.5));
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(drag->mimeData()->formats(), QStringList{"application/x-color"});
    const auto color = drag->mimeData()->colorData().value<QColor>().rgba64();
    EXPECT_EQ(color.red(), 0xFFFF);
    EXPECT_EQ(color.green(), 0x8080);
    EXPECT_EQ(color.blue(), 0);
    EXPECT_NEAR(color.alpha(), 0x8000, 1);
}

TEST(QtDragTest, ATextIsDraggedOnlyAsUtf8)
{
    QWidget source;
    const std::string text = "#ff8000 \xC3\xA4 \xF0\x9F\x8E\xA8";
    const QDrag* drag = makeDrag(source, dragImage, text);
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(drag->mimeData()->formats(), QStringList{"text/plain"});
    EXPECT_EQ(drag->mimeData()->data("text/plain"), QByteArray::fromStdString(text));
}

TEST(QtDragTest, ThePointerIsAtTheLowerLeftCornerOfTheImage)
{
    QWidget source;
    EXPECT_EQ(makeDrag(source, dragImage, std::string("text"))->hotSpot(), QPoint(0, 16));
}

TEST(QtDragTest, AColourWithoutComponentsIsNotDragged)
{
    QWidget source;
    EXPECT_EQ(makeDrag(source, dragImage, HostColor::patternColor()), nullptr);
}

}  // namespace
}  // namespace vantorel
