#pragma once

#include "testing/driver/DriverSession.h"

#include <string>
#include <string_view>

namespace vantorel {

/// Answers requests, one line each, in the order in which they arrive. Every line, even a malformed
/// one, gets a reply of one line. A request that fails does not change the state.
class Driver {
public:
    /// Returns the reply to a line, without a line end.
    [[nodiscard]] std::string reply(std::string_view line);

private:
    DriverSession _session;
};

// Requests that do not need a picker. Each throws a DriverError if its arguments are invalid.

[[nodiscard]] Json replyToCall(const Json& request);
[[nodiscard]] Json replyToSpec(const Json& request);
[[nodiscard]] Json replyToSnippet(const Json& request);
[[nodiscard]] Json replyToPropertyListParse(const Json& request);
[[nodiscard]] Json replyToPropertyListWrite(const Json& request);

}  // namespace vantorel
