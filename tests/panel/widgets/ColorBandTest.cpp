#include "panel/widgets/ColorBand.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/TextScale.h"
#include "panel/widgets/ThemeTables.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QDrag>
#include <QMimeData>
#include <QTest>

#include <array>
#include <memory>
#include <optional>

namespace vantorel {
namespace {

HostColor bandColor(const char* code)
{
    return hostColorFrom(QColor(QString::fromLatin1(code)));
}

/// A band of blue and white, with everything it asked for.
class ColorBandTest : public testing::Test {
protected:
    void SetUp() override
    {
        _window.setPalette(paletteOf(lightTheme()));
        _band->setSwapAction(_swapAction);
        _band->setColor(bandColor("#0000ff"));
        _band->setBackground(bandColor("#ffffff"));
        resizeTo(276, 64);
        QObject::connect(_band, &ColorBand::editRequested, _band,
                         [this](EditedColor half) { _edits.push_back(half); });
        QObject::connect(_band, &ColorBand::copyRequested, _band,
                         [this](EditedColor half) { _copies.push_back(half); });
        QObject::connect(_band, &ColorBand::dropped, _band,
                         [this](EditedColor half, const ColorOffer& offer) {
                             _dropHalf = half;
                             _dropColor = offer.color;
                         });
        _window.show();
        _window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&_window));
    }

    void resizeTo(double width, double height)
    {
        _band->resize(scaled(width), scaled(height));
        _window.resize(_band->size());
    }
    [[nodiscard]] QWidget& half(const char* name) const
    {
        return *_band->findChild<QWidget*>(name);
    }
    [[nodiscard]] QWidget& color() const { return half("colorWell"); }
    [[nodiscard]] QWidget& background() const { return half("backgroundWell"); }
    [[nodiscard]] QAbstractButton& swapButton() const
    {
        return *_band->findChild<QAbstractButton*>();
    }
    [[nodiscard]] QImage picture(double scale = 1)
    {
        QImage image((QSizeF(_window.size()) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        _window.render(&image);
        return image;
    }
    /// Whether a colour is anywhere in a place of the band.
    [[nodiscard]] bool isPainted(QRgb wanted, const QRect& place)
    {
        const QImage image = picture();
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (image.pixel(x, y) == wanted) return true;
            }
        }
        return false;
    }
    [[nodiscard]] static QRect lowerEdge(const QWidget& half)
    {
        QRect edge = half.geometry();
        edge.setTop(edge.bottom() - scaled(3));
        return edge.adjusted(edge.width() / 4, 0, -edge.width() / 4, 0);
    }
    static bool drag(QWidget& target, QMimeData& data)
    {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&target, &enter);
        return enter.isAccepted();
    }

    QWidget _window;
    ColorBand* _band = new ColorBand(&_window);
    QAction _swapAction{QStringLiteral("Swap")};
    std::vector<EditedColor> _edits;
    std::vector<EditedColor> _copies;
    std::optional<EditedColor> _dropHalf;
    std::optional<HostColor> _dropColor;
};

TEST_F(ColorBandTest, AClickOrAKeyAsksToEditTheHalf)
{
    QTest::mouseClick(&color(), Qt::LeftButton);
    QTest::mouseClick(&background(), Qt::LeftButton, {}, QPoint(scaled(60), scaled(60)));
    QTest::keyClick(&color(), Qt::Key_Return);
    QTest::keyClick(&background(), Qt::Key_Space);
    using enum EditedColor;
    EXPECT_EQ(_edits, (std::vector{color, background, color, background}));

    QTest::mouseClick(&this->color(), Qt::RightButton);
    QTest::mousePress(&this->color(), Qt::LeftButton);
    QTest::mouseRelease(&this->color(), Qt::LeftButton, {}, QPoint(-5, -5));
    EXPECT_EQ(_edits.size(), 4U) << "the pointer left before the button went up";
}

