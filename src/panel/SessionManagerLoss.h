#pragma once

namespace vantorel {

/// Lets this program go on if the X session manager ends without notice, for example in a crash.
/// libICE, through which Qt communicates with it, would end the program. Call it when the
/// application exists.
void outliveSessionManager();

}  // namespace vantorel
