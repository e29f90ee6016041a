#pragma once

#include "Choices.h"
#include "panel/window/PanelWindow.h"

#include <QTimer>

namespace vantorel {

/// A user with the panel's window, who does anything with mouse, keyboard, clipboard and drops but
/// leave the panel.
class QtUser {
public:
    /// Both must outlive the user.
    QtUser(PanelWindow& window, Choices& choices);

    /// Does one thing.
    void act();

private:
    void press(QWidget& target);
    void pressButton();
    void openPopUp();
    void type();
    void pressKey();
    void drop();
    void resize();
    /// In loops of their own, such as a menu's, that the last thing has begun.
    void actInLoop();
    void handlePopUp(QWidget& popUp);
    [[nodiscard]] QPoint placeIn(const QWidget& widget);
    [[nodiscard]] QString text();
    [[nodiscard]] HostColor color();

    PanelWindow& _window;
    Choices& _choices;
    QTimer _inLoops;
    /// Where the mouse is down.
    QWidget* _pressed = nullptr;
};

}  // namespace vantorel
