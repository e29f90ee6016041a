#include "mix/MixPicker.h"

#include "csscolor/GamutMapping.h"
#include "mix/MixMemory.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace vantorel {
namespace {

/// A hue of 360 degrees would be shown at the other end of its slider.
constexpr double lastHue = 359.9;

std::string numbered(const char* name, std::size_t index)
{
    return name + std::to_string(index + 1);
}

/// The colours of a hue that all hues have: pastel ones in OKLCH, which are equally light.
ColorTriple colorOfHue(MixSpace space, double hue)
{
    if (space == MixSpace::oklch) return srgbFromMixSpace(space, {0.75, 0.12, hue});
    if (space == MixSpace::hsl) return srgbFromMixSpace(space, {hue, 100, 50});
    return srgbFromMixSpace(space, {hue, 100, 100});
}

}  // namespace

std::u16string MixPicker::buttonToolTip() const
{
    HostDesktop& desktop = colorPanel().desktop();
    return desktop.localizedString(u"Mix") + u": " +
           desktop.localizedString(u"change a colour in OKLCH, HSL, HSV and Lab");
}

std::string MixPicker::buttonImage() const
{
    return R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16" fill="none" )"
           R"(stroke="currentColor" stroke-width="1.4" stroke-linejoin="round" )"
           R"(stroke-linecap="round"><path d="M2.5 2.5l11 5.5-11 5.5z"/>)"
           R"(<path stroke-width="2" d="M6 8h.01"/></svg>)";
}

HostView* MixPicker::provideNewView(bool initialRequest)
{
    if (!initialRequest || _page) return _page.get();
    HostControlDescription description;
    description.identifier = "mixPage";
    description.frame = {0, 0, leastMixPage.width, leastMixPage.height};
    description.accessibleName = colorPanel().desktop().localizedString(u"Mix");
    _page = colorPanel().desktop().interfaceFactory().makeView(description);
    _model.setSpace(readMixSpace(colorPanel().desktop().files()));
    _model.takeColor(colorPanel().color());
    _segments.makeViews(colorPanel().desktop(),
                        {.identifier = "mixSpaces",
                         .buttonIdentifier = "mixSpace",
                         .accessibleName = colorPanel().desktop().localizedString(u"Colour space"),
                         .titles = {nameOf(mixSpaces[0]), nameOf(mixSpaces[1]),
                                    nameOf(mixSpaces[2]), nameOf(mixSpaces[3])},
                         .pointSize = mixTextSize},
                        [this](std::size_t space) { chooseSpace(mixSpaces[space]); });
    _page->addSubview(_segments.view());
    makePlane();
    for (std::size_t i = 0; i < _rows.size(); ++i)
        makeRow(i);
    describeViews();
    showSpace();
    sync();
    return _page.get();
}

void MixPicker::makePlane()
{
    HostDesktop& desktop = colorPanel().desktop();
    const auto third = [this] { return axesOf(_model.space()).third; };
    const auto stepThird = [this, third](int steps, std::uint64_t flags) {
        stepRow(third(), steps, flags);
    };
    MarkDragListener& listener = *this;
    _plane = std::make_unique<PlaneView>(
        desktop, listener,
        PlaneView::Actions{
            [this](HostPoint place) { choosePlace(place); },
            [this](int right, int up, std::uint64_t flags) { stepPlace(right, up, flags); },
            stepThird});
    _plane->makeView(desktop.interfaceFactory(), "mixPlane");
    _bar = std::make_unique<TrackView>(
        TrackView::Direction::upwards, listener,
        TrackView::Actions{[this, third](double fraction) { chooseFraction(third(), fraction); },
                           stepThird});
    _bar->makeView(desktop.interfaceFactory(), "mixBar");
    // The bar is above the room for the plane's mark.
    _page->addSubview(_plane->view());
    _page->addSubview(_bar->view());
}

