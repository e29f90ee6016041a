#pragma once

#include "result/Message.h"

namespace vantorel {

/// The exit status of all errors. Status 1 means that the user cancelled.
inline constexpr int failureStatus = 2;

/// Thrown to end a command with an error message.
struct Failure {
    Message message;
};

/// Thrown to end a command without a message, because the reader of its output has gone.
struct SilentFailure {};

/// Writes "vantorel: WHAT: REMEDY" to standard error.
void reportError(const Message& message);

}  // namespace vantorel
