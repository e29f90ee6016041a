#include "dialogswitch/SessionEnvironment.h"

#include "result/HarmlessLine.h"

#include <algorithm>
#include <cstdlib>

namespace vantorel {

bool ListVariable::isSet() const
{
    const char* variable = std::getenv(name);
    std::string_view values = variable != nullptr ? variable : "";
    while (!values.empty()) {
        const std::size_t end = std::min(values.find(separator), values.size());
        if (values.substr(0, end) == value) return true;
        values.remove_prefix(std::min(end + 1, values.size()));
    }
    return false;
}

std::string environmentFile(const std::vector<ListVariable>& variables)
{
    std::string text =
        "# Written by \"vantorel dialogs --on\"; \"vantorel dialogs --off\" removes this file.\n";
    for (const ListVariable& variable : variables) {
        const std::string name = variable.name;
        // The values of others follow after a separator, if there are any.
        text.append(name).append("=\"").append(variable.value).append("${").append(name);
        text.append(":+").append(1, variable.separator).append("$").append(name).append("}\"\n");
    }
    return text;
}

std::string linesThatRead(std::string_view folder, std::string_view pattern)
{
    return "for vantorel_file in \"" + std::string(folder) + "\"/" + std::string(pattern) +
           "; do\n"
           "    if [ -r \"$vantorel_file\" ]; then\n"
           "        set -a\n"
           "        . \"$vantorel_file\"\n"
           "        set +a\n"
           "    fi\n"
           "done\n"
           "unset vantorel_file\n";
}

Status checkForEnvironment(std::string_view path)
{
    const auto isSpecial = [](char c) {
        constexpr std::string_view special = ":\"'\\$`";
        return static_cast<unsigned char>(c) < ' ' || special.find(c) != std::string_view::npos;
    };
    if (std::ranges::none_of(path, isSpecial)) return {};
    return Message{
        phrase("\"%1\" has a character that the list of plug-ins of a desktop cannot have",
               excerpt(path)),
        phrase("use a data folder without : \" ' \\ $ and `")};
}

}  // namespace vantorel
