#include "testing/headless/HeadlessControls.h"

#include <algorithm>

namespace vantorel {

void HeadlessTextField::setStringValue(const std::u16string& text)
{
    _text = text;
    // The insertion point keeps its position, or moves to the end of a shorter text.
    if (_selection) setSelectedRange(*_selection);
}

void HeadlessTextField::type(const std::u16string& text, std::size_t insertionPoint)
{
    _text = text;
    _selection = HostSelection{std::min(insertionPoint, _text.size()), 0};
    sendTextDidChange();
}

void HeadlessTextField::setSelectedRange(HostSelection range)
{
    if (!_selection) return;
    range.location = std::min(range.location, _text.size());
    range.length = std::min(range.length, _text.size() - range.location);
    _selection = range;
}

void HeadlessButton::click()
{
    if (_kind != Kind::push) setState(1 - state());
    sendAction();
}

RecordingCanvas HeadlessCustomView::draw()
{
    RecordingCanvas canvas;
    _content.drawRect(canvas);
    setNeedsDisplay(false);
    return canvas;
}

std::intptr_t HeadlessCustomView::addTrackingRect(HostRect rect, bool assumeInside)
{
    _tracking = Tracking{++_lastTag, rect, assumeInside};
    return _lastTag;
}

void HeadlessCustomView::removeTrackingRect(std::intptr_t tag)
{
    if (_tracking && _tracking->tag == tag) _tracking.reset();
}

bool HeadlessCustomView::movePointer(const HostEvent& event)
{
    if (!_tracking) return false;
    const bool wasInside = _tracking->inside;
    const bool inside = _tracking->rect.contains(event.location);
    _tracking->inside = inside;
    if (inside && !wasInside) {
        _content.mouseEntered({HostEventType::mouseEntered, event.location, event.modifierFlags});
    } else if (!inside && wasInside) {
        _content.mouseExited({HostEventType::mouseExited, event.location, event.modifierFlags});
    }
    return inside;
}

std::unique_ptr<HostView> HeadlessInterfaceFactory::makeView(
    const HostControlDescription& description)
{
    return std::make_unique<Registered<HostView>>(description.frame, _controls,
                                                  description.identifier);
}

std::unique_ptr<HostCustomView> HeadlessInterfaceFactory::makeCustomView(
    const HostControlDescription& description, HostViewContent& content)
{
    return std::make_unique<HeadlessCustomView>(description.frame, _controls,
                                                description.identifier, content);
}

std::unique_ptr<HostTextField> HeadlessInterfaceFactory::makeTextField(
    const HostControlDescription& description)
{
    auto field =
        std::make_unique<HeadlessTextField>(description.frame, _controls, description.identifier);
    field->setStringValue(description.title);
    field->setTakesTyping(description.editable && !description.readOnly);
    return field;
}

std::unique_ptr<HostButton> HeadlessInterfaceFactory::makeButton(
    const HostControlDescription& description)
{
    return std::make_unique<HeadlessButton>(description.frame, _controls, description.identifier,
                                            description.buttonKind);
}

std::unique_ptr<HostPopUpButton> HeadlessInterfaceFactory::makePopUpButton(
    const HostControlDescription& description)
{
    return std::make_unique<Registered<HostPopUpButton>>(description.frame, _controls,
                                                         description.identifier);
}

}  // namespace vantorel
