#pragma once

#include "result/Message.h"
#include "snippets/SnippetReaders.h"
#include "snippets/SnippetValues.h"

#include <vector>

namespace vantorel {

/// Returns "red", "opacity" or, for a value that packs all, "the colour".
[[nodiscard]] PhraseText<> nameOfPart(SnippetValue::Part part);

/// Returns why lines of a snippet are not always read as the colour that was written, one sentence
/// without a full stop for each reason; empty if they are. An opacity that the variable form does
/// not contain is no reason.
[[nodiscard]] std::vector<Phrase> snippetLimits(const SnippetReaders& readers, std::size_t snippet);

}  // namespace vantorel
