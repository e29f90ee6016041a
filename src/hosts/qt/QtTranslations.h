#pragma once

#include <QString>

/// Texts of pages and messages in the user's language, by the `Translator` of the program; without
/// one, by Qt's own translators.
namespace vantorel {

/// The translation of a text in a context of the translation files. The text is UTF-8.
[[nodiscard]] QString translation(const char* context, const char* text);
/// The translation of a text of a page or of its interface file.
[[nodiscard]] QString translatedText(const std::u16string& text);

}  // namespace vantorel
