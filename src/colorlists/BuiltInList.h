#pragma once

#include <cstdint>

namespace vantorel {

/// The built-in colour lists. The numbers are fixed; two of them stand for the CSS keywords. Any
/// other number may come from outside, and stands for no list.
enum class BuiltInList : std::int32_t {
    browserSafe = 12,
    cssKeyword = 13,
    svgKeyword = 14,
    cssKeywordAgain = 15,
};

}  // namespace vantorel
