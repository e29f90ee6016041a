#pragma once

#include <QString>

#include <string_view>

namespace vantorel {

/// Returns a title or message of a picker in the user's language. Pickers select menu items by
/// their titles and store them in files, so these keep their English names everywhere else. A text
/// without a translation, such as the name of a colour or a list, is returned as it is.
[[nodiscard]] QString displayName(std::u16string_view text);

}  // namespace vantorel
