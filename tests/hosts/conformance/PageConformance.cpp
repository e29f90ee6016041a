#include "ConformanceTest.h"

#include "embedding/PageLibrary.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <regex>
#include <stdexcept>

namespace vantorel {
namespace {

using testing::Contains;
using testing::Ne;

const LoadedPlugin* thePage()
{
    return pageOfLibrary(VANTOREL_PICKERS "/QTXHexColorPicker.so");
}

HostView* viewNamed(HostUnderTest& host, HostView& view, const std::string& name)
{
    if (host.identifierOf(view) == name) return &view;
    for (HostView* subview : view.subviews()) {
        if (HostView* found = viewNamed(host, *subview, name)) return found;
    }
    return nullptr;
}

/// A control of a page, by its name in the interface file.
template <class Control>
Control& controlOf(HostUnderTest& host, const std::string& name)
{
    auto* control = dynamic_cast<Control*>(viewNamed(host, host.root(), name));
    if (control == nullptr) throw std::runtime_error("no control is called " + name);
    return *control;
}

void enter(HostUnderTest& host, const std::string& name, const std::u16string& text)
{
    auto& field = controlOf<HostTextField>(host, name);
    host.clickInto(field);
    if (HostFieldEditor* editor = host.panel().fieldEditor(field))
        editor->setSelectedRange({0, field.stringValue().size()});
    host.type(field, text);
    host.pressKey(field, HandKey::enter);
}

void click(HostUnderTest& host, const std::string& name)
{
    host.click(controlOf<HostButton>(host, name));
}

bool choose(HostUnderTest& host, const std::string& name, const std::vector<std::u16string>& path)
{
    host.open(controlOf<HostPopUpButton>(host, name));
    return host.choose(path);
}

/// The painted view, when it is painted: before that there is nothing to click on.
HostCustomView& paintedView(HostUnderTest& host)
{
    auto& view = controlOf<HostCustomView>(host, "_hexColorsView");
    EXPECT_TRUE(host.runUntil([&] { return !view.needsDisplay(); }));
    return view;
}

/// Presses at the first point of the painted view, and releases at the last.
void turn(HostUnderTest& host, const std::vector<HostPoint>& points)
{
    std::vector<HandStep> steps{pressAt(points.front())};
    for (const HostPoint& point : points)
        steps.emplace_back(dragTo(point));
    steps.emplace_back(releaseAt(points.back()));
    host.turnMouse(paintedView(host), std::move(steps));
}

/// Clicks on the middle of the painted view moved by that much, without moving.
void clickBeside(HostUnderTest& host, double x, double y)
{
    auto& view = paintedView(host);
    const HostPoint at{view.bounds().midX() + x, view.bounds().midY() + y};
    host.turnMouse(view, {pressAt(at), releaseAt(at)});
}

/// The names and classes in the interface file, in its order.
std::vector<std::pair<std::string, std::string>> describedControls()
{
    std::ifstream file(VANTOREL_RESOURCES "/QTXHexPick");
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::regex pattern("Name = \"?([A-Za-z_]+)\"?; Class = ([A-Za-z]+);");
    std::vector<std::pair<std::string, std::string>> controls;
    for (std::sregex_iterator it(text.begin(), text.end(), pattern); it != std::sregex_iterator();
         ++it)
        controls.emplace_back((*it)[1], (*it)[2]);
    return controls;
}

/// The files of a user who has the page's own lists. A process makes these lists only once.
const std::filesystem::path& filesOfLists()
{
    static const NewUser first;
    static const bool isMade = [] {
        const auto host = makeHeadlessHost();
        return thePage() != nullptr && host->showPage(*thePage());
    }();
    EXPECT_TRUE(isMade) << "no page";
    return first.home();
}

/// The page on the host under test and on the headless host, operated alike.
class PageConformance : public ConformanceTest {
protected:
    PageConformance()
    {
        for (const NewUser* each : {&user, &headlessUser})
            std::filesystem::copy(lists, each->home(), std::filesystem::copy_options::recursive);
        for (HostUnderTest* each : {host.get(), headless.get()}) {
            resize(*each, {260, 300});
            if (thePage() == nullptr || !each->showPage(*thePage())) {
                ADD_FAILURE() << "no page";
                continue;
            }
            each->handleEvents();
        }
    }

    static void resize(HostUnderTest& each, HostSize size)
    {
        each.resizeWindow(size);
        each.handleEvents();
    }

    /// Does the same on both hosts, which must then have the same colour.
    void expectSame(const std::function<void(HostUnderTest&)>& act)
    {
        act(*headless);
        act(*host);
        host->handleEvents();
        EXPECT_EQ(host->page().color(), headless->page().color());
        EXPECT_EQ(text("_fullHexText"), headlessText("_fullHexText"));
    }

    [[nodiscard]] std::u16string text(const std::string& name)
    {
        return host->textIn(controlOf<HostTextField>(*host, name));
    }
    [[nodiscard]] std::u16string headlessText(const std::string& name)
    {
        return controlOf<HostTextField>(*headless, name).stringValue();
    }

