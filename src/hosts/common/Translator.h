#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace vantorel {

/// Returns the translation of a text in a context of the translation files, or the text itself.
using Translator =
    std::function<std::u16string(std::string_view context, std::u16string_view text)>;

/// Sets the source of the translations of pages and messages in this program. Programs of others
/// have no translations of our texts, and must not get any.
void setTranslator(Translator translator);
/// Empty unless one is set. The hosts then use what the toolkit has for our own programs.
[[nodiscard]] const Translator& currentTranslator();

}  // namespace vantorel