void MixPicker::makeRow(std::size_t index)
{
    Row& row = _rows[index];
    HostInterfaceFactory& factory = colorPanel().desktop().interfaceFactory();
    HostControlDescription description;
    description.pointSize = mixTextSize;
    description.identifier = numbered("mixLabel", index);
    description.editable = false;
    row.label = factory.makeTextField(description);

    MarkDragListener& listener = *this;
    row.track = std::make_unique<TrackView>(
        TrackView::Direction::toRight, listener,
        TrackView::Actions{
            [this, index](double fraction) { chooseFraction(index, fraction); },
            [this, index](int steps, std::uint64_t flags) { stepRow(index, steps, flags); }});
    row.track->makeView(factory, numbered("mixTrack", index));

    description.identifier = numbered("mixNumber", index);
    description.editable = true;
    description.monospaced = true;
    description.alignment = HostControlDescription::Alignment::right;
    row.number = factory.makeNumberField(description, {});
    row.number->setAction(
        [this, index](HostNumberField& field) { chooseNumber(index, field.value()); });
    row.number->setScrubReaction([this](bool isUnderWay) {
        if (isUnderWay) {
            dragDidBegin();
        } else {
            dragDidEnd();
        }
    });
    _page->addSubview(*row.label);
    _page->addSubview(row.track->view());
    _page->addSubview(row.number->textField());
}

void MixPicker::describeViews()
{
    _plane->view().setAccessibleDescription([this] { return spokenPlane(); });
    _bar->view().setAccessibleDescription(
        [this] { return _rows[axesOf(_model.space()).third].number->textField().stringValue(); });
    for (Row& row : _rows) {
        row.track->view().setAccessibleDescription(
            [&row] { return row.number->textField().stringValue(); });
    }
}

std::u16string MixPicker::spokenPlane() const
{
    const MixAxes axes = axesOf(_model.space());
    std::u16string text;
    for (const std::size_t component : {axes.x, axes.y}) {
        const Row& row = _rows[component];
        text += row.channel.name + u" " + row.number->textField().stringValue() + u", ";
    }
    HostDesktop& desktop = colorPanel().desktop();
    return text + (isOutsideSRGB(_model.srgb()) ? desktop.localizedString(u"outside sRGB")
                                                : desktop.localizedString(u"within sRGB"));
}

void MixPicker::showSpace()
{
    HostDesktop& desktop = colorPanel().desktop();
    _segments.show(static_cast<std::size_t>(
        std::distance(mixSpaces.begin(), std::ranges::find(mixSpaces, _model.space()))));
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        Row& row = _rows[i];
        row.channel =
            i == opacityRow ? opacityChannel(desktop) : channelOf(desktop, _model.space(), i);
        row.number->setFormat(row.channel.format);
        row.number->textField().setAccessibleName(row.channel.name);
        row.track->view().setAccessibleName(row.channel.name);
    }
    const MixAxes axes = axesOf(_model.space());
    _plane->view().setAccessibleName(_rows[axes.x].channel.name + u", " +
                                     _rows[axes.y].channel.name);
    _bar->view().setAccessibleName(_rows[axes.third].channel.name);
    layOut();
}

void MixPicker::layOut()
{
    double widest = 0;
    for (const Row& row : _rows)
        widest = std::max(widest,
                          colorPanel().desktop().sizeOfText({row.channel.name, mixTextSize}).width);
    const MixFrames frames = mixFrames(_page->bounds().size(), std::ceil(widest));
    _segments.layOut(frames.choice);
    _plane->view().setFrame(frames.plane);
    _bar->view().setFrame(frames.bar);
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        Row& row = _rows[i];
        row.label->setStringValue(frames.showsWords ? row.channel.name : row.channel.letter);
        row.label->setFrame(frames.rows[i].label);
        row.track->view().setFrame(frames.rows[i].track);
        row.number->textField().setFrame(frames.rows[i].number);
    }
}

void MixPicker::viewSizeChanged(HostView*)
{
    if (_page) layOut();
}

MixRange MixPicker::rangeOfRow(std::size_t index) const
{
    return index == opacityRow ? MixRange{0, 1, false} : rangeOf(_model.space(), index);
}

