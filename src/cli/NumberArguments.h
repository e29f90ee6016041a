#pragma once

#include <string>

/// Numbers of the command line. Each function throws a `Failure` that names `what`, such as
/// "--fraction", if the text is not such a number.
namespace vantorel {

/// Reads a number of 0..1, or a percentage such as "25%".
[[nodiscard]] double requiredFraction(const std::string& what, const std::string& text);

/// Reads an angle such as "-30", "22.5" or "90deg".
[[nodiscard]] double requiredDegrees(const std::string& what, const std::string& text);

/// Reads a whole number within limits.
[[nodiscard]] int requiredCount(const std::string& what, const std::string& text, int fewest,
                                int most);

}  // namespace vantorel
