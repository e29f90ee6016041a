#pragma once

#include "plist/PropertyList.h"

#include <string>

namespace vantorel {

/// The old-style text form of a property list, one key or element a line, four blanks of
/// indentation a level. It is pure ASCII (anything else is escaped) and reads back as the same
/// value. Data is written in groups of four bytes.
[[nodiscard]] std::u16string propertyListText(const PropertyList& value);

}  // namespace vantorel
