#include "mix/MixSegments.h"

#include "mix/MixPainting.h"

#include <algorithm>
#include <string>
#include <utility>

namespace vantorel {

void MixSegments::makeViews(HostDesktop& desktop, Chosen chosen)
{
    _chosen = std::move(chosen);
    HostControlDescription group;
    group.identifier = "mixSpaces";
    group.accessibleName = desktop.localizedString(u"Colour space");
    _frame = desktop.interfaceFactory().makeCustomView(group, *this);
    for (std::size_t i = 0; i < _buttons.size(); ++i) {
        HostControlDescription description;
        description.identifier = "mixSpace" + std::to_string(i + 1);
        description.title = nameOf(mixSpaces[i]);
        description.pointSize = mixTextSize;
        description.buttonKind = HostControlDescription::ButtonKind::toggle;
        _buttons[i] = desktop.interfaceFactory().makeButton(description);
        _buttons[i]->setAction([this, i](HostControl&) { _chosen(mixSpaces[i]); });
        _frame->addSubview(*_buttons[i]);
    }
}

void MixSegments::show(MixSpace space)
{
    for (std::size_t i = 0; i < _buttons.size(); ++i)
        _buttons[i]->setState(mixSpaces[i] == space ? 1 : 0);
}

void MixSegments::layOut(const MixFrames& frames)
{
    _frame->setFrame(frames.choice);
    for (std::size_t i = 0; i < _buttons.size(); ++i)
        _buttons[i]->setFrame(frames.segments[i]);
}

void MixSegments::drawRect(HostCanvas& canvas)
{
    constexpr double radius = 6;
    const HostRect place = _frame->bounds();
    HostPixels pixels(canvas.pixelSizeOf(place));
    const MixLook look = lookOf(canvas, place);
    for (int y = 0; y < pixels.height(); ++y)
        std::fill_n(pixels.row(y), pixels.width(), look.base);
    frameRounded(pixels, radius * look.scale, look.scale, look.edge);
    canvas.drawPixels(pixels, place);
}

}  // namespace vantorel
