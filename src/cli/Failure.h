#pragma once

#include "result/Message.h"

namespace vantorel {

/// The exit status of whatever goes wrong. A user who chooses nothing is no error, and has the 1.
inline constexpr int failureStatus = 2;

/// Ends a command with a message.
struct Failure {
    Message message;
};

/// Ends a command that has nobody left to say anything to.
struct SilentFailure {};

/// Writes "vantorel: WHAT: REMEDY" to standard error.
void complain(const Message& message);

}  // namespace vantorel
