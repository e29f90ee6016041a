#pragma once

#include <cstdint>

namespace vantorel {

/// How one component is written and read. The numbers are fixed; any other value may be stored, and
/// has no text.
enum class ComponentDisplay : std::int32_t {
    hex = 861,
    integer = 862,
    fraction = 863,
    codeSnippet = 864,
};

}  // namespace vantorel
