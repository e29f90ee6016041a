#include "PickerPage.h"

namespace vantorel {
namespace {

class ContinuousChangeTest : public PickerPage {
protected:
    ContinuousChangeTest()
    {
        _panel.showPage(_page);
        _picker.viewSizeChanged(nullptr);
        draw();
    }
    void draw() { static_cast<void>(colorsView().draw()); }
    HeadlessCustomView& colorsView()
    {
        return dynamic_cast<HeadlessCustomView&>(control("_hexColorsView"));
    }
    [[nodiscard]] HostPoint middleOf(int value)
    {
        const HostRect cell = _picker.hexColorsView().colorMatrixRectWithComponent(0, 1, value);
        return {cell.midX(), cell.midY()};
    }
    void deliver(const std::vector<HostEvent>& events) { _panel.deliver(events, colorsView()); }
};

TEST_F(ContinuousChangeTest, ADragOverTheDigitsIsOneChange)
{
    deliver({{HostEventType::leftMouseDown, middleOf(2)},
             {HostEventType::leftMouseDragged, middleOf(5)},
             {HostEventType::leftMouseUp, middleOf(9)}});
    EXPECT_EQ(_panel.log, "begin set set set end ");
}

TEST_F(ContinuousChangeTest, AColourThatIsDraggedOutIsNoStep)
{
    deliver({{HostEventType::leftMouseDown, middleOf(2)},
             {HostEventType::leftMouseDragged, {-100, -100}},
             {HostEventType::leftMouseDragged, {-200, -200}},
             {HostEventType::leftMouseUp, {-200, -200}}});
    EXPECT_EQ(_panel.log, "begin set end set drag set ");
}

TEST_F(ContinuousChangeTest, ASwatchIsChosenAtOnce)
{
    auto list = std::make_shared<HostColorList>(u"Mine");
    list->setColor(HostColor::blackColor(), u"black");
    _desktop.colorLists().install(std::move(list));
    _picker.hexSettings().setHexColorList(u"Mine");
    _picker.performAction("paletteViewModeAction", nullptr);
    draw();
    deliver({{HostEventType::leftMouseDown, {20, colorsView().bounds().maxY() - 20}},
             {HostEventType::leftMouseUp, {20, colorsView().bounds().maxY() - 20}}});
    EXPECT_EQ(_panel.log, "set ");
}

}  // namespace
}  // namespace vantorel
