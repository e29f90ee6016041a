#pragma once

#include "paletteedit/PaletteEditor.h"

#include <QString>

namespace vantorel {

/// What the user is told about a step, a sentence or two for each remark. `folder` is where the
/// user's own lists are.
[[nodiscard]] QString textOfRemarks(const EditOutcome& outcome, const QString& folder);
/// Whether something went wrong, which the user should not miss.
[[nodiscard]] bool isFailure(const EditOutcome& outcome);

}  // namespace vantorel
