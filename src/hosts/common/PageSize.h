#pragma once

#include "host/HostColorPicker.h"

namespace vantorel {

/// Reports to a picker that its page, `view`, has a new size.
void reportPageSize(HostColorPicker& picker, HostView& view);

}  // namespace vantorel
