#pragma once

#include "listformats/ListContents.h"

#include "host/HostColorList.h"

#include <optional>
#include <string>
#include <string_view>

/// Colour tables of office programs (.soc): XML with an element for each colour.
namespace vantorel {

[[nodiscard]] std::string officeColorTable(const HostColorList& list);

/// Reads the names and hex codes of such a table. Returns `std::nullopt` if the text is not one.
/// Tables do not name the list.
[[nodiscard]] std::optional<ListContents> readOfficeColorTable(std::string_view text);

}  // namespace vantorel