TEST_F(ColorBandTest, AHalfWithTheFocusClaimsTheKeyOfCopies)
{
    QAction copy;
    copy.setShortcut(QKeySequence::Copy);
    int commands = 0;
    QObject::connect(&copy, &QAction::triggered, &copy, [&] { ++commands; });
    _window.addAction(&copy);
    background().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&background(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(_copies, std::vector{EditedColor::background});
    EXPECT_EQ(commands, 0);
}

TEST_F(ColorBandTest, TabVisitsColourSwapAndBackground)
{
    color().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&color(), Qt::Key_Tab);
    EXPECT_TRUE(swapButton().hasFocus());
    QTest::keyClick(&swapButton(), Qt::Key_Tab);
    EXPECT_TRUE(background().hasFocus());
}

TEST_F(ColorBandTest, TheButtonOnTheSeamSwaps)
{
    int swaps = 0;
    QObject::connect(&_swapAction, &QAction::triggered, _band, [&] { ++swaps; });
    // Through the window, because the halves lie below.
    const QPoint seam(background().x(), swapButton().geometry().center().y());
    QTest::mouseClick(_window.childAt(seam - QPoint(scaled(8), 0)), Qt::LeftButton, {},
                      swapButton().rect().center());
    QTest::keyClick(&swapButton(), Qt::Key_Return);
    QTest::keyClick(&swapButton(), Qt::Key_Space);
    EXPECT_EQ(swaps, 3);
    EXPECT_TRUE(_edits.empty());
    EXPECT_EQ(_window.childAt(swapButton().geometry().topLeft()), &color())
        << "the corners around the button belong to the halves";

    EXPECT_EQ(swapButton().accessibleName(), "Swap");
    _swapAction.setToolTip(QStringLiteral("Swap (X)"));
    _swapAction.setEnabled(false);
    EXPECT_EQ(swapButton().toolTip(), "Swap (X)");
    EXPECT_FALSE(swapButton().isEnabled());
}

TEST_F(ColorBandTest, HalvesAreDescribed)
{
    _band->setColor(bandColor("#80767676"));
    _band->setBackground(bandColor("#ffffff"));
    EXPECT_EQ(color().accessibleName(), "Colour");
    EXPECT_EQ(color().accessibleDescription(), "#767676, 50 %");
    EXPECT_EQ(background().accessibleName(), "Background");
    const QString described = background().accessibleDescription();
    EXPECT_TRUE(described.startsWith("#FFFFFF\n")) << described.toStdString();
    EXPECT_TRUE(described.contains("1.93 to 1")) << "with the opacity: " << described.toStdString();
    EXPECT_TRUE(background().toolTip().contains("1.93 to 1"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&color())->role(), QAccessible::Graphic);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(_band)->role(), QAccessible::ColorChooser);
}

TEST_F(ColorBandTest, AssistiveTechnologyPressesTheHalves)
{
    QAccessibleActionInterface* actions =
        QAccessible::queryAccessibleInterface(&background())->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_TRUE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(_edits, std::vector{EditedColor::background});
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(background().hasFocus());
}

TEST_F(ColorBandTest, TheBackgroundNarrowsWithTheBand)
{
    for (const auto& [width, expected] :
         {std::pair{496, 116}, std::pair{276, 116}, std::pair{236, 112}, std::pair{180, 64}}) {
        resizeTo(width, 64);
        EXPECT_EQ(background().width(), scaled(expected)) << width;
        EXPECT_EQ(color().width() + background().width(), _band->width());
        EXPECT_EQ(background().x(), color().geometry().right() + 1);
    }
}

TEST_F(ColorBandTest, RightToLeftTheColourIsAtTheRight)
{
    _band->setColor(bandColor("#800000ff"));
    _band->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(background().x(), 0);
    EXPECT_EQ(color().geometry().right(), _band->width() - 1);
    const QImage image = picture();
    EXPECT_EQ(image.pixel(_band->width() - 5, scaled(32)), qRgb(0, 0, 255)) << "opaque first";
    EXPECT_NE(image.pixel(color().x() + scaled(20), scaled(50)), qRgb(0, 0, 255));
}

TEST_F(ColorBandTest, SquaresShineThroughATranslucentColour)
{
    const QRect later(scaled(70), scaled(8), scaled(60), scaled(30));
    EXPECT_FALSE(isPainted(qRgb(127, 127, 255), later));
    _band->setColor(bandColor("#800000ff"));
    const QImage image = picture();
    std::vector<QRgb> found;
    for (int x = later.left(); x < later.right(); ++x) {
        const QRgb pixel = image.pixel(x, later.top());
        if (std::find(found.begin(), found.end(), pixel) == found.end()) found.push_back(pixel);
    }
    EXPECT_EQ(found.size(), 2U);
    EXPECT_EQ(image.pixel(scaled(20), scaled(32)), qRgb(0, 0, 255)) << "the first third is opaque";
}

