#pragma once

#include "lsp/OpenDocument.h"

#include <string>

namespace vantorel {

/// Appends the colours of a document as the array that answers `textDocument/documentColor`.
/// Written without the JSON library, because a file can have tens of thousands, at each key that is
/// typed.
void appendColors(std::string& json, const OpenDocument& document);

}  // namespace vantorel
