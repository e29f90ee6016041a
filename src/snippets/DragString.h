#pragma once

#include "color/EntryForm.h"
#include "color/QTXHexColorSpec.h"
#include "snippets/CodeDragType.h"
#include "snippets/QTXCodeSnippet.h"

#include <optional>
#include <string>

namespace vantorel {

/// Returns the text that a drag carries, or `std::nullopt` if it carries only the colour.
/// `colorSpec` must have the actual alpha, which only the code snippet uses. `usePoundSign` affects
/// only the hex code.
[[nodiscard]] std::optional<std::u16string> dragStringWithDragType(CodeDragType type,
                                                                   const QTXHexColorSpec& colorSpec,
                                                                   EntryForm entryForm,
                                                                   bool usePoundSign,
                                                                   const QTXCodeSnippet& snippet);

}  // namespace vantorel
