#include "host/HostView.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

HostRect withoutNegativeSize(HostRect rect)
{
    rect.width = std::max(0.0, rect.width);
    rect.height = std::max(0.0, rect.height);
    return rect;
}

/// Distributes a superview's growth along one axis among the stretching parts of a view.
void stretch(double growth, bool before, bool itself, bool after, double& position, double& length)
{
    const int parts = int{before} + int{itself} + int{after};
    if (parts == 0) return;
    const double share = growth / parts;
    if (before) position += share;
    if (itself) length += share;
}

}  // namespace

HostView::HostView(HostRect frame)
    : _frame(withoutNegativeSize(frame)),
      _askedFrame(frame),
      _bounds{0, 0, _frame.width, _frame.height}
{
}

HostView::~HostView()
{
    // The derived class has been destroyed, so its hooks must not be called.
    if (_superview != nullptr) std::erase(_superview->_subviews, this);
    for (HostView* view : _subviews)
        view->_superview = nullptr;
}

void HostView::setFrame(HostRect frame)
{
    const HostSize oldSize = _askedFrame.size();
    _askedFrame = frame;
    frame = withoutNegativeSize(frame);
    if (frame != _frame) {
        _frame = frame;
        _bounds.width = frame.width;
        _bounds.height = frame.height;
        frameDidChange();
    }
    if (oldSize != _askedFrame.size()) resizeSubviews(oldSize);
}

void HostView::setBounds(HostRect bounds)
{
    bounds.width = _frame.width;
    bounds.height = _frame.height;
    if (bounds == _bounds) return;
    _bounds = bounds;
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
    if (flag) displayDidBecomeNeeded(_bounds);
}

void HostView::setNeedsDisplayInRect(HostRect rect)
{
    _needsDisplay = true;
    displayDidBecomeNeeded(rect);
}

void HostView::displayDidBecomeNeeded(HostRect) {}

void HostView::resizeSubviews(HostSize oldSize)
{
    const double wider = _askedFrame.width - oldSize.width;
    const double higher = _askedFrame.height - oldSize.height;
    // Iterate over a copy of the list, because a subview's hook may change the tree.
    for (HostView* view : std::vector<HostView*>(_subviews)) {
        const HostResizing& rule = view->_resizing;
        HostRect frame = view->_askedFrame;
        stretch(wider, rule.leftMargin, rule.width, rule.rightMargin, frame.x, frame.width);
        stretch(higher, rule.bottomMargin, rule.height, rule.topMargin, frame.y, frame.height);
        view->setFrame(frame);
    }
}

}  // namespace vantorel
