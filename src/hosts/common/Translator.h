#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vantorel {

/// Returns the translation of a text in a context of the translation files, or the text itself.
using Translator =
    std::function<std::u16string(std::string_view context, std::u16string_view text)>;

}  // namespace vantorel
