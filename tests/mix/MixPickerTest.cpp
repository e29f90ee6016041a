#include "mix/MixPicker.h"

#include "testing/headless/HeadlessColorPanel.h"
#include "testing/headless/MemoryFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

namespace vantorel {
namespace {

using testing::ElementsAre;

HostColor panelColor(double red, double green, double blue, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(red, green, blue, alpha);
}

HeadlessDesktop::Options optionsWith(std::unique_ptr<HostFiles> files)
{
    HeadlessDesktop::Options options;
    options.files = std::move(files);
    return options;
}

/// A panel that counts the drags that it hears of.
class DragPanel final : public HeadlessColorPanel {
public:
    using HeadlessColorPanel::HeadlessColorPanel;
    void continuousChangeDidBegin() override { drags += "("; }
    void continuousChangeDidEnd() override { drags += ")"; }
    void setColor(const std::optional<HostColor>& color) override
    {
        drags += ".";
        HeadlessColorPanel::setColor(color);
    }

    std::string drags;
};

class MixPickerTest : public testing::Test {
protected:
    MixPickerTest() { start(); }
    void TearDown() override { leave(); }

    void leave()
    {
        panel.showPage(nullptr);
        panel.setPicker(nullptr);
        picker.reset();
    }
    /// As a new panel does.
    void start()
    {
        leave();
        picker.emplace(0, panel);
        panel.setPicker(&*picker);
        panel.showPage(picker->provideNewView(true));
        picker->viewSizeChanged(nullptr);
    }

    template <class Control>
    [[nodiscard]] Control& control(const std::string& name)
    {
        auto* found = desktop.interfaceFactory().control<Control>(name);
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }
    [[nodiscard]] std::vector<std::u16string> numbers()
    {
        std::vector<std::u16string> texts;
        for (const char* name : {"mixNumber1", "mixNumber2", "mixNumber3", "mixNumber4"}) {
            std::u16string text = control<HeadlessTextField>(name).stringValue();
            std::erase(text, u'\u00A0');
            texts.push_back(text);
        }
        return texts;
    }
    void chooseSpace(int index)
    {
        control<HeadlessButton>("mixSpace" + std::to_string(index)).click();
    }
    void enter(const char* name, const std::u16string& text)
    {
        auto& field = control<HeadlessTextField>(name);
        field.setStringValue(text);
        field.sendAction();
    }
    [[nodiscard]] HeadlessCustomView& view(const char* name)
    {
        return control<HeadlessCustomView>(name);
    }
    void press(const char* name, HostKey key, std::uint64_t flags = 0)
    {
        EXPECT_TRUE(view(name).content().keyDown({key, flags}));
    }
    [[nodiscard]] HostColor::Components color() const { return *panel.color()->calibratedRGB(); }

