#pragma once

#include <cstdint>

namespace vantorel {

/// How a component is written and read. The numbers are fixed. Any other value may be stored; it
/// has no text form.
enum class ComponentDisplay : std::int32_t {
    hex = 861,
    integer = 862,
    fraction = 863,
    codeSnippet = 864,
};

}  // namespace vantorel
