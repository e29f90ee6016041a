#include "ConformanceTest.h"

namespace vantorel {
namespace {

class ViewsConformance : public ConformanceTest {
protected:
    [[nodiscard]] std::unique_ptr<HostView> shownView(HostView& superview, HostRect frame)
    {
        auto view = factory.makeView(described(frame));
        superview.addSubview(*view);
        return view;
    }

    void expectPixel(HostPoint at, const std::array<int, 3>& color)
    {
        static_cast<void>(host->runUntil([&] { return host->pixelAt(at) == color; }));
        EXPECT_EQ(host->pixelAt(at), color) << at.x << ", " << at.y;
    }
};

constexpr std::array red{255, 0, 0};
constexpr std::array blue{0, 0, 255};

TEST_F(ViewsConformance, FramesWithYUpAreSeenWithYDown)
{
    const auto outer = shownView(root, {10, 20, 100, 50});
    const auto inner = shownView(*outer, {5, 6, 20, 10});
    expectPlace(*outer, PixelRect{10, 130, 100, 50});
    expectPlace(*inner, PixelRect{15, 164, 20, 10});
    outer->setFrame({30, 40, 80, 60});
    expectPlace(*outer, PixelRect{30, 100, 80, 60});
    expectPlace(*inner, PixelRect{35, 144, 20, 10});
}

TEST_F(ViewsConformance, ControlsHaveTheFramesOfTheirViewsWhateverTheThemeWants)
{
    auto description = described({10, 20, 22, 12});
    description.title = u"Done";
    const auto button = factory.makeButton(description);
    description.frame = {50, 20, 30, 14};
    const auto field = factory.makeTextField(description);
    description.frame = {100, 20, 20, 12};
    const auto popUp = factory.makePopUpButton(description);
    root.addSubview(*button);
    root.addSubview(*field);
    root.addSubview(*popUp);
    expectPlace(*button, PixelRect{10, 168, 22, 12});
    expectPlace(*field, PixelRect{50, 166, 30, 14});
    expectPlace(*popUp, PixelRect{100, 168, 20, 12});
}

TEST_F(ViewsConformance, EdgesAreRoundedSoThatNeighboursMeet)
{
    const auto left = shownView(root, {0, 0, 33.4, 10.6});
    const auto right = shownView(root, {33.4, 0, 33.4, 10.6});
    const auto above = shownView(root, {0, 10.6, 33.4, 10.6});
    for (const HostView* view : {left.get(), right.get(), above.get()})
        expectPlace(*view, pixelFrame(view->frame(), root.bounds(), 1));
    EXPECT_EQ(host->placeOf(*left)->x + host->placeOf(*left)->width, host->placeOf(*right)->x);
    EXPECT_EQ(host->placeOf(*above)->y + host->placeOf(*above)->height, host->placeOf(*left)->y);
}

TEST_F(ViewsConformance, ASubviewFollowsTheOriginOfTheBounds)
{
    const auto outer = shownView(root, {10, 20, 100, 50});
    const auto inner = shownView(*outer, {5, 6, 20, 10});
    outer->setBounds({5, 6, 0, 0});
    expectPlace(*inner, PixelRect{10, 170, 20, 10});
}

TEST_F(ViewsConformance, ViewsFollowTheWindowByTheirResizingRules)
{
    const auto atBottom = shownView(root, {10, 20, 40, 20});
    const auto atTop = shownView(root, {60, 20, 40, 20});
    atTop->setResizing({.bottomMargin = true});
    const auto wide = shownView(root, {110, 20, 100, 20});
    wide->setResizing({.width = true, .height = true});
    for (const HostSize size : {HostSize{330, 240}, HostSize{300, 200}, HostSize{320, 210}}) {
        host->resizeWindow(size);
        const int higher = static_cast<int>(size.height) - 200;
        const int wider = static_cast<int>(size.width) - 300;
        expectPlace(*atBottom, PixelRect{10, 160 + higher, 40, 20});
        expectPlace(*atTop, PixelRect{60, 160, 40, 20});
        expectPlace(*wide, PixelRect{110, 160, 100 + wider, 20 + higher});
    }
}

TEST_F(ViewsConformance, WhatIsParkedOutsideOrTakenOutIsNotSeen)
{
    const auto outer = shownView(root, {10, 20, 100, 50});
    const auto inner = factory.makeTextField(described({5, 6, 20, 10}));
    outer->addSubview(*inner);
    const PixelRect place{15, 164, 20, 10};
    expectPlace(*inner, place);
    inner->setParked(true);
    expectPlace(*inner, std::nullopt);
    inner->setParked(false);
    expectPlace(*inner, place);
    inner->setFrameOrigin({-500, 6});
    expectPlace(*inner, std::nullopt);
    inner->setFrameOrigin({5, 500});
    expectPlace(*inner, std::nullopt);
    inner->setFrameOrigin({5, 6});
    expectPlace(*inner, place);
    outer->setParked(true);
    expectPlace(*inner, std::nullopt);
    outer->setParked(false);
    expectPlace(*inner, place);
    inner->removeFromSuperview();
    expectPlace(*inner, std::nullopt);
    root.addSubview(*inner);
    expectPlace(*inner, PixelRect{5, 184, 20, 10});
}

TEST_F(ViewsConformance, AParkedViewStaysParkedWhereverThePageMovesIt)
{
    const auto view = shownView(root, {-500, 20, 40, 20});
    view->setParked(true);
    view->setFrame({10, 20, 40, 20});
    host->resizeWindow({600, 300});
    host->handleEvents();
    expectPlace(*view, std::nullopt);
    EXPECT_EQ(view->frame(), (HostRect{10, 20, 40, 20}));
}

TEST_F(ViewsConformance, AViewGoesWithItsObject)
{
    RecordedContent content;
    auto view = factory.makeCustomView(described({10, 20, 40, 20}), content);
    root.addSubview(*view);
    expectPixel({20, 30}, red);
    view.reset();
    EXPECT_TRUE(host->runUntil([this] { return host->pixelAt({20, 30}) != red; }));
}

TEST_F(ViewsConformance, ANewSubviewIsOnTop)
{
    RecordedContent below;
    RecordedContent above;
    above.color = HostColor::colorWithCalibratedRed(0, 0, 1, 1);
    const auto first = factory.makeCustomView(described({10, 20, 60, 60}), below);
    const auto second = factory.makeCustomView(described({40, 20, 60, 60}), above);
    root.addSubview(*first);
    root.addSubview(*second);
    expectPixel({20, 30}, red);
    expectPixel({50, 30}, blue);
    root.addSubview(*first);
    expectPixel({50, 30}, blue);
    first->removeFromSuperview();
    root.addSubview(*first);
    expectPixel({50, 30}, red);
    expectPixel({80, 30}, blue);
}

TEST_F(ViewsConformance, AContentIsPaintedInItsOwnCoordinates)
{
    RecordedContent below;
    below.color = HostColor::colorWithCalibratedRed(0, 0, 1, 1);
    RecordedContent content;
    const auto ground = factory.makeCustomView(described({0, 0, 300, 200}), below);
    const auto view = factory.makeCustomView(described({20, 40, 60, 80}), content);
    root.addSubview(*ground);
    ground->addSubview(*view);
    content.filled = {100, 1000, 30, 10};
    view->setBounds({100, 1000, 0, 0});
    view->setNeedsDisplay(true);
    expectPixel({22, 42}, red);
    expectPixel({48, 48}, red);
    expectPixel({52, 42}, blue);
    expectPixel({22, 52}, blue);
}

TEST_F(ViewsConformance, WhatIsMarkedIsPaintedAgain)
{
    RecordedContent content;
    const auto view = factory.makeCustomView(described({20, 40, 60, 80}), content);
    root.addSubview(*view);
    expectPixel({30, 50}, red);
    EXPECT_FALSE(view->needsDisplay());
    content.color = HostColor::colorWithCalibratedRed(0, 0, 1, 1);
    view->setNeedsDisplay(true);
    EXPECT_TRUE(view->needsDisplay());
    expectPixel({30, 50}, blue);
    content.color = HostColor::colorWithCalibratedRed(1, 0, 0, 1);
    view->setNeedsDisplayInRect({0, 0, 20, 20});
    expectPixel({30, 50}, red);
}

TEST_F(ViewsConformance, ToolTipsAreShownAsTheyAreWritten)
{
    const auto view = shownView(root, {10, 20, 40, 20});
    EXPECT_EQ(host->tipOf(*view), std::nullopt);
    view->setToolTip(u"<b>bold</b> & more");
    EXPECT_EQ(host->tipOf(*view), u"<b>bold</b> & more");
    view->setToolTip(u"plain");
    EXPECT_EQ(host->tipOf(*view), u"plain");
    view->setToolTip(std::nullopt);
    EXPECT_EQ(host->tipOf(*view), std::nullopt);
    view->setToolTip(u"  ");
    EXPECT_EQ(host->tipOf(*view), std::nullopt) << "it would be an empty box";
}

TEST_F(ViewsConformance, ViewsOutliveTheirWindow)
{
    RecordedContent content;
    const auto view = factory.makeCustomView(described({0, 0, 90, 90}), content);
    const auto plain = factory.makeView(described({0, 0, 90, 90}));
    const auto field = factory.makeTextField(described({100, 0, 90, 22}));
    auto labelDescription = described({100, 30, 90, 22});
    labelDescription.editable = false;
    const auto label = factory.makeTextField(labelDescription);
    auto toggleDescription = described({100, 60, 90, 22});
    toggleDescription.buttonKind = HostControlDescription::ButtonKind::toggle;
    const auto button = factory.makeButton(toggleDescription);
    const auto popUp = factory.makePopUpButton(described({100, 90, 90, 22}));
    const std::vector<HostView*> views{view.get(),  plain.get(),  field.get(),
                                       label.get(), button.get(), popUp.get()};
    for (HostView* shown : views)
        root.addSubview(*shown);
    host->handleEvents();
    host->destroyWindow();
    for (HostView* gone : views) {
        gone->setFrame({5, 5, 50, 50});
        gone->setToolTip(u"tip");
        gone->setNeedsDisplay(true);
        gone->setParked(true);
        gone->setGroundColor(HostColor::blackColor());
        expectPlace(*gone, std::nullopt);
    }
    static_cast<void>(view->addTrackingRect({0, 0, 10, 10}, true));
    field->setStringValue(u"text");
    static_cast<void>(field->stringValue());
    field->setTextColor(HostColor::blackColor());
    field->setStep([](int, std::uint64_t) {});
    EXPECT_EQ(host->panel().fieldEditor(*field), nullptr);
    label->setStringValue(u"text");
    label->setTextColor(HostColor::blackColor());
    button->setState(1);
    EXPECT_EQ(button->state(), 1);
    popUp->setItems({titledItem(u"One")});
    EXPECT_EQ(popUp->titleOfSelectedItem(), u"One");
    static_cast<void>(host->panel().mouseLocation(*view));
    host->panel().setAcceptsMouseMovedEvents(true);
    const auto event = host->panel().nextEventMatchingMask(
        maskOfEventType(HostEventType::leftMouseDragged), *view);
    EXPECT_EQ(event.type, HostEventType::leftMouseUp);
}

}  // namespace
}  // namespace vantorel
