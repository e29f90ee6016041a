#include "panel/window/ColorChoice.h"

#include "panel/window/ChoiceBar.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>

namespace vantorel {

ColorChoice::ColorChoice(PanelWindow& window) : _window(window)
{
    window.setWindowTitle(tr("Choose a colour"));
    window.setWindowFlags((window.windowFlags() & ~Qt::WindowType_Mask) | Qt::Dialog);
    auto* bar = new ChoiceBar(&window);
    connect(bar, &ChoiceBar::accepted, this, &ColorChoice::choose);
    connect(bar, &ChoiceBar::rejected, &window, &QWidget::close);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* accept = new QShortcut(QKeySequence(Qt::CTRL | key), &window);
        connect(accept, &QShortcut::activated, this, &ColorChoice::choose);
    }
    window.setFoot(*bar);
    window.installEventFilter(this);
}

void ColorChoice::choose()
{
    // Text that was typed but not yet entered counts. What is not a colour must not be taken for
    // the one before.
    if (!_window.finishEditing()) return;
    // The first page has the settings of the form, and the window is about to close.
    const HostColorPicker* picker = _window.pages().currentPicker();
    if (picker == nullptr || !picker->dragText()) _window.pages().showPage(0);
    // The background was only edited beside it.
    _window.colors().edit(EditedColor::color);
    _window.colors().rememberColor();
    _text = _window.exchange().draggedText();
    _window.close();
}

bool ColorChoice::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &_window || event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    // Keys handled by a control do not arrive here, except for Enter in a text field.
    const int key = static_cast<QKeyEvent*>(event)->key();
    const bool enters = key == Qt::Key_Return || key == Qt::Key_Enter;
    if (key == Qt::Key_Escape) {
        _window.close();
        return true;
    }
    if (enters && qobject_cast<QLineEdit*>(_window.focusWidget()) == nullptr) {
        choose();
        return true;
    }
    return false;
}

}  // namespace vantorel
