#pragma once

#include "colormath/MixSpaces.h"
#include "host/HostFiles.h"

namespace vantorel {

/// What the page keeps over starts: the file `Vantorel/Mix.plist` in the user's data folder.
/// Without a file, or if it is damaged, the space is OKLCH. Errors are not reported.
[[nodiscard]] MixSpace readMixSpace(const HostFiles& files);
void writeMixSpace(HostFiles& files, MixSpace space);

}  // namespace vantorel
