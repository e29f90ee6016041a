#include "HeadlessUser.h"

#include "testing/headless/MemoryFiles.h"

#include <array>
#include <limits>

namespace vantorel {
namespace {

DriverPanel::Options panelOptions()
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

}  // namespace

HeadlessUser::HeadlessUser(Choices& choices) : _choices(choices), _panel(panelOptions()) {}

void HeadlessUser::act()
{
    QTXHexSettings& settings = _panel.picker().hexSettings();
    switch (_choices.integer(0, 12)) {
        case 0:
            _panel.panel().changeColor(color());
            break;
        case 1: {
            const double width = coordinate();
            _panel.panel().resize({width, coordinate()});
            break;
        }
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
            _panel.desktop().advance(_choices.between(0, 5), [this] { draw(); });
            break;
        case 8: {
            const double x = coordinate();
            _panel.panel().setPointer(HostPoint{x, coordinate()});
            break;
        }
        case 9:
            settings.setNColorCubeRings(static_cast<std::int64_t>(_choices.integer(0, 45)) - 5);
            break;
        case 10:
            settings.setHexColorList(text());
            break;
        case 11:
            settings.setPickViewMode(static_cast<PickViewMode>(_choices.integer(120, 130)));
            break;
        default:
            _panel.picker().syncPanel();
    }
    _panel.desktop().journal().clear();
}

bool HeadlessUser::panelWorks()
{
    _panel.panel().changeColor(
        HostColor::colorWithCalibratedRed(0x33 / 255.0, 0x66 / 255.0, 0x99 / 255.0, 1));
    const std::u16string hex = field("_fullHexText").stringValue();
    return hex == u"#336699" || hex == u"336699";
}

void HeadlessUser::draw()
{
    if (auto* view = _panel.shownView()) static_cast<void>(view->draw());
}

HeadlessTextField& HeadlessUser::field(const char* name)
{
    return *_panel.desktop().interfaceFactory().control<HeadlessTextField>(name);
}

double HeadlessUser::channel()
{
    constexpr std::array strange{std::numeric_limits<double>::quiet_NaN(),
                                 std::numeric_limits<double>::infinity(), -1.0, 1e300, 1.00001};
    return _choices.oneIn(2) ? _choices.fraction() : _choices.oneOf(strange);
}

std::optional<HostColor> HeadlessUser::color()
{
    if (_choices.oneIn(21)) return std::nullopt;
    if (_choices.oneIn(21)) return HostColor::patternColor();
    const double red = channel();
    const double green = channel();
    const double blue = channel();
    return HostColor::colorWithCalibratedRed(red, green, blue, channel());
}

double HeadlessUser::coordinate()
{
    return _choices.oneIn(31) ? channel() * 1e6 : _choices.between(-20, 600);
}

std::u16string HeadlessUser::text()
{
    constexpr std::array usual{u"Mine", u"CSS Keyword", u"rgb(1,2,3)", u"#ff8000", u"n", u"na"};
    if (_choices.oneIn(2)) return _choices.oneOf(usual);
    constexpr std::size_t longest = 20;
    std::u16string units;
    // Every unit, lone halves of surrogate pairs included.
    const std::string bytes = _choices.bytes(longest);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        auto unit = static_cast<unsigned char>(bytes[i]);
        if (unit < 0x80 || i + 1 == bytes.size()) {
            units += static_cast<char16_t>(unit);
        } else {
            units += static_cast<char16_t>((unit << 8) | static_cast<unsigned char>(bytes[++i]));
        }
    }
    return units;
}

void HeadlessUser::deliver()
{
    auto* view = _panel.customView("_hexColorsView");
    if (view->superview() == nullptr) return;
    constexpr std::array types{HostEventType::leftMouseDown, HostEventType::leftMouseDragged,
                               HostEventType::leftMouseUp, HostEventType::mouseMoved};
    std::vector<HostEvent> events(_choices.integer(1, 8));
    for (HostEvent& event : events) {
        event.type = _choices.oneOf(types);
        event.location.x = coordinate();
        event.location.y = coordinate();
        event.modifierFlags = static_cast<std::uint32_t>(
            _choices.integer(0, std::numeric_limits<std::uint32_t>::max()));
    }
    _panel.panel().deliver(events, *view);
}

void HeadlessUser::type()
{
    constexpr std::array names{"_fullHexText", "_rgbDecimalText", "_redHexText", "_greenHexText",
                               "_blueHexText"};
    HeadlessTextField& typed = field(_choices.oneOf(names));
    const std::u16string entry = text();
    typed.type(entry, _choices.integer(0, entry.size()));
    if (_choices.oneIn(2)) {
        _panel.endEditing();
        typed.sendAction();
    }
}

void HeadlessUser::choose()
{
    constexpr std::array names{"hexColorsListPopUp", "hexColorNamePopUp",   "componentDisplayPopUp",
                               "entryFormPopUp",     "cCodeEntryFormPopUp", "codeDragTypePopUp"};
    auto& popUp =
        *_panel.desktop().interfaceFactory().control<HostPopUpButton>(_choices.oneOf(names));
    popUp.sendWillPopUp();
    if (popUp.numberOfItems() == 0) return;
    const auto index =
        static_cast<int>(_choices.integer(0, static_cast<unsigned>(popUp.numberOfItems() - 1)));
    const HostMenuItem item = popUp.menu()[static_cast<std::size_t>(index)];
    if (item.submenu) {
        const HostMenu submenu = item.submenu();
        if (submenu.empty()) return;
        const HostMenuItem& chosen = _choices.oneOf(submenu);
        if (chosen.action) chosen.action(chosen);
    } else if (!item.separator) {
        popUp.selectItemAtIndex(index);
        popUp.sendAction();
    }
}

void HeadlessUser::perform()
{
    constexpr std::array names{"settingsButtonAction",    "settingsDoneButtonAction",
                               "sliderViewModeAction",    "paletteViewModeAction",
                               "cubeViewModeAction",      "increaseCubeRingsAction",
                               "decreaseCubeRingsAction", "poundSignAction",
                               "moreIndicatorAction",     "helpHexColorAction"};
    _panel.picker().performAction(_choices.oneOf(names), nullptr);
}

}  // namespace vantorel
