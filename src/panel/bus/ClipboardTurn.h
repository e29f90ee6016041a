#pragma once

#include <QObject>
#include <QWidget>

namespace vantorel {

/// Waits until the desktop takes what the program puts on the clipboard. Under X11 it does at once.
/// Under Wayland only the window with the keyboard may copy, so the window is shown and brought to
/// the front first. The object deletes itself when the wait is over.
class ClipboardTurn final : public QObject {
    Q_OBJECT

public:
    /// `window` must outlive the object.
    ClipboardTurn(QWidget& window, QObject* parent) : QObject(parent), _window(window) {}

    void wait();

signals:
    /// Comes once, perhaps from inside `wait`. False if the window has not come to the front within
    /// two seconds.
    void over(bool isOurTurn);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finish(bool isOurTurn);

    QWidget& _window;
    bool _isOver = false;
};

}  // namespace vantorel
