#include "mix/MarkView.h"

namespace vantorel {
namespace {

bool isArrow(HostKey key)
{
    return key == HostKey::left || key == HostKey::right || key == HostKey::up ||
           key == HostKey::down;
}

}  // namespace

void MarkView::makeView(HostInterfaceFactory& factory, const std::string& identifier)
{
    HostControlDescription description;
    description.identifier = identifier;
    _view = factory.makeCustomView(description, *this);
}

void MarkView::mouseDown(const HostEvent& event)
{
    _listener.dragDidBegin();
    moveMarkTo(event.location);
}

void MarkView::mouseDragged(const HostEvent& event)
{
    moveMarkTo(event.location);
}

void MarkView::mouseUp(const HostEvent&)
{
    _listener.dragDidEnd();
}

bool MarkView::keyDown(const HostKeyEvent& event)
{
    const bool hasControl = (event.modifierFlags & controlModifierFlag) != 0;
    if (hasControl && !isArrow(event.key)) return false;
    return moveMarkBy(event);
}

}  // namespace vantorel
