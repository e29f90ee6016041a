#pragma once

#include "result/Message.h"
#include "snippets/QTXCodeSnippet.h"

#include <vector>

namespace vantorel {

/// Returns which values of a colour have no place in a snippet's format, and whether it has more
/// places than values, one message each. Empty if each value has its place, and for an unknown
/// variable form.
[[nodiscard]] std::vector<Message> misfitsOfFormat(const QTXCodeSnippet& snippet);

}  // namespace vantorel
