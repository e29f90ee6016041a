#pragma once

#include "host/HostColorList.h"

#include <optional>
#include <string>

namespace vantorel {

/// Returns the colour with exactly this name in a list, or else the first whose name differs only
/// in the case of ASCII letters. Entries without a colour do not count.
[[nodiscard]] std::optional<HostColor> colorInList(const HostColorList& list,
                                                   const std::u16string& name);

}  // namespace vantorel
