#include "hosts/qt/QtColorPanel.h"

#include "hosts/qt/QtCustomView.h"
#include "hosts/qt/QtDrag.h"
#include "hosts/qt/QtTextField.h"

#include <QCursor>

namespace vantorel {
namespace {

void setAcceptsMouseMovedBelow(HostView* view, bool flag)
{
    if (view == nullptr) return;
    if (auto* custom = dynamic_cast<QtCustomView*>(view)) custom->setAcceptsMouseMoved(flag);
    for (HostView* subview : view->subviews())
        setAcceptsMouseMovedBelow(subview, flag);
}

}  // namespace

void QtColorPanel::setAcceptsMouseMovedEvents(bool flag)
{
    _acceptsMouseMoved = flag;
    setAcceptsMouseMovedBelow(pageView(), flag);
}

HostPoint QtColorPanel::mouseLocation(const HostView& view) const
{
    const QWidget* widget = widgetOf(&view);
    if (widget == nullptr) return {};
    return viewPoint(widget->mapFromGlobal(QPointF(QCursor::pos())), view.bounds());
}

void QtColorPanel::makeFirstResponder(HostView& view)
{
    // Moves reach a widget without focus, and taking the focus would end an entry.
    static_cast<void>(view);
}

HostFieldEditor* QtColorPanel::fieldEditor(HostTextField& field)
{
    auto* edited = dynamic_cast<QtTextField*>(&field);
    return edited != nullptr && edited->isEdited() ? edited : nullptr;
}

HostEvent QtColorPanel::nextEventMatchingMask(std::uint32_t mask, HostView& view)
{
    auto* custom = dynamic_cast<QtCustomView*>(&view);
    return custom != nullptr ? custom->nextMouseEvent(mask)
                             : HostEvent{HostEventType::leftMouseUp, {}, 0};
}

void QtColorPanel::dragImage(const HostImage& image, const HostPasteboardItem& item,
                             const HostEvent&, HostView& source)
{
    QWidget* widget = widgetOf(&source);
    if (widget == nullptr) return;
    const QPointer<QWidget> alive = widget;
    QDrag* drag = makeDrag(*widget, image, item);
    if (drag == nullptr) return;
    drag->exec(Qt::CopyAction);
    if (!alive) return;
    if (auto* custom = dynamic_cast<QtCustomView*>(&source)) custom->forgetButton();
}

}  // namespace vantorel
