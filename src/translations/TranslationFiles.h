#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Texts in the user's language, for programs without Qt: terminals, and hosts of other toolkits.
/// The translations are the files that the panel's are made from.
namespace vantorel {

/// Returns the value of an environment variable, or `std::nullopt`.
using EnvironmentReader = std::function<std::optional<std::string>(const char* name)>;

/// Returns the languages that the user reads, such as "de", the preferred one first. English and
/// what follows it are left out, because English needs no translation. As in gettext, LANGUAGE
/// counts unless the locale (LC_ALL, LC_MESSAGES, LANG) is "C".
[[nodiscard]] std::vector<std::string> languagesToTranslateTo(const EnvironmentReader& environment);
/// The same for the environment of this process.
[[nodiscard]] std::vector<std::string> languagesToTranslateTo();

using Translations = std::unordered_map<std::string, std::string>;

/// Reads the messages of one context of a file of Qt Linguist (.ts). Unfinished ones are left out.
[[nodiscard]] Translations readTranslations(std::string_view ts, std::string_view context);

/// The translations in a folder, of which the first language that is there counts. A file is read
/// when a text is first asked for. The contexts are:
///
/// * "Vantorel": titles, tool tips and accessible names of a page (`HostDesktop::localizedString`),
/// * "DisplayNames": see hosts/common/DisplayNames.h,
/// * "Messages": messages and texts of the command lines.
class TranslationFiles {
public:
    /// Without a folder every text stays English.
    TranslationFiles(std::string folder, std::vector<std::string> languages)
        : _folder(std::move(folder)), _languages(std::move(languages))
    {
    }

    /// Returns the translation of a text, or the text itself. All are UTF-8.
    [[nodiscard]] std::string translated(const std::string& context, const std::string& text);

private:
    [[nodiscard]] std::string fileContents() const;

    std::string _folder;
    std::vector<std::string> _languages;
    std::map<std::string, Translations> _contexts;
};

}  // namespace vantorel
