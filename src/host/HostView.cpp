#include "host/HostView.h"

#include <utility>

namespace vantorel {

HostView::~HostView()
{
    // The derived class has been destroyed, so its hooks must not be called.
    if (_superview != nullptr) std::erase(_superview->_subviews, this);
    for (HostView* view : _subviews)
        view->_superview = nullptr;
}

void HostView::setFrame(HostRect frame)
{
    const HostRect shownBefore = _frame.shown();
    const HostSize before = _frame.asked().size();
    _frame.set(frame);
    if (_frame.shown() != shownBefore) frameDidChange();
    const HostSize now = _frame.asked().size();
    if (now == before) return;
    const HostSize growth{now.width - before.width, now.height - before.height};
    // Iterate over a copy of the list, because a subview's hook may change the tree.
    for (HostView* view : std::vector<HostView*>(_subviews))
        view->setFrame(view->_frame.afterGrowth(growth));
}

void HostView::setBounds(HostRect bounds)
{
    if (bounds.origin() == _boundsOrigin) return;
    _boundsOrigin = bounds.origin();
    boundsDidChange();
}

void HostView::addSubview(HostView& view)
{
    if (view._superview == this || &view == this) return;
    view.removeFromSuperview();
    _subviews.push_back(&view);
    view._superview = this;
    view.hierarchyDidChange();
    view.setNeedsDisplay(true);
}

void HostView::removeFromSuperview()
{
    if (_superview == nullptr) return;
    std::erase(_superview->_subviews, this);
    _superview = nullptr;
    hierarchyDidChange();
}

void HostView::setParked(bool flag)
{
    if (flag == _isParked) return;
    _isParked = flag;
    parkedDidChange();
}

void HostView::setGroundColor(const std::optional<HostColor>& color)
{
    if (color == _groundColor) return;
    _groundColor = color;
    groundColorDidChange();
}

std::optional<HostColor> HostView::groundColor() const
{
    const HostView* view = this;
    while (!view->_groundColor && view->_superview != nullptr)
        view = view->_superview;
    return view->_groundColor;
}

void HostView::setToolTip(std::optional<std::u16string> text)
{
    if (text == _toolTip) return;
    _toolTip = std::move(text);
    toolTipDidChange();
}

void HostView::setNeedsDisplay(bool flag)
{
    _needsDisplay = flag;
    if (flag) displayDidBecomeNeeded(bounds());
}

void HostView::setNeedsDisplayInRect(HostRect rect)
{
    _needsDisplay = true;
    displayDidBecomeNeeded(rect);
}

void HostView::displayDidBecomeNeeded(HostRect) {}

}  // namespace vantorel
