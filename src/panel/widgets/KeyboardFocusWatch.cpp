#include "panel/widgets/KeyboardFocusWatch.h"

#include <QAbstractScrollArea>
#include <QKeyEvent>

namespace vantorel {
namespace {

bool isModifier(int key)
{
    switch (key) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
            return true;
        default:
            return false;
    }
}

void showFocus(QObject* watched, bool isShown)
{
    const auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr) return;
    QWidget* window = widget->window();
    if (window->testAttribute(Qt::WA_KeyboardFocusChange) == isShown) return;
    window->setAttribute(Qt::WA_KeyboardFocusChange, isShown);
    QWidget* focused = window->focusWidget();
    if (focused == nullptr) return;
    if (const auto* area = qobject_cast<QAbstractScrollArea*>(focused)) area->viewport()->update();
    focused->update();
}

}  // namespace

bool KeyboardFocusWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        showFocus(watched, false);
    } else if (event->type() == QEvent::KeyPress) {
        if (!isModifier(static_cast<QKeyEvent*>(event)->key())) showFocus(watched, true);
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace vantorel
