#pragma once

#include "host/HostColor.h"

#include <string>
#include <variant>

namespace vantorel {

/// The data of a drag, either a text (UTF-8) or a colour.
using HostPasteboardItem = std::variant<std::string, HostColor>;

}  // namespace vantorel
