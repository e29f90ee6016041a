#include "hosts/qt/QtTextField.h"

#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtColors.h"
#include "hosts/qt/QtEvents.h"

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
    edit->setReadOnly(description.readOnly);
    // Not `textEdited`: text entered by an assistive program counts as typed, too.
    QObject::connect(edit, &QLineEdit::textChanged, edit, [this] {
        if (!_textIsBeingSet) textDidChangeByUser();
    });
    QObject::connect(edit, &QLineEdit::returnPressed, edit, [this] { enterText(); });
    QObject::connect(edit, &QtLineEdit::left, edit, [this] { leave(); });
    QObject::connect(edit, &QtLineEdit::textBrought, edit, [this] { takeBroughtText(); });
    QObject::connect(edit, &QtLineEdit::stepped, edit,
                     [this](int steps, Qt::KeyboardModifiers modifiers) {
                         finishEditing();
                         sendStep(steps, modifierFlags(modifiers));
                     });
}

void QtTextField::stepDidChange()
{
    lineEdit()->setCanStep(canStep());
}

void QtTextField::textDidChangeByUser()
{
    QtLineEdit* edit = lineEdit();
    const QString typed = edit->text();
    const int caret = edit->cursorPosition();
    _isReacting = true;
    _wasWritten = false;
    sendTextDidChange();
    _isReacting = false;
    if (_wasWritten) showCompletion(typed, caret);
    // The typing may have completed the text, which does not end it.
    edit->setModified(true);
}

void QtTextField::showCompletion(const QString& typed, int caret)
{
    QtLineEdit* edit = lineEdit();
    const int behind = static_cast<int>(edit->text().size()) - edit->cursorPosition();
    if (behind <= 0) return;
    if (!edit->isDeleting()) {
        edit->setSelection(static_cast<int>(edit->text().size()), -behind);
        return;
    }
    const bool wasBeingSet = std::exchange(_textIsBeingSet, true);
    edit->setText(typed);
    _textIsBeingSet = wasBeingSet;
    edit->setCursorPosition(caret);
}

bool QtTextField::offerText()
{
    bool isTaken = false;
    emit lineEdit()->textOffered(lineEdit()->text(), isTaken);
    if (isTaken) lineEdit()->setModified(false);
    return isTaken;
}

void QtTextField::enterText()
{
    const bool isIgnored = entryFit(stringValue()) == HostEntryFit::isIgnored;
    if (isIgnored && offerText()) return;
    sendAction();
    // An entry that was ignored goes on.
    if (!isIgnored) lineEdit()->setModified(false);
}

void QtTextField::leave()
{
    if (!lineEdit()->isModified()) return;
    enterText();
    if (!lineEdit()->isModified()) return;
    lineEdit()->setModified(false);
    emit lineEdit()->entryGivenUp();
}

void QtTextField::takeBroughtText()
{
    if (entryFit(stringValue()) != HostEntryFit::fits) offerText();
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
    _wasWritten = true;
}

void QtTextField::setTextColor(const HostColor& color)
{
    lineEdit()->setHostColor(color);
}

bool QtTextField::isEdited() const
{
    // A drop from another window comes before the focus.
    return _isReacting || lineEdit()->hasFocus();
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
    placeWidgets(*this);
}

QRect QtLabel::shownGeometry(QRect frame) const
{
    if (!label()->alignment().testFlag(Qt::AlignRight)) return frame;
    const int whole = frame.right() + 1 - label()->sizeHint().width();
    // Not outside the superview, unless the frame is.
    frame.setLeft(std::min(frame.left(), std::max(whole, 0)));
    return frame;
}

void QtLabel::setTextColor(const HostColor& color)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText,
                     readableTextColor(color, QApplication::palette(label())));
    label()->setPalette(palette);
}

}  // namespace vantorel
