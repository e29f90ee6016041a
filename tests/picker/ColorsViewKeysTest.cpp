#include "PickerPage.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

/// Picking in the colours view by keyboard and with the mouse wheel.
class ColorsViewKeysTest : public PickerPage {
protected:
    ColorsViewKeysTest()
    {
        _panel.showPage(_page);
        _picker.viewSizeChanged(nullptr);
        _view.keyFocusDidChange(true);
        draw();
    }

    void draw() { static_cast<void>(nativeView().draw()); }
    HeadlessCustomView& nativeView()
    {
        return dynamic_cast<HeadlessCustomView&>(control("_hexColorsView"));
    }
    void setColor(std::uint64_t red, std::uint64_t green, std::uint64_t blue, double alpha = 1)
    {
        QTXHexColorSpec spec;
        spec.setHexRed(red, green, blue);
        _panel.changeColor(spec.colorHexColorSpec().colorWithAlphaComponent(alpha));
    }
    /// The hex code of the panel's colour.
    [[nodiscard]] std::string panelCode() const
    {
        QTXHexColorSpec spec;
        spec.setColorHexColorSpec(_panel.color());
        return utf8FromUtf16(spec.fullStringHexColorSpecWithEntryForm(EntryForm::uppercase));
    }
    /// Presses a key while a message is shown. Returns the code of the panel's colour.
    std::string press(HostKey key, std::uint64_t modifierFlags = 0)
    {
        _view.postMessage(u"message");
        EXPECT_TRUE(_view.keyDown({key, modifierFlags}));
        return panelCode();
    }
    /// Turns the mouse wheel over a digit while a message is shown. Returns the code of the panel's
    /// colour.
    std::string turn(int component, int digit, int steps, std::uint64_t modifierFlags = 0)
    {
        _view.postMessage(u"message");
        const HostRect cell = _view.colorMatrixRectWithComponent(component, digit, 3);
        EXPECT_TRUE(_view.scrollWheel({{cell.midX(), cell.midY()}, steps, modifierFlags}));
        return panelCode();
    }
    void click(HostPoint point)
    {
        _panel.deliver({{HostEventType::leftMouseDown, point}, {HostEventType::leftMouseUp, point}},
                       nativeView());
    }
    [[nodiscard]] bool isMessageShown() const { return _view.messageStr().has_value(); }
    /// The code of the colour of the cell that the keys have reached.
    [[nodiscard]] std::string cellCode() const
    {
        QTXHexColorSpec spec;
        spec.setColorHexColorSpec(_view.keyCell().value().color);
        return utf8FromUtf16(spec.fullStringHexColorSpecWithEntryForm(EntryForm::uppercase));
    }
    [[nodiscard]] static HostRect boundsOf(const HostBezierPath& path)
    {
        double left = 1e9;
        double bottom = 1e9;
        double right = -1e9;
        double top = -1e9;
        for (const auto& element : path.elements()) {
            if (element.kind == HostBezierPath::ElementKind::close) continue;
            left = std::min(left, element.point.x);
            bottom = std::min(bottom, element.point.y);
            right = std::max(right, element.point.x);
            top = std::max(top, element.point.y);
        }
        return {left, bottom, right - left, top - bottom};
    }
    /// Shows a list of 10 greys, the lightest first, which the palette shows in rows of 3.
    void showPalette()
    {
        auto list = std::make_shared<HostColorList>(u"Greys");
        for (int i = 0; i < 10; ++i) {
            const double channel = (240 - 16 * i) / 255.0;
            list->setColor(HostColor::colorWithCalibratedRed(channel, channel, channel, 1),
                           u"grey " + utf16FromUtf8(std::to_string(i)));
        }
        _desktop.colorLists().install(std::move(list));
        _picker.hexSettings().setHexColorList(u"Greys");
        _picker.performAction("paletteViewModeAction", nullptr);
        draw();
    }

    QTXHexColorsView& _view = _picker.hexColorsView();
};

