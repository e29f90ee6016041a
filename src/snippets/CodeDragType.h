#pragma once

#include <cstdint>

namespace vantorel {

/// What a drag out of the picker carries. The numbers are fixed. Any other value may be stored;
/// such a drag carries the colour.
enum class CodeDragType : std::int32_t {
    color = 917,
    hexCode = 918,
    rgbCSS = 919,
    codeSnippet = 920,
};

}  // namespace vantorel
