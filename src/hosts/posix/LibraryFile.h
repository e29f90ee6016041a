#pragma once

namespace vantorel {

/// Whether a shared library is shorter than its headers say, because copying or installing it was
/// interrupted. Opening such a library ends the process with SIGBUS: the dynamic loader maps parts
/// that the file does not have. False for files that the dynamic loader rejects by itself, and for
/// those that cannot be read. Never throws, and allocates no memory.
[[nodiscard]] bool isCutOffLibrary(const char* path) noexcept;

}  // namespace vantorel
