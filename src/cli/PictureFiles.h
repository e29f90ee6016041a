#pragma once

#include "cli/Commands.h"
#include "host/HostColorList.h"

#include <string>

namespace vantorel {

/// Throws a `Failure` instead of sending binary data to a terminal, which could interpret them as
/// commands.
void refuseBytesOnTerminal(const std::string& path);

/// Writes the swatches of a list to the file of `--svg` or `--png`, of which one is given, in the
/// size of `--size`. Throws a `Failure` if that is not possible.
void writePalettePicture(Session& session, const CommandLine& commandLine,
                         const HostColorList& list);

}  // namespace vantorel
