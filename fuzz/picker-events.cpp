#include "FuzzTexts.h"
#include "driver/DriverSession.h"
#include "hosts/headless/MemoryFiles.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <limits>

/// Sequences of what a user and a panel can do to the whole picker.
namespace {

using namespace vantorel;

/// A user with a colour panel, who does what the input says.
class User {
public:
    explicit User(FuzzedDataProvider& input) : _input(input), _panel(options()) {}

    void act()
    {
        switch (_input.ConsumeIntegralInRange(0, 12)) {
            case 0:
                _panel.panel().changeColor(color());
                break;
            case 1:
                _panel.panel().resize({coordinate(), coordinate()});
                break;
            case 2:
                deliver();
                break;
            case 3:
                type();
                break;
            case 4:
                choose();
                break;
            case 5:
                perform();
                break;
            case 6:
                draw();
                break;
            case 7:
                _panel.desktop().advance(_input.ConsumeFloatingPointInRange<double>(0, 5),
                                         [this] { draw(); });
                break;
            case 8:
                _panel.panel().setPointer(HostPoint{coordinate(), coordinate()});
                break;
            case 9:
                _panel.picker().hexSettings().setNColorCubeRings(
                    _input.ConsumeIntegralInRange(-5, 40));
                break;
            case 10:
                _panel.picker().hexSettings().setHexColorList(text());
                break;
            case 11:
                _panel.picker().hexSettings().setPickViewMode(
                    static_cast<PickViewMode>(_input.ConsumeIntegralInRange(120, 130)));
                break;
            default:
                _panel.picker().syncPanel();
        }
        _panel.desktop().journal().clear();
    }

    /// After anything, a colour of the panel shows in the fields.
    void expectToWork()
    {
        _panel.panel().changeColor(
            HostColor::colorWithCalibratedRed(0x33 / 255.0, 0x66 / 255.0, 0x99 / 255.0, 1));
        const std::u16string hex = field("_fullHexText").stringValue();
        require(hex == u"#336699" || hex == u"336699");
    }

private:
    static DriverPanel::Options options()
    {
        DriverPanel::Options options;
        options.files = std::make_unique<MemoryFiles>();
        auto list = std::make_shared<HostColorList>(u"Mine");
        list->setColor(HostColor::blackColor(), u"black");
        list->setColor(HostColor::colorWithCalibratedRed(0.05, 0, 0, 1), u"close");
        list->setColor(HostColor::patternColor(), u"pattern");
        options.lists.push_back(list);
        return options;
    }

    void draw()
    {
        if (auto* view = _panel.shownView()) static_cast<void>(view->draw());
    }

    HeadlessTextField& field(const char* name)
    {
        return *_panel.desktop().interfaceFactory().control<HeadlessTextField>(name);
    }

    double channel()
    {
        if (_input.ConsumeBool()) return _input.ConsumeProbability<double>();
        constexpr std::array strange{std::numeric_limits<double>::quiet_NaN(),
                                     std::numeric_limits<double>::infinity(), -1.0, 1e300, 1.00001};
        return strange[_input.ConsumeIntegralInRange<std::size_t>(0, strange.size() - 1)];
    }

    std::optional<HostColor> color()
    {
        if (_input.ConsumeIntegralInRange(0, 20) == 0) return std::nullopt;
        if (_input.ConsumeIntegralInRange(0, 20) == 0) return HostColor::patternColor();
        const double red = channel();
        const double green = channel();
        const double blue = channel();
        return HostColor::colorWithCalibratedRed(red, green, blue, channel());
    }

    double coordinate()
    {
        if (_input.ConsumeIntegralInRange(0, 30) == 0) return channel() * 1e6;
        return _input.ConsumeFloatingPointInRange<double>(-20, 600);
    }

    std::u16string text()
    {
        constexpr std::array usual{u"Mine", u"CSS Keyword", u"rgb(1,2,3)", u"#ff8000", u"n", u"na"};
        if (_input.ConsumeBool()) {
            return usual[_input.ConsumeIntegralInRange<std::size_t>(0, usual.size() - 1)];
        }
        return unitsFrom(_input.ConsumeRandomLengthString(20));
    }

    void deliver()
    {
        auto* view = _panel.customView("_hexColorsView");
        if (view->superview() == nullptr) return;
        constexpr std::array types{HostEventType::leftMouseDown, HostEventType::leftMouseDragged,
                                   HostEventType::leftMouseUp, HostEventType::mouseMoved};
        std::vector<HostEvent> events;
        for (int i = _input.ConsumeIntegralInRange(1, 8); i > 0; --i) {
            HostEvent event;
            event.type = types[_input.ConsumeIntegralInRange<std::size_t>(0, types.size() - 1)];
            event.location = {coordinate(), coordinate()};
            event.modifierFlags = _input.ConsumeIntegral<std::uint32_t>();
            events.push_back(event);
        }
        _panel.panel().deliver(events, *view);
    }

    void type()
    {
        constexpr std::array names{"_fullHexText", "_rgbDecimalText", "_redHexText",
                                   "_greenHexText", "_blueHexText"};
        auto& typed = field(names[_input.ConsumeIntegralInRange<std::size_t>(0, names.size() - 1)]);
        const std::u16string entry = text();
        typed.type(entry, _input.ConsumeIntegralInRange<std::size_t>(0, entry.size()));
        if (_input.ConsumeBool()) {
            _panel.endEditing();
            typed.sendAction();
        }
    }

    void choose()
    {
        constexpr std::array names{"hexColorsListPopUp",    "hexColorNamePopUp",
                                   "componentDisplayPopUp", "entryFormPopUp",
                                   "cCodeEntryFormPopUp",   "codeDragTypePopUp"};
        auto& popUp = *_panel.desktop().interfaceFactory().control<HostPopUpButton>(
            names[_input.ConsumeIntegralInRange<std::size_t>(0, names.size() - 1)]);
        popUp.sendWillPopUp();
        if (popUp.numberOfItems() == 0) return;
        const int index = _input.ConsumeIntegralInRange(0, popUp.numberOfItems() - 1);
        const HostMenuItem item = popUp.menu()[static_cast<std::size_t>(index)];
        if (item.submenu) {
            const HostMenu submenu = item.submenu();
            if (submenu.empty()) return;
            const HostMenuItem& chosen =
                submenu[_input.ConsumeIntegralInRange<std::size_t>(0, submenu.size() - 1)];
            if (chosen.action) chosen.action(chosen);
        } else if (!item.separator) {
            popUp.selectItemAtIndex(index);
            popUp.sendAction();
        }
    }

    void perform()
    {
        constexpr std::array names{"settingsButtonAction",    "settingsDoneButtonAction",
                                   "sliderViewModeAction",    "paletteViewModeAction",
                                   "cubeViewModeAction",      "increaseCubeRingsAction",
                                   "decreaseCubeRingsAction", "poundSignAction",
                                   "moreIndicatorAction",     "helpHexColorAction"};
        _panel.picker().performAction(
            names[_input.ConsumeIntegralInRange<std::size_t>(0, names.size() - 1)], nullptr);
    }

    FuzzedDataProvider& _input;
    DriverPanel _panel;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    User user(input);
    while (input.remaining_bytes() > 0)
        user.act();
    user.expectToWork();
    return 0;
}
