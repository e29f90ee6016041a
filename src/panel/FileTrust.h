#pragma once

#include <string>

/// Whether a plug-in may be run: what a panel loads acts in its user's name.
namespace vantorel {

/// Why somebody other than the user and the administrator could change the file or folder, or put
/// another one in its place; empty when nobody could, and for what is missing. It must belong to
/// one of the two, and neither all users nor a group of several may write to it, nor to a folder
/// above it unless that one is sticky, as /tmp is.
[[nodiscard]] std::string whyNotTrusted(const std::string& path);

}  // namespace vantorel
