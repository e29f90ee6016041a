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
    const auto set = [this](QAction* action, QKeySequence::StandardKey key, bool enabled,
                            auto function) {
        action->setShortcut(key);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, function);
    };
    constexpr auto translate = [](const char* text) {
        return QCoreApplication::translate("QLineEdit", text);
    };
    const bool writable = !isReadOnly();
    const bool readable = echoMode() == QLineEdit::Normal;
    const bool selected = hasSelectedText();
    const bool allSelected = selectedText() == text();
    set(menu->addAction(translate("&Undo")), QKeySequence::Undo, writable && isUndoAvailable(),
        &QLineEdit::undo);
    set(menu->addAction(translate("&Redo")), QKeySequence::Redo, writable && isRedoAvailable(),
        &QLineEdit::redo);
    menu->addSeparator();
    set(menu->addAction(translate("Cu&t")), QKeySequence::Cut, writable && readable && selected,
        &QLineEdit::cut);
    set(menu->addAction(translate("&Copy")), QKeySequence::Copy, readable && selected,
        &QLineEdit::copy);
    set(menu->addAction(translate("&Paste")), QKeySequence::Paste, writable,
        &ClipboardLineEdit::paste);
    set(menu->addAction(translate("Delete")), QKeySequence::Delete, writable && selected,
        &QLineEdit::del);
    menu->addSeparator();
    set(menu->addAction(translate("Select All")), QKeySequence::SelectAll, !allSelected,
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
