#pragma once

#include "Choices.h"
#include "panel/window/PanelWindow.h"

#include <QTimer>

namespace vantorel {

/// A simulated user of the panel's window who does anything with mouse, keyboard, clipboard and
/// drops except leave the panel.
class QtUser {
public:
    /// Whether the user edits colour lists, which makes them longer and longer.
    enum class Lists { stay, mayBeEdited };

    /// Both must outlive the user.
    QtUser(PanelWindow& window, Choices& choices, Lists lists = Lists::stay);

    /// Performs one random action.
    void act();

private:
    void press(QWidget& target);
    /// Does something to any widget that is shown.
    void pointAtSomething();
    void doubleClick(QWidget& target, QPoint place);
    void turnWheel(QWidget& target);
    void compose();
    void pressButton();
    void openPopUp();
    void type();
    void pressKey();
    void drop();
    void resize();
    /// Acts in a nested event loop, such as a menu's, started by the last action.
    void actInLoop();
    void handlePopUp(QWidget& popUp);
    [[nodiscard]] QPoint placeIn(const QWidget& widget);
    [[nodiscard]] QString text();
    [[nodiscard]] HostColor color();

    PanelWindow& _window;
    Choices& _choices;
    Lists _lists;
    QTimer _inLoops;
    /// The widget in which the mouse is pressed.
    QWidget* _pressed = nullptr;
};

}  // namespace vantorel
