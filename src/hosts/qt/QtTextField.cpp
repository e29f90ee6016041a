#include "hosts/qt/QtTextField.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"

#include <QApplication>

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

QtTextField::QtTextField(const HostControlDescription& description)
    : QtMirrored(description.frame, new QtLineEdit(fontOf(description)))
{
    QtLineEdit* edit = lineEdit();
    edit->setAlignment(describedAlignment(description));
    edit->setText(qStringFrom(description.title));
    edit->setAccessibleName(qStringFrom(description.accessibleName));
    edit->setReadOnly(description.readOnly);
    // Not `textEdited`: text entered by an assistive program counts as typed, too.
    QObject::connect(edit, &QLineEdit::textChanged, edit, [this, edit] {
        const WidgetReaction reaction;
        _entry.textDidChange(edit->isDeleting());
    });
    QObject::connect(edit, &QLineEdit::returnPressed, edit, [this] {
        const WidgetReaction reaction;
        _entry.enter();
    });
    edit->setEntry(_entry, _scrub);
}

void QtTextField::stepDidChange()
{
    if (QtLineEdit* edit = lineEdit()) edit->setCanStep(canStep());
}

void QtTextField::scrubDidChange()
{
    if (QtLineEdit* edit = lineEdit()) edit->setCanScrub(canScrub());
}

QtLineEdit* QtTextField::lineEdit() const
{
    return static_cast<QtLineEdit*>(widget());
}

std::u16string QtTextField::stringValue() const
{
    const QtLineEdit* edit = lineEdit();
    return edit != nullptr ? u16From(edit->text()) : std::u16string();
}

void QtTextField::setStringValue(const std::u16string& text)
{
    if (lineEdit() != nullptr) _entry.setStringValue(text);
}

void QtTextField::writeText(const std::u16string& text)
{
    if (QtLineEdit* edit = lineEdit()) edit->setText(qStringFrom(text));
}

void QtTextField::setTextColor(const HostColor& color)
{
    if (QtLineEdit* edit = lineEdit()) edit->setHostColor(color);
}

EntryWidget::Range QtTextField::selection() const
{
    const QLineEdit* edit = lineEdit();
    if (edit == nullptr) return {};
    const auto caret = static_cast<std::size_t>(edit->cursorPosition());
    if (!edit->hasSelectedText()) return {caret, caret};
    const auto start = static_cast<std::size_t>(edit->selectionStart());
    const auto end = static_cast<std::size_t>(edit->selectionEnd());
    return {caret == start ? end : start, caret};
}

void QtTextField::select(Range range)
{
    const int anchor = static_cast<int>(range.anchor);
    if (QtLineEdit* edit = lineEdit())
        edit->setSelection(anchor, static_cast<int>(range.caret) - anchor);
}

void QtTextField::insert(const std::u16string& text)
{
    if (QtLineEdit* edit = lineEdit()) edit->insert(qStringFrom(text));
}

bool QtTextField::hasFocus() const
{
    return lineEdit() != nullptr && lineEdit()->hasFocus();
}

bool QtTextField::isVisible() const
{
    return lineEdit() != nullptr && lineEdit()->isVisible();
}

bool QtTextField::isReadOnly() const
{
    return lineEdit() == nullptr || lineEdit()->isReadOnly();
}

bool QtTextField::offerText(const std::u16string& text)
{
    bool isTaken = false;
    if (QtLineEdit* edit = lineEdit()) emit edit->textOffered(qStringFrom(text), isTaken);
    return isTaken;
}

void QtTextField::entryGivenUp()
{
    if (QtLineEdit* edit = lineEdit()) emit edit->entryGivenUp();
}

QtLabel::QtLabel(const HostControlDescription& description)
    : QtMirrored(description.frame, new PlainLabel)
{
    label()->setFont(fontOf(description));
    label()->setAlignment(describedAlignment(description));
    label()->setAccessibleName(qStringFrom(description.accessibleName));
    setStringValue(description.title);
}

QLabel* QtLabel::label() const
{
    return static_cast<QLabel*>(widget());
}

std::u16string QtLabel::stringValue() const
{
    return label() != nullptr ? u16From(label()->text()) : std::u16string();
}

void QtLabel::setStringValue(const std::u16string& text)
{
    if (label() == nullptr) return;
    const QString shown = qStringFrom(text);
    label()->setText(shown);
    // An accessible name of the label itself would hide its text from assistive technology.
    if (label()->accessibleName() != shown) label()->setAccessibleDescription(shown);
    placeWidgets(*this);
}

QRect QtLabel::shownGeometry(QRect frame) const
{
    if (label() == nullptr || !label()->alignment().testFlag(Qt::AlignRight)) return frame;
    const int whole = frame.right() + 1 - label()->sizeHint().width();
    // Not outside the superview, unless the frame is.
    frame.setLeft(std::min(frame.left(), std::max(whole, 0)));
    return frame;
}

void QtLabel::setTextColor(const HostColor& color)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText,
                     readableTextColor(color, paletteOnGround(groundColor())));
    if (label() != nullptr) label()->setPalette(palette);
}

}  // namespace vantorel