TEST_F(ColorsViewKeysTest, InTheSliderArrowsChangeADigitAtOnce)
{
    setColor(0x12, 0x34, 0x56);
    EXPECT_EQ(press(HostKey::up), "223456");
    EXPECT_FALSE(isMessageShown());
    EXPECT_EQ(press(HostKey::down), "123456");
    EXPECT_EQ(press(HostKey::right), "123456");
    EXPECT_TRUE(isMessageShown()) << "no colour was picked";
    EXPECT_EQ(press(HostKey::up), "133456");
    EXPECT_EQ(press(HostKey::right), "133456");
    EXPECT_EQ(press(HostKey::pageUp), "13F456");
    EXPECT_EQ(press(HostKey::up), "13F456");
    EXPECT_TRUE(isMessageShown());
    EXPECT_EQ(press(HostKey::end), "13F456");
    EXPECT_EQ(press(HostKey::pageDown), "13F450");
    EXPECT_EQ(press(HostKey::left), "13F450");
    EXPECT_EQ(press(HostKey::up), "13F460");
    EXPECT_EQ(press(HostKey::home), "13F460");
    EXPECT_EQ(press(HostKey::up, shiftModifierFlag), "22F460") << "with Shift, both digits";
    EXPECT_FALSE(_view.keyDown({HostKey::pick}));
}

TEST_F(ColorsViewKeysTest, TheSliderOutlinesTheDigitThatTheKeysHaveReached)
{
    setColor(0x12, 0x34, 0x5F, 0.5);
    struct Row {
        HostKey key;
        int component, digit, value;
    };
    for (const auto& [key, component, digit, value] :
         {Row{HostKey::home, 0, 1, 1}, Row{HostKey::right, 0, 0, 2}, Row{HostKey::right, 1, 1, 3},
          Row{HostKey::right, 1, 0, 4}, Row{HostKey::right, 2, 1, 5}, Row{HostKey::right, 2, 0, 15},
          Row{HostKey::right, 2, 0, 15}, Row{HostKey::down, 2, 0, 14}}) {
        press(key);
        const auto cell = _view.keyCell();
        ASSERT_TRUE(cell);
        EXPECT_EQ(cell->digit, (SliderCell{component, digit, value}));
        const HostRect outline = boundsOf(_view.keyOutline());
        const HostRect drawn = _view.colorMatrixRectWithComponent(component, digit, value);
        EXPECT_NEAR(outline.x, drawn.x, 1e-9);
        EXPECT_NEAR(outline.y, drawn.y, 1e-9);
        EXPECT_NEAR(outline.maxX(), drawn.maxX(), 1e-9);
        EXPECT_NEAR(outline.maxY(), drawn.maxY(), 1e-9);
    }
    EXPECT_EQ(cellCode(), "12345E");
    EXPECT_EQ(_panel.color()->alphaComponent(), 0.5);
}

TEST_F(ColorsViewKeysTest, InThePaletteEnterPicksTheSwatchThatTheKeysHaveReached)
{
    showPalette();
    setColor(176, 176, 176);
    EXPECT_EQ(_view.keyCell()->name, u"grey 4") << "the keys begin at the current colour";
    EXPECT_EQ(press(HostKey::down), "B0B0B0");
    EXPECT_TRUE(isMessageShown());
    EXPECT_EQ(_view.keyCell()->name, u"grey 7");
    EXPECT_EQ(cellCode(), "808080");
    EXPECT_EQ(press(HostKey::right), "B0B0B0");
    EXPECT_EQ(press(HostKey::pick), "707070");
    EXPECT_FALSE(isMessageShown());
    EXPECT_EQ(press(HostKey::home), "707070");
    EXPECT_EQ(press(HostKey::up), "707070");
    EXPECT_EQ(press(HostKey::pick), "C0C0C0");
    setColor(1, 2, 3);
    EXPECT_EQ(_view.keyCell()->name, u"grey 3") << "a key has moved the cell";
}

