#pragma once

#include "settings/KnownSnippets.h"

#include <string>

namespace vantorel {

/// Returns the snippet of a name. Throws a `Failure` if there is none.
[[nodiscard]] const QTXCodeSnippet& requiredSnippet(KnownSnippets& snippets,
                                                    const std::string& utf8Name);

}  // namespace vantorel