TEST_F(ColorBandTest, AMarkShowsWhichHalfIsEdited)
{
    EXPECT_TRUE(isPainted(qRgb(0, 0, 0), lowerEdge(color())));
    EXPECT_FALSE(isPainted(qRgb(0, 0, 0), lowerEdge(background())));
    _band->setEdited(EditedColor::background);
    EXPECT_FALSE(isPainted(qRgb(0, 0, 0), lowerEdge(color())));
    EXPECT_TRUE(isPainted(qRgb(0, 0, 0), lowerEdge(background())));
}

TEST_F(ColorBandTest, TheFocusIsShownOnlyToWhoTypes)
{
    const QRgb ring = lightTheme().accent.rgb();
    color().setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(isPainted(ring, color().geometry()));
    QTest::keyClick(&color(), Qt::Key_Shift);
    EXPECT_TRUE(isPainted(ring, color().geometry()));
    QTest::keyClick(&color(), Qt::Key_Tab);
    EXPECT_FALSE(isPainted(ring, lowerEdge(color())));
    EXPECT_TRUE(isPainted(ring, swapButton().geometry().adjusted(-3, -3, 3, 3)));
    QTest::keyClick(&swapButton(), Qt::Key_Tab);
    EXPECT_TRUE(isPainted(ring, background().geometry()));

    // The colour is that of the ring: the line beside it is not.
    _band->setBackground(hostColorFrom(lightTheme().accent));
    const QRect edge(background().geometry().right() - scaled(4), scaled(30), scaled(4), 1);
    EXPECT_TRUE(isPainted(qRgb(255, 255, 255), edge));
}

TEST_F(ColorBandTest, HalvesTakeDropsAndShowIt)
{
    QMimeData text;
    text.setText(QStringLiteral("rgb(0 128 0)"));
    const QRect edge = QRect(background().x(), scaled(3), background().width(), 2);
    EXPECT_FALSE(isPainted(qRgb(0, 0, 0), edge));
    ASSERT_TRUE(drag(background(), text));
    EXPECT_TRUE(isPainted(qRgb(0, 0, 0), edge)) << "dashes";
    QDragLeaveEvent leave;
    QApplication::sendEvent(&background(), &leave);
    EXPECT_FALSE(isPainted(qRgb(0, 0, 0), edge));

    ASSERT_TRUE(drag(background(), text));
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, {});
    QApplication::sendEvent(&background(), &drop);
    EXPECT_EQ(_dropHalf, EditedColor::background);
    EXPECT_EQ(_dropColor, bandColor("#008000"));

    QMimeData pictureData;
    pictureData.setData("image/png", "x");
    EXPECT_FALSE(drag(color(), pictureData));
}

TEST_F(ColorBandTest, AHalfIsDraggedOutAndThenNotEdited)
{
    QTest::mousePress(&color(), Qt::LeftButton, {}, QPoint(20, 20));
    QMouseEvent move(QEvent::MouseMove, QPointF(60, 20), color().mapToGlobal(QPointF(60, 20)),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&color(), &move);
    // Without a screen a drag ends at once; Qt deletes it later.
    const auto* drag = color().findChild<QDrag*>();
    ASSERT_NE(drag, nullptr);
    EXPECT_EQ(qvariant_cast<QColor>(drag->mimeData()->colorData()).rgb(), qRgb(0, 0, 255));
    EXPECT_EQ(drag->pixmap().deviceIndependentSize(), QSizeF(scaled(24), scaled(24)));
    QTest::mouseRelease(&color(), Qt::LeftButton, {}, QPoint(60, 20));
    EXPECT_TRUE(_edits.empty());
}

