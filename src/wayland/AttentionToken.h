#pragma once

#include <string>

namespace vantorel {

/// Returns a token of xdg-activation-v1 that proves no input of the user. A window activated with
/// it does not get the focus: the compositor marks it as demanding attention. Empty if the
/// compositor gives none within half a second.
[[nodiscard]] std::string attentionToken();

}  // namespace vantorel
