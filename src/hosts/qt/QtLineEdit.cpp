#include "hosts/qt/QtLineEdit.h"

#include "hosts/common/ReadableColor.h"
#include "hosts/common/TextScale.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtEvents.h"
#include "hosts/qt/QtVersions.h"
#include "hosts/qt/QtView.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>

namespace vantorel {
namespace {

bool writesNothing(const QKeyEvent& event)
{
    return event.text().isEmpty() || !event.text().at(0).isPrint();
}

}  // namespace

QColor readableTextColor(const HostColor& color, const QPalette& palette)
{
    return qColorFrom(readableTextColor(color, hostColorFrom(palette.color(QPalette::Base)),
                                        hostColorFrom(palette.color(QPalette::Text))));
}

QtLineEdit::QtLineEdit(const QFont& font) : _font(font)
{
    setFont(font);
    connect(this, &QLineEdit::textChanged, this, &QtLineEdit::fit);
}

void QtLineEdit::setHostColor(const HostColor& color)
{
    if (_color == color) return;
    _color = color;
    applyColor();
}

bool QtLineEdit::event(QEvent* event)
{
    const WidgetReaction reaction;
    // Accepted ahead of shortcuts: in a field Escape only ends the entry, even in a window that
    // Escape would close.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
        event->accept();
        return true;
    }
    return ClipboardLineEdit::event(event);
}

void QtLineEdit::keyPressEvent(QKeyEvent* event)
{
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (_canStep && isArrow && !isReadOnly()) {
        _entry->step(event->key() == Qt::Key_Up ? 1 : -1, modifierFlags(event->modifiers()));
    } else if (!event->matches(QKeySequence::Cancel)) {
        _isDeleting = writesNothing(*event);
        ClipboardLineEdit::keyPressEvent(event);
        _isDeleting = false;
    } else if (!_entry->giveUp()) {
        event->ignore();
    }
}

void QtLineEdit::resizeEvent(QResizeEvent* event)
{
    ClipboardLineEdit::resizeEvent(event);
    fit();
}

void QtLineEdit::focusInEvent(QFocusEvent* event)
{
    ClipboardLineEdit::focusInEvent(event);
    fit();
}

void QtLineEdit::focusOutEvent(QFocusEvent* event)
{
    ClipboardLineEdit::focusOutEvent(event);
    fit();
    // Qt moves the focus on, as Tab does, when it hides the widget that has it.
    if (!isVisible()) return;
    switch (event->reason()) {
        case Qt::MouseFocusReason:
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            _entry->leave();
            break;
        default:
            break;  // another window or a menu
    }
}

void QtLineEdit::wheelEvent(QWheelEvent* event)
{
    if (!_canStep || isReadOnly()) {
        ClipboardLineEdit::wheelEvent(event);
        return;
    }
    event->accept();
    if (const int steps = wheelSteps(_wheelSteps, *event); steps != 0) {
        _entry->step(steps, modifierFlags(event->modifiers()));
    }
}

void QtLineEdit::dropEvent(QDropEvent* event)
{
    // A part of the text that is moved within the field is no text from elsewhere.
    if (event->source() == this || isReadOnly() || !event->mimeData()->hasText()) {
        ClipboardLineEdit::dropEvent(event);
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setFocus(Qt::MouseFocusReason);
    if (_entry->isTyped()) setCursorPosition(cursorPositionAt(positionOf(*event).toPoint()));
    _entry->bring(u16From(event->mimeData()->text()));
}

void QtLineEdit::bring(const QString& text)
{
    _entry->bring(u16From(text));
}

void QtLineEdit::changeEvent(QEvent* event)
{
    ClipboardLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !_applying) applyColor();
}

void QtLineEdit::fit()
{
    constexpr int besideText = 8;
    QFont fitting = _font;
    if (!hasFocus()) {
        fitting.setPixelSize(fittedTextSize(_font.pixelSize(),
                                            QFontMetricsF(_font).horizontalAdvance(text()),
                                            width() - besideText));
    }
    if (fitting.pixelSize() != font().pixelSize()) setFont(fitting);
}

void QtLineEdit::applyColor()
{
    if (!_color) return;
    _applying = true;
    QPalette palette;  // with the text colour alone set, the rest goes on following the theme
    palette.setColor(QPalette::Text, readableTextColor(*_color, QApplication::palette(this)));
    setPalette(palette);
    _applying = false;
}

}  // namespace vantorel
