#include "hosts/qt/QtTextField.h"

#include "hosts/qt/QtColors.h"

#include <QApplication>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

Qt::Alignment describedAlignment(const HostControlDescription& description)
{
    switch (description.alignment) {
        case HostControlDescription::Alignment::center:
            return Qt::AlignCenter;
        case HostControlDescription::Alignment::right:
            return Qt::AlignRight | Qt::AlignVCenter;
        case HostControlDescription::Alignment::left:
            break;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

}  // namespace

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

/// A line edit whose text colour follows the theme, which can be left by Escape, and which writes a
/// little smaller where that makes room for the whole text.
class QtTextField::LineEdit final : public QLineEdit {
public:
    LineEdit(QtTextField& owner, const QFont& font) : _owner(owner), _font(font)
    {
        setFont(font);
        connect(this, &QLineEdit::textChanged, this, [this] { fit(); });
    }

    void setHostColor(const HostColor& color)
    {
        if (_color == color) return;
        _color = color;
        applyColor();
    }

protected:
    bool event(QEvent* event) override
    {
        // Said before shortcuts are looked for: in a field Escape ends the entry and nothing else,
        // also where it would close the window.
        if (event->type() == QEvent::ShortcutOverride &&
            static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel)) {
            event->accept();
            return true;
        }
        return QLineEdit::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (!event->matches(QKeySequence::Cancel)) {
            QLineEdit::keyPressEvent(event);
        } else if (_owner._entryGivenUp && isModified()) {
            // A copy: the reaction may set another one.
            const auto reaction = _owner._entryGivenUp;
            reaction();
            setModified(false);
        } else {
            // There is nothing to give up here.
            event->ignore();
        }
    }

    void resizeEvent(QResizeEvent* event) override
    {
        QLineEdit::resizeEvent(event);
        fit();
    }

    void focusInEvent(QFocusEvent* event) override
    {
        QLineEdit::focusInEvent(event);
        fit();
    }

    void focusOutEvent(QFocusEvent* event) override
    {
        QLineEdit::focusOutEvent(event);
        fit();
    }

    void changeEvent(QEvent* event) override
    {
        QLineEdit::changeEvent(event);
        if (event->type() == QEvent::PaletteChange && !_applying) applyColor();
    }

private:
    /// While one types, the size of the letters stays.
    void fit()
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

    void applyColor()
    {
        if (!_color) return;
        _applying = true;
        QPalette palette;  // with the text colour alone set, the rest goes on following the theme
        palette.setColor(QPalette::Text, readableTextColor(*_color, QApplication::palette(this)));
        setPalette(palette);
        _applying = false;
    }

    QtTextField& _owner;
    QFont _font;  ///< in its full size
    std::optional<HostColor> _color;
    bool _applying = false;
};

QtTextField::QtTextField(const HostControlDescription& description)
    : QtMirrored(description.frame, new LineEdit(*this, fontOf(description)))
{
    QLineEdit* edit = lineEdit();
    edit->setAlignment(describedAlignment(description));
    edit->setText(qStringFrom(description.title));
    edit->setAccessibleName(qStringFrom(description.accessibleName));
    // Not `textEdited`: what an assistive program enters for the user counts as typed, too.
    QObject::connect(edit, &QLineEdit::textChanged, edit, [this] {
        if (_textIsBeingSet) return;
        sendTextDidChange();
        // The typing may have completed the text, which does not end it.
        lineEdit()->setModified(true);
    });
    QObject::connect(edit, &QLineEdit::returnPressed, edit, [this] { enterText(); });
}

void QtTextField::enterText()
{
    sendAction();
    lineEdit()->setModified(false);
}

void QtTextField::finishEditing()
{
    if (lineEdit()->isVisible() && lineEdit()->isModified()) enterText();
}

QLineEdit* QtTextField::lineEdit() const
{
    return static_cast<QLineEdit*>(widget());
}

std::u16string QtTextField::stringValue() const
{
    return u16From(lineEdit()->text());
}

void QtTextField::setStringValue(const std::u16string& text)
{
    QLineEdit* edit = lineEdit();
    const QString newText = qStringFrom(text);
    if (edit->text() == newText) return;
    const int insertionPoint = isEdited() ? edit->cursorPosition() : 0;
    const bool wasBeingSet = std::exchange(_textIsBeingSet, true);
    edit->setText(newText);
    _textIsBeingSet = wasBeingSet;
    edit->setCursorPosition(insertionPoint);
}

void QtTextField::setTextColor(const HostColor& color)
{
    static_cast<LineEdit*>(widget())->setHostColor(color);
}

bool QtTextField::isEdited() const
{
    return lineEdit()->hasFocus();
}

HostSelection QtTextField::selectedRange() const
{
    const QLineEdit* edit = lineEdit();
    if (!edit->hasSelectedText()) return {static_cast<std::size_t>(edit->cursorPosition()), 0};
    return {static_cast<std::size_t>(edit->selectionStart()),
            static_cast<std::size_t>(edit->selectionLength())};
}

void QtTextField::setSelectedRange(HostSelection range)
{
    const auto length = static_cast<std::size_t>(lineEdit()->text().size());
    const std::size_t start = std::min(range.location, length);
    lineEdit()->setSelection(static_cast<int>(start),
                             static_cast<int>(std::min(range.length, length - start)));
}

QtLabel::QtLabel(const HostControlDescription& description)
    : QtMirrored(description.frame, new QLabel)
{
    label()->setFont(fontOf(description));
    label()->setAlignment(describedAlignment(description));
    label()->setTextFormat(Qt::PlainText);
    label()->setAccessibleName(qStringFrom(description.accessibleName));
    setStringValue(description.title);
}

QLabel* QtLabel::label() const
{
    return static_cast<QLabel*>(widget());
}

std::u16string QtLabel::stringValue() const
{
    return u16From(label()->text());
}

void QtLabel::setStringValue(const std::u16string& text)
{
    const QString shown = qStringFrom(text);
    label()->setText(shown);
    // A label with a name of its own would hide from assistive technology what it shows.
    if (label()->accessibleName() != shown) label()->setAccessibleDescription(shown);
}

void QtLabel::setTextColor(const HostColor& color)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText,
                     readableTextColor(color, QApplication::palette(label())));
    label()->setPalette(palette);
}

}  // namespace vantorel