double MixPicker::valueOfRow(std::size_t index) const
{
    return index == opacityRow ? _model.alpha() : _model.components()[index];
}

void MixPicker::sync()
{
    _plane->show(_model.space(), _model.components(), _model.srgb());
    syncBar();
    for (std::size_t i = 0; i < _rows.size(); ++i) {
        Row& row = _rows[i];
        const MixRange range = rangeOfRow(i);
        const double value = valueOfRow(i);
        row.number->setValue(value * row.channel.scale);
        TrackColors colors = [model = _model, range, i](double fraction) {
            if (i == opacityRow) return TrackColor{model.srgb(), fraction};
            return TrackColor{model.srgbWith(i, range.valueAt(fraction)), 1};
        };
        row.track->show(range.fractionOf(value), _model.srgb(), std::move(colors));
    }
}

void MixPicker::syncBar()
{
    const MixSpace space = _model.space();
    const std::size_t third = axesOf(space).third;
    const MixRange range = rangeOf(space, third);
    const double value = _model.components()[third];
    const auto colorAt = [model = _model, space, third, range](double fraction) {
        const double at = range.valueAt(fraction);
        return TrackColor{range.isHue ? colorOfHue(space, at) : model.srgbWith(third, at), 1};
    };
    const double fraction = range.fractionOf(value);
    _bar->show(fraction, colorAt(std::clamp(fraction, 0.0, 1.0)).srgb, colorAt);
}

void MixPicker::setColor(const std::optional<HostColor>& color)
{
    if (_isPushing) return;
    _model.takeColor(color);
    if (_page) sync();
}

void MixPicker::push()
{
    _isPushing = true;
    colorPanel().setColor(_model.color());
    _isPushing = false;
    sync();
}

bool MixPicker::performAction(std::string_view name, HostControl*)
{
    for (const MixSpace space : mixSpaces) {
        const std::u16string title = nameOf(space);
        if (!_page || !std::ranges::equal(title, name)) continue;
        chooseSpace(space);
        return true;
    }
    return false;
}

void MixPicker::chooseSpace(MixSpace space)
{
    const bool isAnother = space != _model.space();
    if (isAnother) _model.setSpace(space);
    // A click on the chosen segment has switched it off.
    showSpace();
    sync();
    if (isAnother) writeMixSpace(colorPanel().desktop().files(), space);
}

void MixPicker::choosePlace(HostPoint place)
{
    _model.setComponents(_plane->plane().componentsAt(place));
    push();
}

void MixPicker::stepPlace(int right, int up, std::uint64_t modifierFlags)
{
    const MixAxes axes = axesOf(_model.space());
    ColorTriple components = _model.components();
    const auto add = [&](std::size_t component, int steps) {
        const MixChannel& channel = _rows[component].channel;
        components[component] += steps * channel.format.stepWith(modifierFlags) / channel.scale;
    };
    add(axes.x, right);
    add(axes.y, up);
    const HostPoint place = _plane->plane().placeOf(components);
    choosePlace({std::clamp(place.x, 0.0, 1.0), std::clamp(place.y, 0.0, 1.0)});
}

void MixPicker::stepRow(std::size_t index, int steps, std::uint64_t modifierFlags)
{
    _rows[index].number->textField().sendStep(steps, modifierFlags);
}

void MixPicker::chooseFraction(std::size_t index, double fraction)
{
    const MixRange range = rangeOfRow(index);
    const double value = range.valueAt(fraction);
    setValue(index, range.isHue ? std::min(value, lastHue) : value);
}

void MixPicker::chooseNumber(std::size_t index, double number)
{
    if (!std::isnan(number)) setValue(index, number / _rows[index].channel.scale);
}

void MixPicker::setValue(std::size_t index, double value)
{
    if (index == opacityRow) {
        _model.setAlpha(value);
    } else {
        _model.setComponent(index, value);
    }
    push();
}

}  // namespace vantorel
