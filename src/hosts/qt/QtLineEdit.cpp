#include "hosts/qt/QtLineEdit.h"

#include "hosts/common/ReadableColor.h"
#include "hosts/common/TextScale.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtEvents.h"
#include "hosts/qt/QtVersions.h"
#include "hosts/qt/QtView.h"
#include "hosts/qt/TextScale.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>

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

void QtLineEdit::setCanScrub(bool flag)
{
    // Qt gives the focus for a click before the widget gets the click.
    setFocusPolicy(flag ? Qt::TabFocus : Qt::StrongFocus);
    if (flag && !hasFocus()) setCursor(Qt::SizeHorCursor);
    if (!flag) setCursor(Qt::IBeamCursor);
}

double QtLineEdit::pointsOf(const QMouseEvent& event)
{
    return positionOf(event).x() / textScale();
}

void QtLineEdit::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && !hasFocus() && _scrub->press(pointsOf(*event))) return;
    ClipboardLineEdit::mousePressEvent(event);
}

void QtLineEdit::mouseMoveEvent(QMouseEvent* event)
{
    if (_scrub->isUnderWay()) {
        _scrub->move(pointsOf(*event), modifierFlags(event->modifiers()));
    } else {
        ClipboardLineEdit::mouseMoveEvent(event);
    }
}

void QtLineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !_scrub->isUnderWay()) {
        ClipboardLineEdit::mouseReleaseEvent(event);
    } else if (_scrub->release()) {
        setFocus(Qt::MouseFocusReason);
        selectAll();
    }
}

bool QtLineEdit::event(QEvent* event)
{
    const WidgetReaction reaction;
    // Whoever takes the mouse, as a menu or another window does, gets the release.
    if (event->type() == QEvent::UngrabMouse || event->type() == QEvent::Hide) {
        if (_scrub != nullptr && _scrub->isUnderWay()) _scrub->breakOff();
    }
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
    if (focusPolicy() == Qt::TabFocus) setCursor(Qt::IBeamCursor);
    fit();
}

void QtLineEdit::focusOutEvent(QFocusEvent* event)
{
    ClipboardLineEdit::focusOutEvent(event);
    if (focusPolicy() == Qt::TabFocus) setCursor(Qt::SizeHorCursor);
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
