#pragma once

#include <cstddef>

namespace vantorel {

/// Returns how many bytes `new` has allocated in this process, including those freed since. Tests
/// of memory compare it before and after. AllocatedBytes.cpp replaces `new` of the program.
[[nodiscard]] std::size_t allocatedBytes();

}  // namespace vantorel
