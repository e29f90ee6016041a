#pragma once

#include "lsp/ServerUser.h"

#include <string>

namespace vantorel {

/// Serves a client on standard input and output until it sends `exit`, closes the input, or its
/// process ends. Returns the exit status that the protocol prescribes: 0 after `shutdown`, else 1.
[[nodiscard]] int serveOnStandardStreams(ServerUser& user, const std::string& version);

}  // namespace vantorel
