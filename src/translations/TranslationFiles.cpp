#include "translations/TranslationFiles.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <utility>

namespace vantorel {
namespace {

std::optional<std::string> variable(const char* name)
{
    const char* value = std::getenv(name);
    return value != nullptr ? std::optional<std::string>(value) : std::nullopt;
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

std::vector<std::string> languagesToTranslateTo()
{
    return languagesToTranslateTo(variable);
}

Translations readTranslations(std::string_view ts, std::string_view context)
{
    Translations translations;
    taken(ts, "<name>" + std::string(context) + "</name>");
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

std::string TranslationFiles::fileContents() const
{
    if (_folder.empty()) return {};
    for (const std::string& language : _languages) {
        std::ifstream file(_folder + "/vantorel_" + language + ".ts", std::ios::binary);
        std::ostringstream contents;
        // Unlike iterators, this does not throw if there is a folder of that name.
        if (file >> contents.rdbuf()) return contents.str();
    }
    return {};
}

std::string TranslationFiles::translated(const std::string& context, const std::string& text)
{
    auto known = _contexts.find(context);
    if (known == _contexts.end()) {
        known = _contexts.emplace(context, readTranslations(fileContents(), context)).first;
    }
    const auto found = known->second.find(text);
    return found != known->second.end() ? found->second : text;
}

}  // namespace vantorel
