#pragma once

#include "result/Message.h"

#include <QString>

namespace vantorel {

/// A message in the user's language: "WHAT; REMEDY", a sentence without its full stop. It is plain
/// text, never markup.
[[nodiscard]] QString translated(const Message& message);

}  // namespace vantorel
