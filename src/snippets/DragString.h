#pragma once

#include "color/EntryForm.h"
#include "color/QTXHexColorSpec.h"
#include "snippets/CodeDragType.h"
#include "snippets/QTXCodeSnippet.h"

#include <optional>
#include <string>

namespace vantorel {

/// The text that a drag carries; nothing when it carries the colour alone. `colorSpec` has the real
/// alpha, which only the snippet shows. The pound sign goes with the hex code alone.
[[nodiscard]] std::optional<std::u16string> dragStringWithDragType(CodeDragType type,
                                                                   const QTXHexColorSpec& colorSpec,
                                                                   EntryForm entryForm,
                                                                   bool usePoundSign,
                                                                   const QTXCodeSnippet& snippet);

}  // namespace vantorel