    /// Waits until all controls are seen where the headless host has them.
    void expectPlacesOfHeadless()
    {
        const auto isInPlace = [this](const std::string& name) {
            HostView* view = viewNamed(*host, root, name);
            HostView* expected = viewNamed(*headless, headless->root(), name);
            if (view == nullptr || expected == nullptr) return view == nullptr && !expected;
            return view->frame() == expected->frame() &&
                   isSameRoom(*view, host->placeOf(*view), headless->placeOf(*expected));
        };
        const auto controls = describedControls();
        static_cast<void>(host->runUntil([&] {
            return std::all_of(controls.begin(), controls.end(),
                               [&](const auto& control) { return isInPlace(control.first); });
        }));
        for (const auto& [name, className] : controls)
            EXPECT_TRUE(isInPlace(name)) << name << " of class " << className;
    }

    /// A host may show a label wider than its frame, if its font asks for it.
    [[nodiscard]] static bool isSameRoom(const HostView& view, const std::optional<PixelRect>& seen,
                                         const std::optional<PixelRect>& expected)
    {
        const auto* label = dynamic_cast<const HostTextField*>(&view);
        if (label == nullptr || !seen || !expected) return seen == expected;
        return seen->y == expected->y && seen->height == expected->height &&
               seen->x <= expected->x && seen->x + seen->width >= expected->x + expected->width;
    }

