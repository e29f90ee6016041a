#include "commandline/Translations.h"

#include "translations/TranslationFiles.h"

#include <unistd.h>

#include <array>
#include <climits>

namespace vantorel {
namespace {

/// Returns "../share/vantorel/translations" relative to the program's folder.
std::string translationsFolder()
{
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (length <= 0) return {};
    const std::string program(buffer.data(), static_cast<std::size_t>(length));
    return program.substr(0, program.rfind('/')) + "/../share/vantorel/translations";
}

std::string translation(const char* text)
{
    static TranslationFiles translations(translationsFolder(), languagesToTranslateTo());
    return translations.translated("Messages", text);
}

}  // namespace

std::string inUsersWords(const Phrase& phrase)
{
    return phrase.inWords(translation);
}

std::string inUsersWords(const Message& message)
{
    std::string words = inUsersWords(message.what);
    if (!message.remedy.isEmpty()) words.append(": ").append(inUsersWords(message.remedy));
    return words;
}

std::string inUsersWords(PhraseText<> text)
{
    return translation(text.text());
}

}  // namespace vantorel