    HeadlessDesktop desktop{optionsWith(std::make_unique<MemoryFiles>("/home/user"))};
    DragPanel panel{desktop, {0, 0, 300, 400}, panelColor(59 / 255.0, 130 / 255.0, 246 / 255.0)};
    std::optional<MixPicker> picker;
};

TEST_F(MixPickerTest, TheNumbersAreThoseOfTheColour)
{
    EXPECT_THAT(numbers(), ElementsAre(u"62.3%", u"0.188", u"259.8\u00B0", u"100%"));
    chooseSpace(2);
    EXPECT_THAT(numbers(), ElementsAre(u"217.2\u00B0", u"91.2%", u"59.8%", u"100%"));
    chooseSpace(3);
    EXPECT_THAT(numbers(), ElementsAre(u"217.2\u00B0", u"76.0%", u"96.5%", u"100%"));
    chooseSpace(4);
    EXPECT_THAT(numbers(), ElementsAre(u"54.6%", u"8.8", u"-65.8", u"100%"));
    EXPECT_EQ(panel.drags, "") << "looking at a colour does not change it";
    panel.changeColor(panelColor(1, 0, 0, 0.5));
    EXPECT_THAT(numbers(), ElementsAre(u"54.3%", u"80.8", u"69.9", u"50%"));
}

TEST_F(MixPickerTest, ANumberIsTyped)
{
    chooseSpace(2);
    enter("mixNumber1", u"120");
    enter("mixNumber2", u"100");
    enter("mixNumber3", u"25");
    enter("mixNumber4", u"30");
    EXPECT_NEAR(color().green, 0.5, 1e-9);
    EXPECT_NEAR(color().red + color().blue, 0, 1e-9);
    EXPECT_NEAR(color().alpha, 0.3, 1e-9);
}

TEST_F(MixPickerTest, AColourOutsideSRGBIsHeld)
{
    enter("mixNumber2", u"0.25");
    EXPECT_GT(color().blue, 1);
    EXPECT_TRUE(picker->takesWideGamut());
    EXPECT_THAT(numbers(), ElementsAre(u"62.3%", u"0.250", u"259.8\u00B0", u"100%"));
    EXPECT_NE(view("mixPlane").accessibleDescription()->find(u"outside sRGB"),
              std::u16string::npos);
    panel.changeColor(panelColor(0.5, 0.5, 0.5));
    EXPECT_NE(view("mixPlane").accessibleDescription()->find(u"within sRGB"), std::u16string::npos);
}

TEST_F(MixPickerTest, ADragInThePlaneIsOneChange)
{
    chooseSpace(3);
    const HostRect plane = insetRect(view("mixPlane").bounds(), 8, 8);
    const auto at = [&](double x, double y) {
        return HostPoint{plane.x + x * plane.width, plane.y + y * plane.height};
    };
    panel.deliver({{HostEventType::leftMouseDown, at(0.5, 0.5), 0},
                   {HostEventType::leftMouseDragged, at(0.25, 1), 0},
                   {HostEventType::leftMouseDragged, at(0.25, 1.5), 0},
                   {HostEventType::leftMouseUp, at(0.25, 1), 0}},
                  view("mixPlane"));
    EXPECT_EQ(panel.drags, "(..)");
    EXPECT_THAT(numbers(), ElementsAre(u"217.2\u00B0", u"25.0%", u"100.0%", u"100%"));
    EXPECT_NEAR(color().red, 0.75, 1e-6);
}

TEST_F(MixPickerTest, ADragBeyondWhatScreensShowStaysOnTheBorder)
{
    const HostRect plane = insetRect(view("mixPlane").bounds(), 8, 8);
    const HostPoint corner{plane.maxX(), plane.maxY()};
    panel.deliver(
        {{HostEventType::leftMouseDown, corner, 0}, {HostEventType::leftMouseUp, corner, 0}},
        view("mixPlane"));
    EXPECT_EQ(numbers()[1], u"0.000") << "white has no chroma";
    EXPECT_EQ(numbers()[2], u"259.8\u00B0") << "the hue stays";
}

TEST_F(MixPickerTest, SlidersAndTheBarAreDragged)
{
    const auto dragTo = [&](const char* name, HostPoint at) {
        panel.deliver({{HostEventType::leftMouseDown, at, 0}, {HostEventType::leftMouseUp, at, 0}},
                      view(name));
    };
    dragTo("mixTrack4", {view("mixTrack4").bounds().midX(), 14});
    EXPECT_EQ(numbers()[3], u"50%");
    dragTo("mixBar", {14, view("mixBar").bounds().maxY()});
    EXPECT_EQ(numbers()[2], u"359.9\u00B0");
    dragTo("mixTrack1", {-100, 14});
    EXPECT_EQ(numbers()[0], u"0.0%");
    EXPECT_EQ(panel.drags, "(.)(.)(.)");
}

TEST_F(MixPickerTest, KeysMoveInThePlane)
{
    panel.changeColor(panelColor(0.4, 0.4, 0.4));
    enter("mixNumber1", u"50");
    enter("mixNumber2", u"0.05");
    enter("mixNumber3", u"100");
    press("mixPlane", HostKey::up);
    press("mixPlane", HostKey::right);
    EXPECT_THAT(numbers(), ElementsAre(u"51.0%", u"0.060", u"100.0\u00B0", u"100%"));
    press("mixPlane", HostKey::down, controlModifierFlag);
    press("mixPlane", HostKey::left, controlModifierFlag);
    EXPECT_THAT(numbers(), ElementsAre(u"50.9%", u"0.059", u"100.0\u00B0", u"100%"));
    press("mixPlane", HostKey::down, shiftModifierFlag);
    EXPECT_EQ(numbers()[0], u"40.9%");
    press("mixPlane", HostKey::pageUp);
    EXPECT_EQ(numbers()[2], u"110.0\u00B0");
    press("mixPlane", HostKey::home);
    EXPECT_EQ(numbers()[1], u"0.000");
    EXPECT_EQ(numbers()[2], u"110.0\u00B0");
    EXPECT_FALSE(view("mixPlane").content().keyDown({HostKey::pick, 0}));
    EXPECT_FALSE(view("mixPlane").content().keyDown({HostKey::pageDown, controlModifierFlag}))
        << "it shows the next page";
}

TEST_F(MixPickerTest, KeysAndTheWheelMoveTheSliders)
{
    press("mixTrack4", HostKey::left);
    press("mixTrack4", HostKey::pageDown);
    EXPECT_EQ(numbers()[3], u"89%");
    press("mixTrack4", HostKey::home);
    EXPECT_EQ(numbers()[3], u"0%");
    press("mixTrack4", HostKey::end);
    EXPECT_EQ(numbers()[3], u"100%");
    EXPECT_TRUE(view("mixTrack4").content().scrollWheel({{}, -2, 0}));
    EXPECT_EQ(numbers()[3], u"98%");
    EXPECT_TRUE(view("mixPlane").content().scrollWheel({{}, 1, 0}));
    EXPECT_EQ(numbers()[2], u"260.8\u00B0");
}

TEST_F(MixPickerTest, AScrubIsOneChange)
{
    using Phase = HostTextField::Scrub::Phase;
    auto& field = control<HeadlessTextField>("mixNumber1");
    field.sendScrub({Phase::begin, 0, 0});
    field.sendScrub({Phase::move, 4, 0});
    field.sendScrub({Phase::move, 4, 0});
    field.sendScrub({Phase::end, 0, 0});
    EXPECT_EQ(panel.drags, "(..)");
    EXPECT_EQ(numbers()[0], u"66.3%");
}

TEST_F(MixPickerTest, TheSpaceIsRemembered)
{
    chooseSpace(4);
    start();
    EXPECT_EQ(control<HeadlessButton>("mixSpace4").state(), 1);
    EXPECT_EQ(control<HeadlessButton>("mixSpace1").state(), 0);
}

TEST_F(MixPickerTest, TheChosenSegmentStaysChosen)
{
    chooseSpace(1);
    EXPECT_EQ(control<HeadlessButton>("mixSpace1").state(), 1);
    EXPECT_TRUE(picker->performAction("HSV", nullptr));
    EXPECT_EQ(control<HeadlessButton>("mixSpace3").state(), 1);
    EXPECT_FALSE(picker->performAction("HWB", nullptr));
}

TEST_F(MixPickerTest, ADamagedMemoryCountsAsNone)
{
    for (const char* text : {"", "{", "(1)", "{ Space = XYZ; }", "{ Space = (OKLCH); }"}) {
        chooseSpace(2);
        ASSERT_TRUE(desktop.files().writeAtomically(
            *desktop.files().applicationSupportDirectory() + "/Vantorel/Mix.plist", text));
        start();
        EXPECT_EQ(control<HeadlessButton>("mixSpace1").state(), 1) << text;
    }
}

TEST_F(MixPickerTest, WhatIsNoColourLeavesTheLastOne)
{
    const auto before = numbers();
    for (const auto& other :
         {std::optional<HostColor>(), std::optional(HostColor::patternColor()),
          std::optional(panelColor(std::nan(""), 0, 0)), std::optional(panelColor(0, 0, HUGE_VAL)),
          std::optional(panelColor(1e300, 0, 1e300))}) {
        panel.changeColor(other);
        EXPECT_EQ(numbers(), before);
    }
}

TEST_F(MixPickerTest, EveryViewPaintsItselfAtAnySize)
{
    for (const HostSize size : {HostSize{300, 400}, {240, 240}, {640, 500}, {10, 10}}) {
        panel.resize(size);
        for (int space = 1; space <= 4; ++space) {
            chooseSpace(space);
            for (const char* name : {"mixPlane", "mixBar", "mixTrack1", "mixTrack4"}) {
                const RecordingCanvas canvas = view(name).draw();
                EXPECT_TRUE(std::any_of(canvas.operations().begin(), canvas.operations().end(),
                                        [](const PaintOperation& operation) {
                                            return std::holds_alternative<PixelsOperation>(
                                                operation);
                                        }))
                    << name << " at " << size.width;
            }
        }
    }
}

TEST_F(MixPickerTest, NamesFollowTheSpaceAndTheWidth)
{
    EXPECT_EQ(control<HeadlessTextField>("mixLabel2").stringValue(), u"C");
    chooseSpace(2);
    EXPECT_EQ(control<HeadlessTextField>("mixLabel2").stringValue(), u"S");
    panel.resize({340, 400});
    EXPECT_EQ(control<HeadlessTextField>("mixLabel2").stringValue(), u"Saturation");
    EXPECT_EQ(control<HeadlessTextField>("mixLabel4").stringValue(), u"Opacity");
}

}  // namespace
}  // namespace vantorel
