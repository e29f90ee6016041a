#pragma once

#include "listformats/ListContents.h"

namespace vantorel {

/// Reads a JSON list: `{"name": ..., "colors": [{"name": ..., "hex": ...}]}`, only the array, or an
/// object of names and colours. Returns `std::nullopt` if the text is not JSON or has another form.
[[nodiscard]] std::optional<ListContents> readJsonList(std::string_view text);

}  // namespace vantorel