TEST_F(ColorBandTest, EdgesAreSharpAtEveryScale)
{
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (int offset = 1; offset < 5; ++offset) {
            for (const int width : {276, 237}) {
                _band->setGeometry(offset, offset, scaled(width), scaled(64));
                _window.resize(_band->size() + QSize(8, 8));
                const QImage image = picture(scale);
                const auto colorsFrom = [&](QPoint first, QPoint step) {
                    std::vector<QColor> found;
                    for (QPoint at = first; image.rect().contains(at); at += step) {
                        const QColor color = image.pixelColor(at);
                        if (found.empty() || found.back() != color) found.push_back(color);
                    }
                    return found;
                };
                // Off the button and the mark.
                const QPoint below(0, qRound((offset + scaled(50)) * scale));
                const QPoint beside(qRound((offset + scaled(40)) * scale), 0);
                const std::vector<QColor> row = colorsFrom(below, {1, 0});
                const std::vector<QColor> column = colorsFrom(beside, {0, 1});
                const std::string where = std::to_string(scale) + ", " + std::to_string(offset);
                ASSERT_GT(row.size(), 4U) << where;
                EXPECT_EQ(row[2], QColor(Qt::blue)) << where << ": ground, line, colour";
                EXPECT_EQ(row[3], QColor(Qt::white)) << where << ": the seam";
                EXPECT_EQ(row[row.size() - 3], QColor(Qt::white)) << where << ": and at the end";
                EXPECT_EQ(column.size(), 5U) << where;
                EXPECT_EQ(column[2], QColor(Qt::blue)) << where;
            }
        }
    }
}

TEST_F(ColorBandTest, CornersAreRoundAndSmooth)
{
    _band->setColor(bandColor("#800000ff"));
    const QImage image = picture(2);
    const QRgb ground = image.pixel(0, 0);
    EXPECT_EQ(ground, lightTheme().window.rgb());
    const QImage before = image.copy(0, 0, scaled(16), scaled(16));
    bool isSmooth = false;
    for (int i = 0; i < before.width(); ++i) {
        const QRgb pixel = before.pixel(i, i);
        isSmooth =
            isSmooth || (qRed(pixel) > 40 && qRed(pixel) < qRed(ground) && qBlue(pixel) > 0xAA);
    }
    EXPECT_TRUE(isSmooth);
}

struct ContrastRow {
    const char* color;
    const char* ratio;
    const char* level;
};

TEST(ContrastTextsTest, RatiosAreRoundedDownAndLevelsNamed)
{
    for (const auto& [color, ratio, level] :
         {ContrastRow{"#000000", "21.0", "AAA"}, ContrastRow{"#767676", "4.54", "AA"},
          ContrastRow{"#777777", "4.47", "AA large"}, ContrastRow{"#ffff00", "1.07", "fails"}}) {
        const auto contrast = contrastRatio(bandColor(color), HostColor::whiteColor());
        EXPECT_EQ(shownContrastRatio(*contrast), ratio);
        EXPECT_EQ(contrastLevelName(contrastLevel(*contrast)), level);
    }
}

TEST(ContrastChipTest, ChipsDropTheLevelBeforeTheRatio)
{
    const ContrastChip whole(3.67, 1000);
    EXPECT_TRUE(whole.showsLevel());
    const ContrastChip shorter(3.67, whole.size().width() - 1);
    EXPECT_FALSE(shorter.showsLevel());
    EXPECT_LT(shorter.size().width(), whole.size().width());
    EXPECT_TRUE(ContrastChip(3.67, shorter.size().width() - 1).size().isEmpty());
}

TEST(ColorBandLayoutTest, TheChipHasRoomAtEveryHeight)
{
    for (const int height : {40, 48, 53, 54, 64, 84}) {
        for (const int width : {200, 236, 276, 496}) {
            const QSize size(scaled(width), scaled(height));
            for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
                const ColorBandLayout layout = layoutOfBand(size, 3.67, direction);
                const QRectF chip(layout.chipTopLeft, layout.chip.size());
                EXPECT_FALSE(chip.isEmpty()) << width << " x " << height;
                EXPECT_TRUE(QRectF(layout.background).contains(chip)) << width << " x " << height;
                EXPECT_TRUE(QRectF(layout.background).contains(layout.sample));
                EXPECT_EQ(layout.chip.showsLevel(), height >= 54) << width << " x " << height;
            }
        }
    }
    EXPECT_TRUE(
        layoutOfBand({scaled(180), scaled(64)}, 3.67, Qt::LeftToRight).chip.size().isEmpty());
}

}  // namespace
}  // namespace vantorel
