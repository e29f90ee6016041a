#include "testing/headless/HeadlessColorPanel.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

constexpr HostPoint farOutside{-1e6, -1e6};

}  // namespace

HeadlessColorPanel::HeadlessColorPanel(HeadlessDesktop& desktop, HostRect frame,
                                       std::optional<HostColor> color)
    : _desktop(desktop),
      _frame(frame),
      _contentView({0, 0, frame.width, frame.height}),
      _color(color),
      _pointer(farOutside)
{
}

HeadlessColorPanel::~HeadlessColorPanel() = default;

void HeadlessColorPanel::setPicker(HostColorPicker* picker)
{
    _picker = picker;
    if (picker == nullptr) _page = nullptr;
}

void HeadlessColorPanel::showPage(HostView* view)
{
    _page = view;
    if (view == nullptr) return;
    _contentView.addSubview(*view);
    view->setFrame(pageFrame());
}

HostRect HeadlessColorPanel::pageFrame() const
{
    return {0, 0, _frame.width, _frame.height - barHeight};
}

void HeadlessColorPanel::setColor(const std::optional<HostColor>& color)
{
    _desktop.journal().emplace_back(PanelColorSet{color});
    changeColor(color);
}

void HeadlessColorPanel::changeColor(std::optional<HostColor> color)
{
    _color = color;
    if (_picker != nullptr) _picker->setColor(color);
}

HostSize HeadlessColorPanel::growPage(HostSize growth)
{
    if (!_canGrow) return {};
    const HostRect frame{_frame.x, _frame.y - growth.height, _frame.width + growth.width,
                         _frame.height + growth.height};
    _desktop.journal().emplace_back(PanelFrameSet{frame});
    applyFrame(frame);
    return growth;
}

std::optional<HostColorPair> HeadlessColorPanel::colorPair() const
{
    if (!_color || !_otherColor) return std::nullopt;
    return _editsBackground ? HostColorPair{*_otherColor, *_color, true}
                            : HostColorPair{*_color, *_otherColor, false};
}

void HeadlessColorPanel::changeOtherColor(std::optional<HostColor> color, bool editsBackground)
{
    _otherColor = color;
    _editsBackground = editsBackground;
    if (_picker != nullptr) _picker->colorPairDidChange();
}

void HeadlessColorPanel::resize(HostSize size)
{
    applyFrame({_frame.x, _frame.maxY() - size.height, size.width, size.height});
}

void HeadlessColorPanel::applyFrame(HostRect frame)
{
    _frame = frame;
    _contentView.setFrame({0, 0, frame.width, frame.height});
    if (_page != nullptr) _page->setFrame(pageFrame());
    if (_picker != nullptr) _picker->viewSizeChanged(_page);
}

void HeadlessColorPanel::setPointer(std::optional<HostPoint> point)
{
    _pointer = point.value_or(farOutside);
}

HostPoint HeadlessColorPanel::mouseLocation(const HostView&) const
{
    return _pointer;
}

HostFieldEditor* HeadlessColorPanel::fieldEditor(HostTextField& field)
{
    auto* edited = dynamic_cast<HeadlessTextField*>(&field);
    return edited != nullptr && edited->isEdited() ? edited : nullptr;
}

bool HeadlessColorPanel::hasEvents()
{
    if (_events.empty()) eventsRanOut();
    return !_events.empty();
}

HostEvent HeadlessColorPanel::takeEvent(const std::deque<HostEvent>::const_iterator& place)
{
    const HostEvent event = *place;
    _events.erase(place);
    _pointer = event.location;
    return event;
}

HostEvent HeadlessColorPanel::nextEventMatchingMask(std::uint32_t mask, HostView&)
{
    const auto find = [this, mask] {
        return std::find_if(_events.begin(), _events.end(), [mask](const HostEvent& event) {
            return (maskOfEventType(event.type) & mask) != 0;
        });
    };
    auto next = find();
    for (std::size_t count = _events.size(); next == _events.end(); count = _events.size()) {
        eventsRanOut();
        if (_events.size() == count) break;
        next = find();
    }
    if (next != _events.end()) return takeEvent(next);
    HostEvent released;
    released.type = HostEventType::leftMouseUp;
    released.location = _pointer;
    return released;
}

void HeadlessColorPanel::dragImage(const HostImage& image, const HostPasteboardItem& item,
                                   const HostEvent&, HostView&)
{
    Dragged dragged;
    if (const auto* text = std::get_if<std::string>(&item)) dragged.text = *text;
    if (const auto* color = std::get_if<HostColor>(&item)) dragged.color = *color;
    dragged.imageSize = image.size;
    dragged.panelColor = _color;
    _desktop.journal().emplace_back(std::move(dragged));
    while (hasEvents() && takeEvent(_events.begin()).type != HostEventType::leftMouseUp) {
    }
}

void HeadlessColorPanel::deliver(const std::vector<HostEvent>& events, HeadlessCustomView& view)
{
    _events.assign(events.begin(), events.end());
    while (hasEvents()) {
        const HostEvent event = takeEvent(_events.begin());
        deliver(event, view);
    }
}

void HeadlessColorPanel::deliver(const HostEvent& event, HeadlessCustomView& view)
{
    switch (event.type) {
        case HostEventType::leftMouseDown:
            view.content().mouseDown(event);
            break;
        case HostEventType::leftMouseDragged:
            view.content().mouseDragged(event);
            break;
        case HostEventType::mouseMoved:
            if (view.movePointer(event) && _acceptsMouseMoved) view.content().mouseMoved(event);
            break;
        case HostEventType::leftMouseUp:
            view.content().mouseUp(event);
            break;
        case HostEventType::mouseEntered:
        case HostEventType::mouseExited:
            break;
    }
}

}  // namespace vantorel