TEST_F(ColorsViewKeysTest, ThePaletteOutlinesTheSwatchThatAClickWouldPick)
{
    showPalette();
    for (const HostKey key : {HostKey::right, HostKey::down, HostKey::end, HostKey::pageDown}) {
        press(key);
        const HostRect outline = boundsOf(_view.keyOutline());
        EXPECT_EQ(_view.getPaletteColorWithPoint({outline.midX(), outline.midY()}),
                  _view.keyCell()->color);
    }
}

TEST_F(ColorsViewKeysTest, ThePaletteBeginsAtTheFirstColourThatIsClose)
{
    showPalette();
    setColor(150, 150, 150);
    EXPECT_EQ(_view.keyCell()->name, u"grey 5") << "160 is close, and so is 144";
    setColor(144, 144, 144);
    EXPECT_EQ(_view.keyCell()->name, u"grey 6") << "an equal colour goes first";
    setColor(255, 0, 0);
    EXPECT_EQ(_view.keyCell()->name, u"grey 0");
}

TEST_F(ColorsViewKeysTest, ASwatchThatIsGoneIsLeft)
{
    showPalette();
    setColor(176, 176, 176);
    press(HostKey::end);
    press(HostKey::pageDown);
    EXPECT_EQ(_view.keyCell()->name, u"grey 8");
    auto list = std::make_shared<HostColorList>(u"Two");
    list->setColor(HostColor::whiteColor(), u"white");
    list->setColor(HostColor::blackColor(), u"black");
    _desktop.colorLists().install(std::move(list));
    _picker.hexSettings().setHexColorList(u"Two");
    setColor(0, 0, 0);
    draw();
    EXPECT_EQ(_view.keyCell()->name, u"black");
}

TEST_F(ColorsViewKeysTest, AnEmptyPaletteHasNoCell)
{
    _desktop.colorLists().install(std::make_shared<HostColorList>(u"Empty"));
    _picker.hexSettings().setHexColorList(u"Empty");
    _picker.performAction("paletteViewModeAction", nullptr);
    EXPECT_FALSE(_view.keyCell()) << "before the first drawing";
    draw();
    EXPECT_FALSE(_view.keyCell());
    EXPECT_TRUE(_view.keyOutline().isEmpty());
    EXPECT_FALSE(_view.keyDown({HostKey::pick}));
}

TEST_F(ColorsViewKeysTest, APaletteWithoutAListHasTheSlidersKeys)
{
    _picker.hexSettings().setHexColorList(u"gone");
    _picker.performAction("paletteViewModeAction", nullptr);
    setColor(0x12, 0x34, 0x56);
    EXPECT_EQ(press(HostKey::up), "223456");
    EXPECT_EQ(turn(1, 0, 1), "223556");
}

TEST_F(ColorsViewKeysTest, OnTheWheelEnterPicksTheTriangleThatTheKeysHaveReached)
{
    _picker.performAction("cubeViewModeAction", nullptr);
    setColor(0xFF, 0, 0);
    EXPECT_EQ(cellCode(), "FF0000") << "the keys begin at the current colour";
    EXPECT_EQ(press(HostKey::right), "FF0000");
    EXPECT_TRUE(isMessageShown());
    const std::string reached = cellCode();
    EXPECT_NE(reached, "FF0000");
    EXPECT_EQ(press(HostKey::pick), reached);
    EXPECT_FALSE(isMessageShown());
    setColor(130, 5, 3);
    EXPECT_EQ(cellCode(), reached) << "a key has moved the cell";
    click({-1, -1});
    setColor(0, 0, 255);
    EXPECT_EQ(cellCode(), "0000FF") << "after a click, the keys begin again";
}

