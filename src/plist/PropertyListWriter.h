#pragma once

#include "plist/PropertyList.h"

#include <string>

namespace vantorel {

/// Writes a property list in the old-style text form, one key or element a line, indented by four
/// spaces a level. The text is pure ASCII (other characters are escaped) and reads back as the same
/// value. Data is written in groups of four bytes.
[[nodiscard]] std::u16string propertyListText(const PropertyList& value);

}  // namespace vantorel
