#pragma once

#include "result/Message.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// The texts of command lines in the user's language. The translations are the files that the
/// panel's are made from. They are read when a text is first shown, and only if the locale asks for
/// another language than English.
namespace vantorel {

/// Returns a phrase, a message or a text in the user's language, without translation in English. A
/// message becomes "WHAT: REMEDY".
[[nodiscard]] std::string inUsersWords(const Phrase& phrase);
[[nodiscard]] std::string inUsersWords(const Message& message);
[[nodiscard]] std::string inUsersWords(PhraseText<> text);

/// Returns the value of an environment variable, or `std::nullopt`.
using EnvironmentReader = std::function<std::optional<std::string>(const char* name)>;

/// Returns the languages that the user reads, such as "de", the preferred one first. English and
/// what follows it are left out, because English needs no translation. As in gettext, LANGUAGE
/// counts unless the locale (LC_ALL, LC_MESSAGES, LANG) is "C".
[[nodiscard]] std::vector<std::string> languagesToTranslateTo(const EnvironmentReader& environment);

using Translations = std::unordered_map<std::string, std::string>;

/// Reads the messages of a file of Qt Linguist (.ts). Unfinished ones are left out.
[[nodiscard]] Translations readTranslations(std::string_view ts);

}  // namespace vantorel
