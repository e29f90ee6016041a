#pragma once

#include "host/HostColorPicker.h"

namespace vantorel {

/// Reports to a picker that its page, `view`, has a new size.
void reportPageSize(HostColorPicker& picker, HostView& view);

/// The size of a page that wants one size and needs another. `spare` is the room that the screen
/// has left beside the dialog while the page has the size that it wants, and negative if the dialog
/// is too large.
[[nodiscard]] HostSize pageSizeWithin(HostSize spare, HostSize wanted, HostSize needed);

}  // namespace vantorel
