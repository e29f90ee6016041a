#pragma once

#include "testing/driver/DriverSession.h"

#include <string>
#include <string_view>

namespace vantorel {

/// Answers requests, one line each, in the order in which they come. Whatever a line holds, the
/// answer is one line, and the next request finds everything as the last good one left it.
class Driver {
public:
    /// The reply to one line, without line end.
    [[nodiscard]] std::string reply(std::string_view line);

private:
    DriverSession _session;
};

// The requests that need no picker; each throws a DriverError for arguments that do not fit.

[[nodiscard]] Json replyToCall(const Json& request);
[[nodiscard]] Json replyToSpec(const Json& request);
[[nodiscard]] Json replyToSnippet(const Json& request);
[[nodiscard]] Json replyToPropertyListParse(const Json& request);
[[nodiscard]] Json replyToPropertyListWrite(const Json& request);

}  // namespace vantorel
