#include "hosts/qt/QtLineEdit.h"

#include "hosts/qt/QtColors.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>

namespace vantorel {

QColor readableTextColor(const HostColor& color, const QPalette& palette)
{
    constexpr int darkGround = 128;
    constexpr float readableLightness = 0.72F;
    const QColor wanted = qColorFrom(color);
    if (!wanted.isValid() || wanted == QColor(Qt::black)) return palette.color(QPalette::Text);
    if (palette.color(QPalette::Base).lightness() >= darkGround) return wanted;
    return QColor::fromHslF(std::max(0.0F, wanted.hslHueF()), wanted.hslSaturationF(),
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
    return QLineEdit::event(event);
}

void QtLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Cancel)) {
        QLineEdit::keyPressEvent(event);
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
    QLineEdit::resizeEvent(event);
    fit();
}

void QtLineEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    fit();
}

void QtLineEdit::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    fit();
}

void QtLineEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
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
