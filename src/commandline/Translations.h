#pragma once

#include "result/Message.h"

#include <string>

/// The texts of command lines in the user's language. The translations are the files that the
/// panel's are made from. They are read when a text is first shown, and only if the locale asks for
/// another language than English.
namespace vantorel {

/// Returns a phrase, a message or a text in the user's language, without translation in English. A
/// message becomes "WHAT: REMEDY".
[[nodiscard]] std::string inUsersWords(const Phrase& phrase);
[[nodiscard]] std::string inUsersWords(const Message& message);
[[nodiscard]] std::string inUsersWords(PhraseText<> text);

}  // namespace vantorel
