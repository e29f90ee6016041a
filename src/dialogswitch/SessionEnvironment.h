#pragma once

#include "result/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// A variable with a list of values, to which one is added.
struct ListVariable {
    const char* name;
    std::string value;
    char separator;

    /// Whether the environment of this program has the value, as that of programs that are started
    /// by the same session.
    [[nodiscard]] bool isSet() const;
};

/// Returns the text of a file for environment.d(5) that adds values to variables. It is a shell
/// script, too.
[[nodiscard]] std::string environmentFile(const std::vector<ListVariable>& variables);

/// Returns the lines of a shell script that add what such files in a folder add. In `pattern`,
/// their name, "*" stands for any characters.
[[nodiscard]] std::string linesThatRead(std::string_view folder, std::string_view pattern);

/// An error if a path has characters that have a meaning in lists of paths, in shell scripts or in
/// the files of environment.d(5).
[[nodiscard]] Status checkForEnvironment(std::string_view path);

}  // namespace vantorel
