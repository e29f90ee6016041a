#include "cli/CommandDescription.h"

#include <functional>

namespace vantorel {
namespace {

/// In single quotation marks, as all three shells take it; fish also wants backslashes doubled.
std::string shellQuoted(const std::string& text, bool isFish = false)
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

std::string joined(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text.append(text.empty() ? "" : " ").append(word);
    return text;
}

/// Calls for a command and all below it; `path` are the names behind the program's own.
void forEachCommand(
    const CommandDescription& command, const std::string& path,
    const std::function<void(const CommandDescription&, const std::string& path)>& call)
{
    call(command, path);
    for (const CommandDescription& inner : command.commands)
        forEachCommand(inner, path.empty() ? inner.name : path + " " + inner.name, call);
}

std::vector<std::string> namesOfCommands(const CommandDescription& command)
{
    std::vector<std::string> names;
    for (const CommandDescription& inner : command.commands)
        names.push_back(inner.name);
    return names;
}

/// The first word behind the options is a command; so may be the second. What the shells share is
/// which words those can be.
std::string bashScript(const CommandDescription& program)
{
    std::string pathCases;
    std::string valueCases;
    std::string wordCases;
    forEachCommand(program, {}, [&](const CommandDescription& command, const std::string& path) {
        if (!path.empty()) pathCases.append(pathCases.empty() ? "" : "|").append(shellQuoted(path));
        std::vector<std::string> words = namesOfCommands(command);
        bool takesFiles = false;
        for (const OptionDescription& option : command.options) {
            if (option.isOperand()) {
                words.insert(words.end(), option.choices.begin(), option.choices.end());
                takesFiles = takesFiles || option.takesFile();
                continue;
            }
            words.insert(words.end(), option.names.begin(), option.names.end());
            if (option.value.empty()) continue;
            for (const std::string& name : option.names) {
                const std::string optionOfCommand = std::string(path).append(" ").append(name);
                valueCases.append("        ").append(shellQuoted(optionOfCommand)).append(") ");
                if (option.takesFile()) {
                    valueCases += "mapfile -t COMPREPLY < <(compgen -f -- \"$current\"); ";
                } else if (!option.choices.empty()) {
                    valueCases += "mapfile -t COMPREPLY < <(compgen -W " +
                                  shellQuoted(joined(option.choices)) + " -- \"$current\"); ";
                }
                valueCases += "return ;;\n";
            }
        }
        wordCases += "        " + shellQuoted(path) + ") words=" + shellQuoted(joined(words));
        wordCases += takesFiles ? "; files=1 ;;\n" : " ;;\n";
    });
    return "# Completions of vantorel for bash.\n"
           "_vantorel()\n"
           "{\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}\n"
           "    local path= longer i words= files=\n"
           "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
           "        longer=\"${path:+$path }${COMP_WORDS[i]}\"\n"
           "        case $longer in\n"
           "            " +
           pathCases +
           ") path=$longer ;;\n"
           "        esac\n"
           "    done\n"
           "    case \"$path $previous\" in\n" +
           valueCases +
           "    esac\n"
           "    case $path in\n" +
           wordCases +
           "    esac\n"
           "    mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
           "    if [[ $files && $current != -* ]]; then\n"
           "        mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -f -- \"$current\")\n"
           "    fi\n"
           "}\n"
           "complete -o filenames -o bashdefault -F _vantorel vantorel\n";
}

/// For the descriptions of _arguments, in which brackets and colons part things.
std::string zshText(const std::string& text)
{
    std::string result;
    for (const char c : text) {
        if (c == '[' || c == ']' || c == ':' || c == '\\') result += '\\';
        result += c;
    }
    return result;
}

std::string zshAction(const OptionDescription& option)
{
    if (option.takesFile()) return "_files";
    if (!option.choices.empty()) return "(" + joined(option.choices) + ")";
    return " ";
}

std::string zshFunctionName(const std::string& path)
{
    std::string name = "_vantorel";
    if (!path.empty()) name += "_" + path;
    for (char& c : name)
        if (c == ' ') c = '_';
    return name;
}

std::string zshScript(const CommandDescription& program)
{
    std::string functions;
    forEachCommand(program, {}, [&](const CommandDescription& command, const std::string& path) {
        std::string arguments;
        for (const OptionDescription& option : command.options) {
            if (option.isOperand()) {
                // Where commands may stand, the name of a list is one of many words.
                if (command.commands.empty()) {
                    arguments += " \\\n        " +
                                 shellQuoted((option.isRepeatable ? "*:" : ":") +
                                             zshText(option.value) + ":" + zshAction(option));
                }
                continue;
            }
            for (const std::string& name : option.names) {
                std::string word = name + "[" + zshText(option.text) + "]";
                if (!option.value.empty())
                    word += ":" + zshText(option.value) + ":" + zshAction(option);
                arguments += " \\\n        " + shellQuoted(word);
            }
        }
        functions += zshFunctionName(path) + "()\n{\n";
        if (command.commands.empty()) {
            functions += "    _arguments" + arguments + "\n}\n";
            return;
        }
        functions +=
            "    local context state line\n    typeset -A opt_args\n"
            "    _arguments -C" +
            arguments +
            " \\\n        '1: :->command' '*:: :->rest'\n"
            "    case $state in\n        command)\n            local -a commands=(\n";
        for (const CommandDescription& inner : command.commands) {
            functions += "                " +
                         shellQuoted(inner.name + ":" + zshText(inner.summary())) + "\n";
        }
        functions +=
            "            )\n            _describe command commands ;;\n"
            "        rest)\n            case $line[1] in\n";
        for (const CommandDescription& inner : command.commands) {
            functions += "                " + inner.name + ") " +
                         zshFunctionName(path.empty() ? inner.name : path + " " + inner.name) +
                         " ;;\n";
        }
        functions += "            esac ;;\n    esac\n}\n";
    });
    return "#compdef vantorel\n# Completions of vantorel for zsh.\n" + functions +
           "if [ \"$funcstack[1]\" = _vantorel ]; then\n    _vantorel \"$@\"\nelse\n"
           "    compdef _vantorel vantorel\nfi\n";
}

/// What must hold of the words before: each name of the path was given, and none of what may
/// follow.
std::string fishCondition(const CommandDescription& command, const std::string& path,
                          bool isCommand)
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

std::string fishScript(const CommandDescription& program)
{
    std::string script = "# Completions of vantorel for fish.\ncomplete -c vantorel -f\n";
    forEachCommand(program, {}, [&](const CommandDescription& command, const std::string& path) {
        for (const CommandDescription& inner : command.commands) {
            script += "complete -c vantorel" + fishCondition(command, path, true) + " -a " +
                      inner.name + " -d " + shellQuoted(inner.summary(), true) + "\n";
        }
        for (const OptionDescription& option : command.options) {
            std::string line = "complete -c vantorel" + fishCondition(command, path, false);
            const bool hasValue = option.isOperand() || !option.value.empty();
            for (const std::string& name : option.names) {
                line += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
            }
            if (option.takesFile()) {
                line += option.isOperand() ? " -F" : " -r -F";
            } else if (!option.choices.empty()) {
                line +=
                    (option.isOperand() ? " -a " : " -x -a ") + shellQuoted(joined(option.choices));
            } else if (option.isOperand()) {
                continue;
            } else if (hasValue) {
                line += " -x";
            }
            script += line + " -d " + shellQuoted(option.text, true) + "\n";
        }
    });
    return script;
}

}  // namespace

std::string completionScript(const CommandDescription& program, const std::string& shell)
{
    if (shell == "bash") return bashScript(program);
    return shell == "zsh" ? zshScript(program) : fishScript(program);
}

}  // namespace vantorel
