#pragma once

#include <QObject>
#include <QWidget>

namespace vantorel {

/// Waits until the program may write to the clipboard. Under X11 it always may. Under Wayland only
/// the window with the keyboard focus may, so the window is shown and activated first. The object
/// deletes itself when the wait is over.
class ClipboardTurn final : public QObject {
    Q_OBJECT

public:
    /// `window` must outlive the object.
    ClipboardTurn(QWidget& window, QObject* parent) : QObject(parent), _window(window) {}

    void wait();

signals:
    /// Emitted once, possibly inside `wait`. False if the window was not activated within two
    /// seconds.
    void over(bool isOurTurn);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void finish(bool isOurTurn);

    QWidget& _window;
    bool _isOver = false;
};

}  // namespace vantorel
