#pragma once

#include "hosts/common/Translator.h"

#include <QString>

/// Texts of pages and messages in the user's language.
namespace vantorel {

/// Sets the source of all translations in this folder. Without one they come from the program's own
/// translators. A program of somebody else has none for our texts, and must not get any.
void setQtTranslator(Translator translator);

/// The translation of a text in a context of the translation files. The text is UTF-8.
[[nodiscard]] QString translation(const char* context, const char* text);
/// The translation of a text of a page or of its interface file.
[[nodiscard]] QString translatedText(const std::u16string& text);

}  // namespace vantorel
