#include "picker/QTXHexSettingsView.h"

namespace vantorel {
namespace {

constexpr HostColor hexSettingsViewBackgroundColorS =
    HostColor::colorWithCalibratedRed(241 / 255.0, 241 / 255.0, 245 / 255.0, 1.0);

}  // namespace

void QTXHexSettingsView::attachToView(HostCustomView* view)
{
    _view = view;
    if (_view != nullptr) _view->setGroundColor(hexSettingsViewBackgroundColorS);
}

void QTXHexSettingsView::drawRect(HostCanvas& canvas)
{
    if (_view == nullptr) return;
    const HostRect bounds = _view->bounds();
    const HostRect inset = insetRect(bounds, 1, 1);
    __bPth.removeAllPoints();
    // The rectangle has the origin of the bounds but the size of the inset, so it is aligned to the
    // lower left.
    __bPth.appendBezierPathWithRect({bounds.x, bounds.y, inset.width, inset.height});
    canvas.fill(__bPth, hexSettingsViewBackgroundColorS);
    canvas.stroke(__bPth, HostColor::blackColor());
}

}  // namespace vantorel
