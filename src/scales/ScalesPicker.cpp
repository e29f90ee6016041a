#include "scales/ScalesPicker.h"

#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "host/HostInterfaceFactory.h"
#include "scales/ScalesMemory.h"
#include "scales/ScalesSections.h"

#include <array>
#include <utility>

namespace vantorel {
namespace {

/// The sections by the names of the actions that show them, in their order.
constexpr std::array<std::string_view, 5> sectionNames{"scale", "schemes", "gradient", "contrast",
                                                       "vision"};

}  // namespace

ScalesPicker::~ScalesPicker()
{
    if (_memoryTimer) remember();
}

std::u16string ScalesPicker::buttonToolTip() const
{
    HostDesktop& desktop = colorPanel().desktop();
    return desktop.localizedString(u"Scales") + u": " +
           desktop.localizedString(u"scales, schemes, gradients and contrasts of a colour");
}

std::string ScalesPicker::buttonImage() const
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16" fill="none" )"
           R"(stroke="currentColor" stroke-width="1.4" stroke-linejoin="round" )"
           R"(stroke-linecap="round"><path d="M2 13.500v-2M5 13.500v-4.500M8 13.500v-7M11 )"
           R"(13.500v-9M14 13.500v-11"/></svg>)";
}

HostView* ScalesPicker::provideNewView(bool initialRequest)
{
    if (!initialRequest || _page) return _page.get();
    HostControlDescription description;
    description.identifier = "scalesPage";
    description.frame = {0, 0, leastScalesPage.width, leastScalesPage.height};
    description.accessibleName = colorPanel().desktop().localizedString(u"Scales");
    _page = colorPanel().desktop().interfaceFactory().makeView(description);
    readScalesMemory(colorPanel().desktop().files(), _model, sectionNames, _chosen);
    _model.takeColor(colorPanel().color());
    makeSections();
    makeChoice();
    layOut();
    return _page.get();
}

void ScalesPicker::makeSections()
{
    ScalesPage& page = *this;
    _sections.push_back(makeScaleSection(page));
    _sections.push_back(makeSchemesSection(page));
    _sections.push_back(makeGradientSection(page));
    _sections.push_back(makeContrastSection(page));
    _sections.push_back(makeVisionSection(page));
}

void ScalesPicker::makeChoice()
{
    HostDesktop& desktop = colorPanel().desktop();
    Segments::Description segments{.identifier = "scalesSections",
                                   .buttonIdentifier = "scalesSection",
                                   .accessibleName = desktop.localizedString(u"Section"),
                                   .titles = {},
                                   .pointSize = 11};
    HostControlDescription description;
    description.identifier = "scalesSectionPopUp";
    description.pointSize = scalesTextSize;
    description.accessibleName = segments.accessibleName;
    _popUp = desktop.interfaceFactory().makePopUpButton(description);
    for (const auto& section : _sections) {
        segments.titles.push_back(section->title());
        _popUp->addItemWithTitle(section->title());
    }
    _popUp->setAction([this](HostControl&) {
        if (const int index = _popUp->indexOfSelectedItem(); index >= 0)
            chooseSection(static_cast<std::size_t>(index));
    });
    _segments.makeViews(desktop, segments, [this](std::size_t section) { chooseSection(section); });
    // The keyboard reaches views in this order.
    _page->addSubview(_segments.view());
    _page->addSubview(*_popUp);
    for (const auto& section : _sections)
        _page->addSubview(section->view());
}

void ScalesPicker::layOut()
{
    // Heights depend on how many colours there are.
    for (const auto& section : _sections)
        section->show();
    const ScalesFrames frames = scalesFrames(_page->bounds().size(), _sections.size(), _chosen,
                                             [this](std::size_t section, double width) {
                                                 return _sections[section]->leastHeight(width);
                                             });
    const bool hasSegments = frames.choice && frames.choice->width >= _segments.leastWidth();
    _segments.view().setParked(!hasSegments);
    _popUp->setParked(!frames.choice || hasSegments);
    if (frames.choice) {
        _segments.layOutByTitles(*frames.choice);
        _popUp->setFrame(*frames.choice);
    }
    _segments.show(_chosen);
    _popUp->selectItemAtIndex(static_cast<int>(_chosen));
    for (std::size_t i = 0; i < _sections.size(); ++i) {
        _sections[i]->view().setParked(!frames.sections[i]);
        if (frames.sections[i]) _sections[i]->layOut(*frames.sections[i]);
    }
}

void ScalesPicker::showSections()
{
    for (const auto& section : _sections)
        if (!section->view().isParked()) section->show();
}

void ScalesPicker::setColor(const std::optional<HostColor>& color)
{
    _model.takeColor(color);
    showSections();
}

void ScalesPicker::viewSizeChanged(HostView*)
{
    if (_page) layOut();
}

void ScalesPicker::modelDidChange()
{
    // The number of steps changes the height of a gradient.
    layOut();
    rememberSoon();
}

void ScalesPicker::rememberSoon()
{
    constexpr double seconds = 1;
    _memoryTimer = colorPanel().desktop().scheduleTimer(seconds, [this] { remember(); });
}

void ScalesPicker::remember()
{
    _memoryTimer.reset();
    writeScalesMemory(colorPanel().desktop().files(), _model, sectionNames[_chosen]);
}

void ScalesPicker::chooseSection(std::size_t section)
{
    const bool isAnother = std::exchange(_chosen, section) != section;
    // A click on the chosen segment has switched it off.
    layOut();
    if (isAnother) rememberSoon();
}

std::u16string ScalesPicker::hexCode(const HostColor& color)
{
    return hexText(mappedIntoSRGB(color), _settings.current().hexForm()).value_or(u"");
}

void ScalesPicker::pageDidAppear()
{
    // The user may have chosen another form of codes on the Hex page, or changed a list.
    if (_page) layOut();
    if (_acceptedMouseMoved) return;
    _acceptedMouseMoved = colorPanel().acceptsMouseMovedEvents();
    // For the tool tips of the colours.
    colorPanel().setAcceptsMouseMovedEvents(true);
}

void ScalesPicker::pageDidDisappear()
{
    if (const auto before = std::exchange(_acceptedMouseMoved, std::nullopt))
        colorPanel().setAcceptsMouseMovedEvents(*before);
}

bool ScalesPicker::performAction(std::string_view name, HostControl*)
{
    for (std::size_t i = 0; i < sectionNames.size(); ++i) {
        if (!_page || sectionNames[i] != name) continue;
        chooseSection(i);
        return true;
    }
    return false;
}

}  // namespace vantorel