TEST_F(ColorsViewKeysTest, TheWheelOutlinesTheTriangleThatAClickWouldPick)
{
    _picker.performAction("cubeViewModeAction", nullptr);
    setColor(0x60, 0x60, 0x60);
    for (const HostKey key : {HostKey::up, HostKey::right, HostKey::right, HostKey::down}) {
        press(key);
        const auto outline = _view.keyOutline().elements();
        ASSERT_EQ(outline.size(), 4U);
        click({(outline[0].point.x + outline[1].point.x + outline[2].point.x) / 3,
               (outline[0].point.y + outline[1].point.y + outline[2].point.y) / 3});
        EXPECT_EQ(panelCode(), cellCode());
    }
}

TEST_F(ColorsViewKeysTest, TheWheelBeginsAtTheNearestColour)
{
    _picker.performAction("cubeViewModeAction", nullptr);
    for (const auto& [color, nearest] : {std::pair{std::array{250, 3, 2}, "FF0000"},
                                         {std::array{3, 250, 2}, "00FF00"},
                                         {std::array{1, 3, 251}, "0000FF"},
                                         {std::array{94, 97, 95}, "606060"}}) {
        setColor(static_cast<std::uint64_t>(color[0]), static_cast<std::uint64_t>(color[1]),
                 static_cast<std::uint64_t>(color[2]));
        EXPECT_EQ(cellCode(), nearest);
        EXPECT_EQ(_view.keyOutline().elements().size(), 4U);
    }
}

TEST_F(ColorsViewKeysTest, AnotherModeBeginsAtTheCurrentColourAgain)
{
    showPalette();
    press(HostKey::pageDown);
    press(HostKey::end);
    _picker.performAction("cubeViewModeAction", nullptr);
    setColor(0, 0, 0xFF);
    EXPECT_EQ(cellCode(), "0000FF");
    press(HostKey::up);
    _picker.performAction("paletteViewModeAction", nullptr);
    setColor(176, 176, 176);
    EXPECT_EQ(_view.keyCell()->name, u"grey 4");
}

TEST_F(ColorsViewKeysTest, AKeyRedrawsTheView)
{
    for (const char* mode :
         {"sliderViewModeAction", "paletteViewModeAction", "cubeViewModeAction"}) {
        _picker.performAction(mode, nullptr);
        draw();
        ASSERT_FALSE(nativeView().needsDisplay());
        press(HostKey::right);
        EXPECT_TRUE(nativeView().needsDisplay()) << mode;
        draw();
        _view.keyFocusDidChange(false);
        EXPECT_TRUE(nativeView().needsDisplay()) << mode;
        EXPECT_FALSE(_view.keyCell()) << mode;
        draw();
        _view.keyFocusDidChange(true);
        EXPECT_TRUE(nativeView().needsDisplay()) << mode;
    }
}

TEST_F(ColorsViewKeysTest, TheMouseWheelStepsTheDigitBelowThePointer)
{
    setColor(0x12, 0x34, 0x56);
    EXPECT_EQ(turn(0, 1, 1), "223456");
    EXPECT_FALSE(isMessageShown());
    EXPECT_EQ(turn(0, 0, -1), "213456");
    EXPECT_EQ(turn(1, 1, 3), "216456");
    EXPECT_EQ(turn(1, 0, -9), "216056");
    EXPECT_EQ(turn(1, 0, -1), "216056");
    EXPECT_TRUE(isMessageShown());
    EXPECT_EQ(turn(2, 1, 20), "2160F6");
    EXPECT_EQ(turn(2, 1, 1), "2160F6");
    EXPECT_EQ(turn(2, 1, -12, shiftModifierFlag), "216033") << "with Shift, both digits";
    const HostPoint gap{_view.colorMatrixRect().x + 1, _view.colorMatrixRect().midY()};
    EXPECT_FALSE(_view.scrollWheel({gap, 1}));
    _picker.performAction("cubeViewModeAction", nullptr);
    EXPECT_FALSE(_view.scrollWheel({_view.colorMatrixRectWithComponent(0, 1, 3).origin(), 1}));
    EXPECT_EQ(panelCode(), "216033");
}

}  // namespace
}  // namespace vantorel
