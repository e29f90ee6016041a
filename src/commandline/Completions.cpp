#include "commandline/Descriptions.h"
#include "commandline/Translations.h"

#include <algorithm>
#include <functional>

namespace vantorel {
namespace {

/// Quotes a text in single quotation marks for any of the three shells. fish also needs backslashes
/// doubled.
std::string shellQuoted(std::string_view text, bool isFish = false)
{
    std::string result = "'";
    for (const char c : text) {
        if (c == '\'') {
            result += "'\\''";
        } else if (c == '\\' && isFish) {
            result += "\\\\";
        } else {
            result += c;
        }
    }
    return result + "'";
}

using Words = std::vector<std::string>;

std::string joined(const Words& words)
{
    std::string text;
    for (const std::string& word : words)
        text.append(text.empty() ? "" : " ").append(word);
    return text;
}

Words valuesOf(Choices choices)
{
    Words values;
    if (choices == nullptr) return values;
    for (const Choice& choice : choices())
        values.emplace_back(choice.value);
    return values;
}

Words namesOfCommands(const CommandRow& command)
{
    Words names;
    for (const CommandRow& inner : command.commands)
        names.emplace_back(inner.name);
    return names;
}

bool takesFile(std::string_view value)
{
    return value == "FILE";
}

/// The options of a command, including --help, which every command has.
std::vector<const OptionRow*> allOptions(const CommandRow& command)
{
    std::vector<const OptionRow*> options{&helpOption};
    for (const OptionRow& option : command.options)
        options.push_back(&option);
    return options;
}

Words namesOf(const OptionRow& option)
{
    Words names;
    if (!option.shortName.empty()) names.emplace_back(option.shortName);
    names.emplace_back(option.name);
    return names;
}

std::string pathOf(const std::string& path, const CommandRow& inner)
{
    return (path.empty() ? "" : path + " ") + std::string(inner.name);
}

/// Calls a function for a command and all its subcommands. A command that hands on its arguments is
/// replaced by the program that reads them. `path` holds the names after the program's.
void forEachCommand(const CommandRow& command, const std::string& path,
                    const std::function<void(const CommandRow&, const std::string& path)>& call)
{
    call(command.handsOnTo != nullptr ? *command.handsOnTo : command, path);
    for (const CommandRow& inner : command.commands)
        forEachCommand(inner, pathOf(path, inner), call);
}

/// Returns a name such as "_vantorel_list_export".
std::string functionName(const CommandRow& program, const std::string& path)
{
    std::string name = "_" + std::string(program.name);
    if (!path.empty()) name += "_" + path;
    for (char& c : name)
        if (c == ' ' || c == '-') c = '_';
    return name;
}

/// Offers what the program itself prints, of which the names of lists may contain blanks. readline
/// quotes them.
constexpr std::string_view bashValuesFunction = R"(_vantorel_values()
{
    local typed=${COMP_WORDS[COMP_CWORD]} line
    typed=${typed#[\"\']}
    typed=${typed//\\/}
    while IFS= read -r line; do
        if [[ $line == "$typed"* ]]; then COMPREPLY+=("$line"); fi
    done < <("${COMP_WORDS[0]}" "$@" 2>/dev/null)
}
)";

std::string bashValues(std::string_view value, Choices choices, std::string_view valuesFrom)
{
    if (!valuesFrom.empty()) return "_vantorel_values " + std::string(valuesFrom) + "; ";
    if (takesFile(value)) return "mapfile -t COMPREPLY < <(compgen -f -- \"$current\"); ";
    if (choices == nullptr) return {};
    return "mapfile -t COMPREPLY < <(compgen -W " + shellQuoted(joined(valuesOf(choices))) +
           " -- \"$current\"); ";
}

/// The first word after the options is a command, and the second may be one. All shells offer the
/// same words for them.
std::string bashScript(const CommandRow& program)
{
    Words paths;
    std::string valueCases;
    std::string wordCases;
    forEachCommand(program, {}, [&](const CommandRow& command, const std::string& path) {
        if (!path.empty()) paths.push_back(shellQuoted(path));
        Words words = namesOfCommands(command);
        for (const OptionRow* option : allOptions(command)) {
            const Words names = namesOf(*option);
            words.insert(words.end(), names.begin(), names.end());
            if (option->value.empty()) continue;
            for (const std::string& name : names) {
                valueCases += "        ";
                valueCases += shellQuoted(std::string(path).append(" ").append(name));
                valueCases += ") ";
                valueCases += bashValues(option->value, option->choices, option->valuesFrom);
                valueCases += "return ;;\n";
            }
        }
        bool takesFiles = false;
        std::string valuesFrom;
        for (const OperandRow& operand : command.operands) {
            const Words values = valuesOf(operand.choices);
            words.insert(words.end(), values.begin(), values.end());
            takesFiles = takesFiles || takesFile(operand.value);
            if (!operand.valuesFrom.empty()) valuesFrom = operand.valuesFrom;
        }
        wordCases += "        " + shellQuoted(path) + ") words=" + shellQuoted(joined(words));
        if (takesFiles) wordCases += "; files=1";
        if (!valuesFrom.empty()) wordCases += "; from=" + shellQuoted(valuesFrom);
        wordCases += " ;;\n";
    });
    std::string pathCases;
    for (const std::string& path : paths)
        pathCases.append(pathCases.empty() ? "" : "|").append(path);
    if (!paths.empty()) {
        pathCases =
            "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
            "        longer=\"${path:+$path }${COMP_WORDS[i]}\"\n"
            "        case $longer in\n"
            "            " +
            pathCases +
            ") path=$longer ;;\n"
            "        esac\n"
            "    done\n";
    }
    const std::string name(program.name);
    const std::string function = functionName(program, {});
    return "# Completions of " + name + " for bash.\n" + std::string(bashValuesFunction) +
           function +
           "()\n"
           "{\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
           "    local path= longer i words= files= from=\n" +
           pathCases + "    case \"$path $previous\" in\n" + valueCases +
           "    esac\n"
           "    case $path in\n" +
           wordCases +
           "    esac\n"
           "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
           "    if [[ $from && $current != -* ]]; then _vantorel_values $from; fi\n"
           "    if [[ $files && $current != -* ]]; then\n"
           "        mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -f -- \"$current\")\n"
           "    fi\n"
           "}\n"
           "complete -o filenames -o bashdefault -F " +
           function + " " + name + "\n";
}

/// Escapes brackets and colons, which are separators in the descriptions of _arguments.
std::string zshText(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        if (c == '[' || c == ']' || c == ':' || c == '\\') result += '\\';
        result += c;
    }
    return result;
}

constexpr std::string_view zshValuesFunction = R"(_vantorel_values()
{
    local -a values=("${(@f)$(_call_program values vantorel $@ 2>/dev/null)}")
    compadd -a values
}
)";

std::string zshValue(std::string_view value, Choices choices, std::string_view valuesFrom)
{
    std::string action = " ";
    if (!valuesFrom.empty()) action = " _vantorel_values " + std::string(valuesFrom);
    if (takesFile(value)) action = "_files";
    if (choices != nullptr) action = "(" + joined(valuesOf(choices)) + ")";
    return ":" + zshText(value) + ":" + action;
}

std::string zshArguments(const CommandRow& command)
{
    Words words;
    for (const OptionRow* option : allOptions(command)) {
        for (const std::string& name : namesOf(*option)) {
            std::string word = (option->isRepeatable ? "*" : "") + name + "[" +
                               zshText(inUsersWords(explanationOf(*option))) + "]";
            if (!option->value.empty())
                word += zshValue(option->value, option->choices, option->valuesFrom);
            words.push_back(word);
        }
    }
    // Where a command is possible, a list's name is only one of many possible words.
    for (const OperandRow& operand : command.operands) {
        for (std::size_t i = 0; i < std::max<std::size_t>(operand.most, 1); ++i) {
            if (!command.commands.empty()) continue;
            words.push_back((operand.most == 0 ? "*" : "") +
                            zshValue(operand.value, operand.choices, operand.valuesFrom));
        }
    }
    std::string arguments;
    for (const std::string& word : words)
        arguments += " \\\n        " + shellQuoted(word);
    return arguments;
}

std::string zshScript(const CommandRow& program)
{
    std::string functions;
    forEachCommand(program, {}, [&](const CommandRow& command, const std::string& path) {
        functions += functionName(program, path) + "()\n{\n";
        if (command.commands.empty()) {
            functions += "    _arguments" + zshArguments(command) + "\n}\n";
            return;
        }
        functions +=
            "    local context state line\n    typeset -A opt_args\n"
            "    _arguments -C" +
            zshArguments(command) +
            " \\\n        '1: :->command' '*:: :->rest'\n"
            "    case $state in\n        command)\n            local -a commands=(\n";
        for (const CommandRow& inner : command.commands) {
            functions += "                " +
                         shellQuoted(std::string(inner.name) + ":" + zshText(summaryOf(inner))) +
                         "\n";
        }
        functions +=
            "            )\n            _describe command commands ;;\n"
            "        rest)\n            case $line[1] in\n";
        for (const CommandRow& inner : command.commands) {
            functions += "                " + std::string(inner.name) + ") " +
                         functionName(program, pathOf(path, inner)) + " ;;\n";
        }
        functions += "            esac ;;\n    esac\n}\n";
    });
    const std::string name(program.name);
    const std::string function = functionName(program, {});
    return "#compdef " + name + "\n# Completions of " + name + " for zsh.\n" +
           std::string(zshValuesFunction) + functions + "if [ \"$funcstack[1]\" = " + function +
           " ]; then\n    " + function + " \"$@\"\nelse\n    compdef " + function + " " + name +
           "\nfi\n";
}

/// The condition under which fish offers a word: each name of the path has been given, and none of
/// the commands that can follow.
std::string fishCondition(const CommandRow& command, const std::string& path, bool isCommand)
{
    std::string condition;
    std::size_t begin = 0;
    while (begin < path.size()) {
        const std::size_t end = std::min(path.find(' ', begin), path.size());
        condition += (condition.empty() ? "" : "; and ") +
                     ("__fish_seen_subcommand_from " + path.substr(begin, end - begin));
        begin = end + 1;
    }
    if (isCommand || (path.empty() && !command.commands.empty())) {
        condition += (condition.empty() ? "" : "; and ") +
                     ("not __fish_seen_subcommand_from " + joined(namesOfCommands(command)));
    }
    return condition.empty() ? "" : " -n " + shellQuoted(condition, true);
}

std::string fishValues(std::string_view valuesFrom)
{
    return shellQuoted("(vantorel " + std::string(valuesFrom) + " 2>/dev/null)");
}

std::string fishScript(const CommandRow& program)
{
    const std::string complete = "complete -c " + std::string(program.name);
    std::string script =
        "# Completions of " + std::string(program.name) + " for fish.\n" + complete + " -f\n";
    forEachCommand(program, {}, [&](const CommandRow& command, const std::string& path) {
        for (const CommandRow& inner : command.commands) {
            script += complete + fishCondition(command, path, true) + " -a " +
                      std::string(inner.name) + " -d " + shellQuoted(summaryOf(inner), true) + "\n";
        }
        const std::string begin = complete + fishCondition(command, path, false);
        for (const OptionRow* option : allOptions(command)) {
            std::string line = begin;
            for (const std::string& name : namesOf(*option)) {
                line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
            }
            if (!option->valuesFrom.empty()) {
                line += " -x -a " + fishValues(option->valuesFrom);
            } else if (takesFile(option->value)) {
                line += " -r -F";
            } else if (option->choices != nullptr) {
                line += " -x -a " + shellQuoted(joined(valuesOf(option->choices)));
            } else if (!option->value.empty()) {
                line += " -x";
            }
            script +=
                line + " -d " + shellQuoted(inUsersWords(explanationOf(*option)), true) + "\n";
        }
        for (const OperandRow& operand : command.operands) {
            std::string values;
            if (takesFile(operand.value)) values = " -F";
            if (!operand.valuesFrom.empty()) values = " -a " + fishValues(operand.valuesFrom);
            if (operand.choices != nullptr)
                values = " -a " + shellQuoted(joined(valuesOf(operand.choices)));
            if (!values.empty())
                script += begin + values + " -d " +
                          shellQuoted(inUsersWords(phraseOf(operand.text)), true) + "\n";
        }
    });
    return script;
}

}  // namespace

std::string completionScript(const ProgramRow& program, std::string_view shell)
{
    const CommandRow& command = program.command;
    if (shell == "bash") return bashScript(command);
    return shell == "zsh" ? zshScript(command) : fishScript(command);
}

}  // namespace vantorel
