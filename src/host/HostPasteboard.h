#pragma once

#include "host/HostColor.h"

#include <string>
#include <variant>

namespace vantorel {

/// What a drag carries, always of one type alone: a text (UTF-8) or a colour.
using HostPasteboardItem = std::variant<std::string, HostColor>;

}  // namespace vantorel
