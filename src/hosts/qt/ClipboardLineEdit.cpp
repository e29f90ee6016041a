#include "hosts/qt/ClipboardLineEdit.h"

#include "hosts/qt/ClipboardOwner.h"
#include "hosts/qt/PlainText.h"
#include "hosts/qt/QtMessages.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QToolTip>

namespace vantorel {

void ClipboardLineEdit::bring(const QString& text)
{
    if (!isReadOnly()) insert(text);
}

void ClipboardLineEdit::keyPressEvent(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::Paste)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const bool isSelectionKey = event->key() == Qt::Key_Insert &&
                                event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
    pasteFrom(isSelectionKey ? QClipboard::Selection : QClipboard::Clipboard);
}

void ClipboardLineEdit::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton && QGuiApplication::clipboard()->supportsSelection()) {
        pasteFrom(QClipboard::Selection);
    } else {
        QLineEdit::mouseReleaseEvent(event);
    }
}

void ClipboardLineEdit::contextMenuEvent(QContextMenuEvent* event)
{
    // The toolkit's own menu reads the clipboard to find out whether there is something to paste.
    // These are its texts, and its translations.
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const char* text, QKeySequence::StandardKey key, bool enabled,
                         auto function) {
        QAction* action = menu->addAction(QCoreApplication::translate("QLineEdit", text));
        action->setShortcut(key);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, function);
    };
    const bool writable = !isReadOnly();
    const bool readable = echoMode() == QLineEdit::Normal;
    add("&Undo", QKeySequence::Undo, writable && isUndoAvailable(), &QLineEdit::undo);
    add("&Redo", QKeySequence::Redo, writable && isRedoAvailable(), &QLineEdit::redo);
    menu->addSeparator();
    add("Cu&t", QKeySequence::Cut, writable && readable && hasSelectedText(), &QLineEdit::cut);
    add("&Copy", QKeySequence::Copy, readable && hasSelectedText(), &QLineEdit::copy);
    add("&Paste", QKeySequence::Paste, writable, &ClipboardLineEdit::paste);
    add("Delete", QKeySequence::Delete, writable && hasSelectedText(), &QLineEdit::del);
    menu->addSeparator();
    add("Select All", QKeySequence::SelectAll, !text().isEmpty() && selectedText() != text(),
        &QLineEdit::selectAll);
    menu->popup(event->globalPos());
}

void ClipboardLineEdit::pasteFrom(QClipboard::Mode mode)
{
    askClipboardOwner(mode, *this, [this, mode](bool answers) {
        if (answers) {
            bring(QGuiApplication::clipboard()->text(mode));
        } else {
            QToolTip::showText(mapToGlobal(QPoint(0, height())),
                               plainToolTip(translatedSentence(clipboardOwnerIsSilent())), this);
        }
    });
}

}  // namespace vantorel
