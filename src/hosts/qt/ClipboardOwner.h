#pragma once

#include "result/Message.h"

#include <QClipboard>
#include <QObject>

#include <functional>

namespace vantorel {

/// Finds out whether the program that holds the clipboard answers, without waiting for it. Reading
/// from a `QClipboard` under X11 blocks the window for up to 15 seconds if it does not.
///
/// Calls `then` with false after two seconds without an answer. Calls it at once with true where
/// nothing has to be asked: if this program holds the clipboard, and on systems other than X11.
/// Does not call it after `context` has been destroyed.
void askClipboardOwner(QClipboard::Mode mode, QObject& context,
                       std::function<void(bool answers)> then);

/// Returns the message for the user if the owner does not answer.
[[nodiscard]] Message clipboardOwnerIsSilent();

}  // namespace vantorel
