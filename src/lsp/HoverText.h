#pragma once

#include "colormath/ListNames.h"
#include "lsp/ClientAbilities.h"
#include "lsp/WrittenColors.h"

#include <span>
#include <string>

namespace vantorel {

/// Returns the text of a hover: all forms of a colour, its name or the nearest one, and its
/// contrast with white and black.
[[nodiscard]] std::string hoverText(const OpenDocument::Found& found, const WrittenColors& writer,
                                    const ListNames* names, const ClientAbilities& client);

}  // namespace vantorel
