#include "hosts/qt/QtLineEdit.h"

#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtVersions.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>

#include <algorithm>

namespace vantorel {
namespace {

/// A copied line often has more than the colour at its ends.
QString withoutEnds(const QString& text)
{
    QString bare = text.trimmed();
    if (bare.endsWith(u';')) bare = bare.chopped(1).trimmed();
    return bare;
}

bool writesNothing(const QKeyEvent& event)
{
    return event.text().isEmpty() || !event.text().at(0).isPrint();
}

}  // namespace

QColor readableTextColor(const HostColor& color, const QPalette& palette)
{
    constexpr int darkGround = 128;
    constexpr auto readableLightness = static_cast<QtFraction>(0.72);
    const QColor wanted = qColorFrom(color);
    if (!wanted.isValid() || wanted == QColor(Qt::black)) return palette.color(QPalette::Text);
    if (palette.color(QPalette::Base).lightness() >= darkGround) return wanted;
    return QColor::fromHslF(std::max(QtFraction{0}, wanted.hslHueF()), wanted.hslSaturationF(),
                            std::max(readableLightness, wanted.lightnessF()));
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
        emit stepped(event->key() == Qt::Key_Up ? 1 : -1, event->modifiers());
    } else if (!event->matches(QKeySequence::Cancel)) {
        _isDeleting = writesNothing(*event);
        ClipboardLineEdit::keyPressEvent(event);
        _isDeleting = false;
    } else if (isModified()) {
        emit entryGivenUp();
        setModified(false);
    } else {
        // There is no entry to discard.
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
    switch (event->reason()) {
        case Qt::MouseFocusReason:
        case Qt::TabFocusReason:
        case Qt::BacktabFocusReason:
        case Qt::ShortcutFocusReason:
            emit left();
            break;
        default:
            break;  // another window, a menu, or the field was hidden
    }
}

void QtLineEdit::wheelEvent(QWheelEvent* event)
{
    if (!_canStep || isReadOnly()) {
        ClipboardLineEdit::wheelEvent(event);
        return;
    }
    event->accept();
    if (const int steps = _wheelSteps.stepsOf(*event); steps != 0) {
        emit stepped(steps, event->modifiers());
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
    if (isModified()) setCursorPosition(cursorPositionAt(positionOf(*event).toPoint()));
    bring(event->mimeData()->text());
}

void QtLineEdit::bring(const QString& text)
{
    const QString bare = withoutEnds(text);
    if (isReadOnly() || bare.isEmpty()) return;
    if (!isModified() && (!hasSelectedText() || selectedText() == this->text())) selectAll();
    const bool replacesAll = this->text().isEmpty() || selectedText() == this->text();
    insert(bare);
    if (replacesAll) emit textBrought();
}

void QtLineEdit::changeEvent(QEvent* event)
{
    ClipboardLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !_applying) applyColor();
}

void QtLineEdit::fit()
{
    constexpr int besideText = 8;
    constexpr double smallest = 0.7;
    const double room = width() - besideText;
    const double needed = QFontMetricsF(_font).horizontalAdvance(text());
    const double ratio = needed > 0 ? room / needed : 1;
    QFont fitting = _font;
    if (!hasFocus() && ratio < 1 && ratio >= smallest) {
        fitting.setPixelSize(static_cast<int>(_font.pixelSize() * ratio));
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
