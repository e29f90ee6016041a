#pragma once

#include <string>
#include <string_view>

/// The texts of pages in programs of others, in the user's language. The environment names it, as
/// for the program itself, whose locale and translations are not used and stay as they are.
namespace vantorel {

/// Sets the folder of the translation files, which are read when the first text is translated.
/// Without them every text stays English.
void setPageTranslations(const std::string& folder);

/// Returns the translation of a text in a context of the files, or the text itself.
[[nodiscard]] std::u16string pageTranslation(std::string_view context, std::u16string_view text);

}  // namespace vantorel
