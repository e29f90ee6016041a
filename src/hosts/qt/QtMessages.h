#pragma once

#include "result/Message.h"

#include <QString>

namespace vantorel {

/// A message in the user's language: "WHAT; REMEDY", a sentence without its full stop. It is plain
/// text, never markup.
[[nodiscard]] QString translated(const Message& message);
/// The same as a sentence of its own, with a capital letter and a full stop. Empty for an empty
/// message.
[[nodiscard]] QString translatedSentence(const Message& message);

}  // namespace vantorel
