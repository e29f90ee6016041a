#pragma once

#include <functional>

class QObject;
class QWidget;

namespace vantorel {

/// Calls `then` as soon as the desktop takes what the program puts on the clipboard. Under X11 that
/// is at once. Under Wayland only the window with the keyboard may copy, so the window is shown and
/// brought to the front first; `then` gets false when it has not come there within two seconds.
/// It is not called any more once `context` is gone.
void whenClipboardIsOurTurn(QWidget& window, QObject& context,
                            std::function<void(bool isOurTurn)> then);

}  // namespace vantorel
