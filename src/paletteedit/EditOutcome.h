#pragma once

#include "paletteedit/EditHistory.h"
#include "result/Message.h"

#include <vector>

namespace vantorel {

/// What a step has led to.
struct EditOutcome {
    bool done = false;
    /// The list to show now; 0 if there is none, for example after a removal.
    PaletteId list = 0;
    /// What the user should know. A step that changes nothing because there was nothing to change
    /// has no messages.
    std::vector<Message> messages = {};

    [[nodiscard]] bool hasFailed() const { return !done && !messages.empty(); }
};

}  // namespace vantorel
