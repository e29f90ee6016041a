#include "hosts/qt/QtColorPanel.h"

#include "hosts/common/ViewTree.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtCustomView.h"
#include "hosts/qt/QtDrag.h"
#include "hosts/qt/QtTextField.h"
#include "hosts/qt/QtVersions.h"

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>

namespace vantorel {
void QtColorPanel::setAcceptsMouseMovedEvents(bool flag)
{
    _acceptsMouseMoved = flag;
    forEachBelow<QtCustomView>(pageView(),
                               [flag](QtCustomView& view) { view.setAcceptsMouseMoved(flag); });
}

void QtColorPanel::pageDidAppear()
{
    // A new context ends the connections to the previous page.
    _pageConnections = std::make_unique<QObject>();
    forEachBelow<QtTextField>(pageView(), [this](const QtTextField& field) {
        QObject::connect(field.lineEdit(), &QtLineEdit::entryGivenUp, _pageConnections.get(),
                         [this] {
                             if (const auto current = color()) setColor(*current);
                         });
        QObject::connect(field.lineEdit(), &QtLineEdit::textOffered, _pageConnections.get(),
                         [this](const QString& text, bool& isTaken) { isTaken = takeText(text); });
    });
}

HostPoint QtColorPanel::mouseLocation(const HostView& view) const
{
    const QWidget* widget = widgetOf(&view);
    if (widget == nullptr) return {};
    return viewPoint(mapFromScreen(*widget, QCursor::pos()), view.bounds());
}

void QtColorPanel::makeFirstResponder(HostView& view)
{
    // A widget gets mouse moves without having the focus, and taking it would end a text entry.
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

void QtColorPanel::copyText(const std::u16string& text)
{
    QGuiApplication::clipboard()->setText(qStringFrom(text));
}

}  // namespace vantorel
