#include "PickerPage.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Everything that the user can see or reach lies in its place, whatever the page's size: what the
/// page has no use for is parked.
class OutOfSightTest : public PickerPage {
protected:
    OutOfSightTest() { _panel.showPage(_page); }

    static bool overlap(HostRect a, HostRect b)
    {
        return a.x < b.maxX() && b.x < a.maxX() && a.y < b.maxY() && b.y < a.maxY();
    }
    void expectOrder(const HostView& view)
    {
        std::vector<const HostView*> shown;
        std::copy_if(view.subviews().begin(), view.subviews().end(), std::back_inserter(shown),
                     [](const HostView* subview) { return !subview->isParked(); });
        const HostRect room = view.bounds();
        for (const HostView* subview : shown) {
            const HostRect frame = subview->frame();
            EXPECT_TRUE(frame.x >= room.x && frame.maxX() <= room.maxX()) << nameOf(*subview);
            EXPECT_TRUE(overlap(frame, room)) << nameOf(*subview);
            for (const HostView* other : shown) {
                if (other <= subview || isCloseByRule(*subview) || isCloseByRule(*other)) continue;
                EXPECT_FALSE(overlap(frame, other->frame()))
                    << nameOf(*subview) << " and " << nameOf(*other);
            }
            expectOrder(*subview);
        }
    }
    /// The places of these in the bottom row of the settings are fixed, and close to their
    /// neighbours in a small page.
    [[nodiscard]] bool isCloseByRule(const HostView& view)
    {
        const std::string name = nameOf(view);
        return name == "moreIndicatorButton" || name == "_versionLabelText";
    }
    [[nodiscard]] std::string nameOf(const HostView& view)
    {
        for (const auto& [name, control] : _desktop.interfaceFactory().controls()) {
            if (control == &view) return name;
        }
        return "?";
    }
    void expectOrderAtAllWidths()
    {
        for (const double width : {212, 240, 260, 300, 420, 530, 600, 650, 900, 1600}) {
            SCOPED_TRACE(width);
            _panel.resize({width, 400});
            for (const char* mode :
                 {"sliderViewModeAction", "paletteViewModeAction", "cubeViewModeAction"}) {
                SCOPED_TRACE(mode);
                _picker.performAction(mode, nullptr);
                auto& view = dynamic_cast<HeadlessCustomView&>(control("_hexColorsView"));
                if (view.superview() != nullptr) static_cast<void>(view.draw());
                expectOrder(*_page);
            }
        }
    }
};

TEST_F(OutOfSightTest, OnTheMainFace)
{
    expectOrderAtAllWidths();
    auto& display = dynamic_cast<HostPopUpButton&>(control("componentDisplayPopUp"));
    display.selectItemWithTitle(u"Code Snippet");
    display.sendAction();
    expectOrderAtAllWidths();
}

TEST_F(OutOfSightTest, OnTheSettingsFace)
{
    _panel.resize({260, 400});
    _picker.performAction("settingsButtonAction", nullptr);
    expectOrderAtAllWidths();
    for (const double height : {400, 330, 300, 280, 260, 252}) {
        SCOPED_TRACE(height);
        _panel.resize({900, height});
        expectOrder(*_page);
    }
}

TEST_F(OutOfSightTest, APageOfThePreferredSizeShowsEverything)
{
    const HostSize size = _picker.preferredContentSize();
    _panel.resize({size.width, size.height + HeadlessColorPanel::barHeight});
    _picker.performAction("settingsButtonAction", nullptr);
    EXPECT_EQ(_page->frame().size(), size);
    EXPECT_TRUE(control("moreIndicatorButton").isParked());
}

}  // namespace
}  // namespace vantorel
