#pragma once

#include "listformats/ListContents.h"
#include "result/Result.h"

#include <string_view>

namespace vantorel {

/// The maximum number of arrays and objects inside each other. Lists have at most three; the rest
/// is for what other programs store beside the colours. The limit keeps a file of brackets from
/// taking many times its size in memory.
inline constexpr std::size_t deepestJson = 64;

/// Reads `{"name": ..., "colors": [{"name": ..., "hex": ...}]}`, the array alone, or an object of
/// names and colours. In arrays, colours without a name may be strings. Of members with the same
/// name, the last one counts. The text is read once and not kept, so memory grows only with the
/// colours.
[[nodiscard]] Result<ListContents> readJsonList(std::string_view text);

}  // namespace vantorel
