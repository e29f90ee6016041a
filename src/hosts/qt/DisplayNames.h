#pragma once

#include <QString>

#include <string_view>

namespace vantorel {

/// Returns a title or message of a picker in the user's language (see `displayNameKey`). Other
/// texts are returned unchanged.
[[nodiscard]] QString displayName(std::u16string_view text);

}  // namespace vantorel
