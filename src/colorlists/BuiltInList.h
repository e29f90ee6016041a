#pragma once

#include <cstdint>

namespace vantorel {

/// The built-in colour lists. The numbers are fixed; two of them mean the CSS keywords. Other
/// numbers may come from outside and denote no list.
enum class BuiltInList : std::int32_t {
    browserSafe = 12,
    cssKeyword = 13,
    svgKeyword = 14,
    cssKeywordAgain = 15,
};

}  // namespace vantorel