    const std::filesystem::path& lists = filesOfLists();
    NewUser headlessUser;
    std::unique_ptr<HostUnderTest> headless = makeHeadlessHost();
};

TEST_F(PageConformance, EveryControlOfTheInterfaceFileIsThereAndHasAName)
{
    std::vector<std::string> missing;
    for (const auto& [name, className] : describedControls())
        missing.push_back(name);
    EXPECT_GT(missing.size(), 25U);
    const auto look = [&] {
        std::erase_if(missing, [this](const std::string& name) {
            const HostView* view = viewNamed(*host, root, name);
            if (view == nullptr) return false;
            EXPECT_NE(host->spokenNameOf(*view), u"") << name;
            return true;
        });
    };
    look();
    // The settings take the place of the colours.
    click(*host, "settingsButton");
    look();
    EXPECT_TRUE(missing.empty()) << missing.front();
}

TEST_F(PageConformance, ControlsAreSeenWhereTheHeadlessHostHasThem)
{
    for (const HostSize size :
         {HostSize{260, 300}, HostSize{401, 333}, HostSize{640, 480}, HostSize{231, 290}}) {
        SCOPED_TRACE(size.width);
        resize(*host, size);
        resize(*headless, size);
        expectPlacesOfHeadless();
        for (HostUnderTest* each : {host.get(), headless.get()})
            click(*each, "settingsButton");
        expectPlacesOfHeadless();
        for (HostUnderTest* each : {host.get(), headless.get()})
            click(*each, "settingsDoneButton");
        expectPlacesOfHeadless();
    }
}

TEST_F(PageConformance, EnteredTextsChooseTheSameColours)
{
    struct Row {
        const char* field;
        const char16_t* text;
    };
    for (const Row& row :
         {Row{"_fullHexText", u"#12f"}, Row{"_fullHexText", u"zz"}, Row{"_redHexText", u"7"},
          Row{"_greenHexText", u"ff"}, Row{"_blueHexText", u"0"}, Row{"_rgbDecimalText", u"navy"},
          Row{"_rgbDecimalText", u"rgb(1, 20, 255)"}}) {
        SCOPED_TRACE(row.field);
        expectSame([&](HostUnderTest& each) { enter(each, row.field, row.text); });
        EXPECT_EQ(text("_rgbDecimalText"), headlessText("_rgbDecimalText"));
    }
}

TEST_F(PageConformance, ChoosingInPopUpsDoesTheSame)
{
    expectSame([](HostUnderTest& each) {
        EXPECT_TRUE(choose(each, "hexColorsListPopUp", {u"CSS Keyword"}));
    });
    expectSame(
        [](HostUnderTest& each) { EXPECT_TRUE(choose(each, "hexColorNamePopUp", {u"navy"})); });
    EXPECT_EQ(host->page().color(), HostColor::colorWithCalibratedRed(0, 0, 128 / 255.0, 1));
    // In a submenu.
    expectSame([](HostUnderTest& each) {
        EXPECT_TRUE(choose(each, "hexColorsListPopUp", {u"Remove", u"SVG Keyword"}));
        EXPECT_FALSE(choose(each, "hexColorsListPopUp", {u"SVG Keyword"}));
        EXPECT_TRUE(choose(each, "hexColorsListPopUp", {u"Add", u"SVG Keyword"}));
        EXPECT_TRUE(choose(each, "hexColorsListPopUp", {u"SVG Keyword"}));
    });
}

TEST_F(PageConformance, SettingsChangeTheTextsAlike)
{
    enter(*host, "_fullHexText", u"#abcdef");
    enter(*headless, "_fullHexText", u"#abcdef");
    for (const char* pressed : {"settingsButton", "poundSignCheckbox", "settingsDoneButton"})
        expectSame([&](HostUnderTest& each) { click(each, pressed); });
    EXPECT_EQ(text("_fullHexText").find(u'#'), std::u16string::npos);
}

TEST_F(PageConformance, ADragInTheSliderChoosesTheSameColours)
{
    // From one column of digits through the next ones.
    for (const double x : {20.0, 90.0, 170.0}) {
        expectSame([x](HostUnderTest& each) {
            turn(each, {{x, 40}, {x, 60}, {x, 90}, {x, 120}, {x + 4, 122}});
        });
        EXPECT_NE(host->page().color(), HostColor::blackColor());
    }
}

TEST_F(PageConformance, ADragIsOneChoice)
{
    turn(*host, {{20, 40}, {20, 60}, {20, 90}, {20, 120}});
    ASSERT_TRUE(host->runUntil([this] { return !host->dialog().finalColors.empty(); }));
    host->handleEvents();
    EXPECT_EQ(host->dialog().finalColors.size(), 1U);
    EXPECT_EQ(host->dialog().finalColors.back(), host->page().color());
}

TEST_F(PageConformance, ClicksInPaletteAndWheelChooseTheSameColours)
{
    for (const char* mode : {"paletteViewModeButton", "wheelViewModeButton"}) {
        SCOPED_TRACE(mode);
        expectSame([mode](HostUnderTest& each) { click(each, mode); });
        EXPECT_TRUE(host->isOn(controlOf<HostButton>(*host, mode)));
        EXPECT_FALSE(host->isOn(controlOf<HostButton>(*host, "pickViewModeButton")));
        std::vector<HostColor> colors;
        for (const auto& [x, y] : {std::pair{12.0, 12.0}, std::pair{-30.0, 7.0},
                                   std::pair{25.0, -40.0}, std::pair{-55.0, 33.0}}) {
            expectSame([x = x, y = y](HostUnderTest& each) { clickBeside(each, x, y); });
            colors.push_back(host->page().color());
        }
        EXPECT_THAT(colors, Contains(Ne(colors.front())));
    }
}

TEST_F(PageConformance, AColourFromOutsideIsShownAndNotSentBack)
{
    const HostColor green = HostColor::colorWithCalibratedRed(0, 1, 0, 1);
    for (HostUnderTest* each : {host.get(), headless.get()}) {
        each->page().dialogColorDidChange(green);
        each->handleEvents();
    }
    for (const char* field : {"_fullHexText", "_rgbDecimalText", "_greenHexText"})
        EXPECT_EQ(text(field), headlessText(field)) << field;
    EXPECT_EQ(text("_fullHexText"), u"#00FF00");
    EXPECT_TRUE(host->dialog().finalColors.empty());
}

TEST_F(PageConformance, ADragOutOfThePaletteCarriesTheSame)
{
    for (HostUnderTest* each : {host.get(), headless.get()}) {
        enter(*each, "_fullHexText", u"#336699");
        click(*each, "paletteViewModeButton");
        auto& view = paintedView(*each);
        const HostPoint from{view.bounds().midX() + 12, view.bounds().midY() + 12};
        const HostPoint far{from.x + 60, from.y + 40};
        each->turnMouse(view, {pressAt(from, alternateModifierFlag),
                               dragTo({from.x + 10, from.y + 10}, alternateModifierFlag),
                               dragTo(far, alternateModifierFlag), releaseAt(far)});
    }
    ASSERT_TRUE(headless->carried().has_value());
    EXPECT_EQ(host->carried(), headless->carried());
}

TEST_F(PageConformance, TheWindowMayGoInTheMiddleOfADrag)
{
    auto& view = paintedView(*host);
    host->turnMouse(view, {pressAt({20, 40}), dragTo({20, 80}), [this] { host->destroyWindow(); },
                           dragTo({20, 120}), releaseAt({20, 120})});
    EXPECT_FALSE(host->page().isBusy());
    host->page().close();
    EXPECT_FALSE(host->dialog().hasFailed);
}

TEST_F(PageConformance, ThePageMayBeTakenOutInTheMiddleOfADrag)
{
    auto& view = paintedView(*host);
    host->turnMouse(view, {pressAt({20, 40}), dragTo({20, 80}),
                           [this] { host->page().view()->removeFromSuperview(); },
                           dragTo({20, 120}), releaseAt({20, 120})});
    EXPECT_FALSE(host->page().isBusy());
    host->page().close();
    EXPECT_FALSE(host->dialog().hasFailed);
}

TEST_F(PageConformance, ThePageMayGoWhileItsMenuIsOpen)
{
    for (const char* popUp : {"hexColorsListPopUp", "hexColorNamePopUp"}) {
        host = makeHostUnderTest();
        host->showWindow();
        ASSERT_TRUE(host->showPage(*thePage()));
        host->handleEvents();
        host->open(controlOf<HostPopUpButton>(*host, popUp));
        ASSERT_TRUE(host->hasOpenMenu());
        host->page().close();
        EXPECT_TRUE(host->runUntil([this] { return !host->hasOpenMenu(); }));
        EXPECT_FALSE(host->dialog().hasFailed);
    }
}

}  // namespace
}  // namespace vantorel
