#pragma once

#include <string>
#include <string_view>

namespace vantorel {

/// The exit status of whatever goes wrong. A user who chooses nothing is no error, and has the 1.
inline constexpr int failureStatus = 2;

/// Ends a command. `what` is wrong and `right` would be right; both are UTF-8, and may hold what
/// somebody else has written.
struct Failure {
    std::string what;
    std::string right;
};

/// Ends a command that has nobody left to say anything to.
struct SilentFailure {};

/// Writes "vantorel: WHAT: RIGHT" to standard error; without the second part where `right` is
/// empty.
void complain(std::string_view what, std::string_view right);

/// The form of error messages out of a sentence that parts what is wrong from what would be right
/// by a semicolon, as the reader of CSS colours writes them.
struct Complaint {
    std::string what;
    std::string right;
};
[[nodiscard]] Complaint complaintFromSentence(std::string_view sentence);

}  // namespace vantorel
