#pragma once

#include "host/HostColorList.h"
#include "lsp/Protocol.h"
#include "lsp/WrittenColors.h"

#include <memory>
#include <span>

namespace vantorel {

/// Returns the names of colour lists that continue the word before a place, as a CompletionList.
/// Choosing one writes its colour in the form that most colours of the document have. Names are
/// offered in values of CSS, and in strings of code.
[[nodiscard]] Json completionItems(const OpenDocument& document, std::size_t place,
                                   const WrittenColors& writer,
                                   std::span<const std::shared_ptr<HostColorList>> lists);

}  // namespace vantorel
