#include "commandline/Translations.h"

#include <unistd.h>

#include <array>
#include <climits>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <utility>

namespace vantorel {
namespace {

std::optional<std::string> variable(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
}

/// Returns "../share/vantorel/translations" relative to the program's folder, with an end slash.
std::string translationsFolder()
{
    std::array<char, PATH_MAX> buffer{};
    const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (length <= 0) return {};
    const std::string program(buffer.data(), static_cast<std::size_t>(length));
    return program.substr(0, program.rfind('/')) + "/../share/vantorel/translations/";
}

Translations usersTranslations()
{
    for (const std::string& language : languagesToTranslateTo(variable)) {
        std::ifstream file(translationsFolder() + "vantorel_" + language + ".ts", std::ios::binary);
        if (!file) continue;
        return readTranslations(std::string(std::istreambuf_iterator<char>(file), {}));
    }
    return {};
}

std::string translation(const char* text)
{
    static const Translations translations = usersTranslations();
    const auto found = translations.find(text);
    return found != translations.end() ? found->second : text;
}

/// Removes everything up to and including `end` from the front of `rest`, or everything if `end` is
/// missing. Returns what was removed, without `end`.
std::string_view taken(std::string_view& rest, std::string_view end)
{
    const std::size_t place = rest.find(end);
    const std::string_view text = rest.substr(0, place);
    rest.remove_prefix(place == std::string_view::npos ? rest.size() : place + end.size());
    return text;
}

std::string withoutEntities(std::string_view xml)
{
    constexpr std::array entities{std::pair{"&lt;", '<'}, std::pair{"&gt;", '>'},
                                  std::pair{"&quot;", '"'}, std::pair{"&apos;", '\''},
                                  std::pair{"&amp;", '&'}};
    std::string text;
    while (!xml.empty()) {
        std::size_t length = 1;
        char c = xml.front();
        for (const auto& [entity, meaning] : entities) {
            if (!xml.starts_with(entity)) continue;
            length = std::string_view(entity).size();
            c = meaning;
            break;
        }
        text += c;
        xml.remove_prefix(length);
    }
    return text;
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

std::vector<std::string> languagesToTranslateTo(const EnvironmentReader& environment)
{
    std::string locale;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (locale.empty()) locale = environment(name).value_or("");
    }
    const std::string base = locale.substr(0, locale.find_first_of(".@"));
    if (base.empty() || base == "C" || base == "POSIX") return {};
    std::string wanted = environment("LANGUAGE").value_or("");
    if (wanted.empty()) wanted = locale;

    std::vector<std::string> languages;
    for (std::string_view rest = wanted; !rest.empty();) {
        const std::string_view name = taken(rest, ":");
        const std::string_view language = name.substr(0, name.find_first_of("_.@"));
        if (language == "en" || language == "C") break;
        // Part of a file's name.
        if (!language.empty() && language.find('/') == std::string_view::npos)
            languages.emplace_back(language);
    }
    return languages;
}

Translations readTranslations(std::string_view ts)
{
    Translations translations;
    taken(ts, "<name>Messages</name>");
    std::string_view messages = taken(ts, "</context>");
    while (!messages.empty()) {
        taken(messages, "<source>");
        const std::string_view source = taken(messages, "</source>");
        taken(messages, "<translation");
        const std::string_view attributes = taken(messages, ">");
        const std::string_view text = taken(messages, "</translation>");
        if (attributes.empty() && !text.empty())
            translations.emplace(withoutEntities(source), withoutEntities(text));
    }
    return translations;
}

}  // namespace vantorel
