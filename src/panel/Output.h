#pragma once

#include "result/Message.h"

#include <QString>

#include <cstdio>

namespace vantorel {

/// The exit status of the program.
enum ExitStatus : int {
    succeeded = 0,
    failed = 1,
    /// The user has cancelled a pick or a choice.
    cancelled = 1,
    usageError = 2,
    /// The desktop does not allow the requested action.
    notPossible = 3,
};

/// Writes a text to a standard stream at once. If the stream is closed there is no way to report
/// it.
void print(std::FILE* stream, const QString& text);

/// Writes a result that a caller waits for to standard output. Returns `succeeded`, or `failed`
/// after a message if it cannot be written.
[[nodiscard]] ExitStatus printResult(const QString& text);

/// Writes a sentence to standard error, after the program's name.
void printProblem(const QString& sentence);
/// Writes a message to standard error, after the program's name.
void printProblem(const Message& message);

}  // namespace vantorel
