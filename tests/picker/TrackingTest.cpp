#include "PickerPage.h"

namespace vantorel {
namespace {

/// The read-out of the colour below the pointer.
class TrackingTest : public PickerPage {
protected:
    TrackingTest()
    {
        _panel.showPage(_page);
        _picker.viewSizeChanged(nullptr);
        static_cast<void>(view().draw());
    }

    HeadlessCustomView& view()
    {
        return dynamic_cast<HeadlessCustomView&>(control("_hexColorsView"));
    }
    void movePointer(HostPoint point)
    {
        _panel.setPointer(point);
        _panel.deliver({{HostEventType::mouseMoved, point}}, view());
    }
    /// What the read-out shows; "hidden" if it is out of sight.
    [[nodiscard]] std::u16string readout()
    {
        auto& field = dynamic_cast<HeadlessTextField&>(control("_cursorReadoutText"));
        EXPECT_EQ(_panel.acceptsMouseMovedEvents(), !field.isParked());
        return field.isParked() ? u"hidden" : field.stringValue();
    }
    [[nodiscard]] HostPoint middleOfDigit(int component, int digit, int value)
    {
        const HostRect cell =
            _picker.hexColorsView().colorMatrixRectWithComponent(component, digit, value);
        return {cell.midX(), cell.midY()};
    }
};

TEST_F(TrackingTest, TheReadOutFollowsThePointer)
{
    EXPECT_EQ(readout(), u"hidden");
    movePointer(middleOfDigit(0, 1, 10));
    EXPECT_EQ(readout(), u"A0 00 00");
    movePointer(middleOfDigit(2, 0, 7));
    EXPECT_EQ(readout(), u"00 00 07");
    movePointer({1, 1});
    EXPECT_EQ(readout(), u"-- -- --");
    EXPECT_EQ(view().toolTip(), std::nullopt);
    movePointer({-1, -1});
    EXPECT_EQ(readout(), u"hidden");
    EXPECT_EQ(view().toolTip(), u"Click on color");
}

TEST_F(TrackingTest, TheSettingsEndIt)
{
    movePointer(middleOfDigit(0, 1, 10));
    _picker.performAction("settingsButtonAction", nullptr);
    EXPECT_FALSE(view().isTracking());
    EXPECT_EQ(readout(), u"hidden");
    _picker.performAction("settingsDoneButtonAction", nullptr);
    EXPECT_TRUE(view().isTracking());
    EXPECT_NE(readout(), u"hidden") << "the pointer is still there";
    movePointer({-1, -1});
    _picker.performAction("settingsButtonAction", nullptr);
    _picker.performAction("settingsDoneButtonAction", nullptr);
    EXPECT_TRUE(view().isTracking());
    EXPECT_EQ(readout(), u"hidden");
}

TEST_F(TrackingTest, ItFollowsTheSizeOfTheView)
{
    const HostPoint beyond{view().bounds().maxX() + 50, 100};
    movePointer(beyond);
    EXPECT_EQ(readout(), u"hidden");
    _panel.resize({460, 400});
    EXPECT_NE(readout(), u"hidden") << "the view has grown below the pointer";
    movePointer({-1, -1});
    movePointer(beyond);
    EXPECT_NE(readout(), u"hidden");
    _panel.resize({260, 340});
    EXPECT_EQ(readout(), u"hidden");
    movePointer(beyond);
    EXPECT_EQ(readout(), u"hidden");
}

TEST_F(TrackingTest, AnotherModeHidesTheReadOutUntilThePointerMoves)
{
    movePointer(middleOfDigit(0, 1, 10));
    _picker.performAction("cubeViewModeAction", nullptr);
    auto& field = dynamic_cast<HeadlessTextField&>(control("_cursorReadoutText"));
    EXPECT_TRUE(field.isParked());
    EXPECT_TRUE(view().isTracking());
}

}  // namespace
}  // namespace vantorel
