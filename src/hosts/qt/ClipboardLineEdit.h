#pragma once

#include <QClipboard>
#include <QLineEdit>

namespace vantorel {

/// A line edit that reads the clipboard without waiting for a program that does not answer. After
/// two seconds without an answer a tool tip says so.
class ClipboardLineEdit : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

public slots:
    /// Pastes from the clipboard; takes the place of `QLineEdit::paste`.
    void paste() { pasteFrom(QClipboard::Clipboard); }

protected:
    /// Writes a text of the clipboard, or of a drop. Does nothing if the field is read only.
    virtual void bring(const QString& text);

    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void pasteFrom(QClipboard::Mode mode);
};

}  // namespace vantorel
