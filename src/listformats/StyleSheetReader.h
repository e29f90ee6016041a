#pragma once

#include "listformats/ListContents.h"

namespace vantorel {

/// Reads the colours of custom properties (`--name: red;`) and SCSS variables (`$name: red;`)
/// anywhere in a style sheet. A comment on the same line after a declaration replaces its name. If
/// the first comment precedes all colours and is a single line, it names the list.
[[nodiscard]] ListContents readStyleSheet(std::string_view text);

}  // namespace vantorel
