#include "hosts/qt/QtTextField.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"

#include <QApplication>

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

QtTextField::QtTextField(const HostControlDescription& description)
    : QtMirrored(description.frame, new QtLineEdit(fontOf(description)))
{
    QtLineEdit* edit = lineEdit();
    edit->setAlignment(describedAlignment(description));
    edit->setText(qStringFrom(description.title));
    edit->setAccessibleName(qStringFrom(description.accessibleName));
    // Not `textEdited`: text entered by an assistive program counts as typed, too.
    QObject::connect(edit, &QLineEdit::textChanged, edit, [this] {
        if (_textIsBeingSet) return;
        sendTextDidChange();
        // Completing the text while the user types does not end the entry.
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

QtLineEdit* QtTextField::lineEdit() const
{
    return static_cast<QtLineEdit*>(widget());
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
    lineEdit()->setHostColor(color);
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
    return u16From(label()->text());
}

void QtLabel::setStringValue(const std::u16string& text)
{
    const QString shown = qStringFrom(text);
    label()->setText(shown);
    // An accessible name of the label itself would hide its text from assistive technology.
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
