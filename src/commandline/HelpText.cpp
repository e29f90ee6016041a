#include "commandline/Descriptions.h"

namespace vantorel {
namespace {

constexpr std::size_t lineWidth = 79;

/// Appends words to a line that already has `column` characters; further lines are indented.
void appendWrapped(std::string& result, std::string_view text, std::size_t column,
                   std::size_t indent)
{
    bool isFirst = true;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        if (!isFirst && column + 1 + word.size() > lineWidth) {
            result.append("\n").append(indent, ' ');
            column = indent;
            isFirst = true;
        }
        if (!isFirst) {
            result += ' ';
            ++column;
        }
        result += word;
        column += word.size();
        isFirst = false;
    }
    result += '\n';
}

void appendHelpRow(std::string& result, std::string_view term, std::string_view text)
{
    constexpr std::size_t textColumn = 24;
    result.append("  ").append(term);
    std::size_t column = term.size() + 2;
    if (column + 2 > textColumn) {
        result += '\n';
        column = 0;
    }
    result.append(textColumn - column, ' ');
    appendWrapped(result, text, textColumn, textColumn);
}

}  // namespace

std::string helpText(const CommandRow& command, const std::string& names)
{
    std::string text;
    if (command.needsCommand()) {
        text += "Usage: " + names + " COMMAND [OPTION...] [ARGUMENT...]\n";
    } else {
        text += "Usage: " + names.substr(0, names.size() - command.name.size()) + usageOf(command) +
                "\n";
        for (const CommandRow& inner : command.commands)
            text += "       " + names + " " + usageOf(inner) + "\n";
    }
    for (const std::string_view paragraph : paragraphsOf(command.text)) {
        text += '\n';
        appendWrapped(text, paragraph, 0, 0);
    }
    if (!command.operands.empty()) text += "\nArguments:\n";
    for (const OperandRow& operand : command.operands)
        appendHelpRow(text, formOf(operand), operand.text);
    if (!command.commands.empty()) text += "\nCommands:\n";
    for (const CommandRow& inner : command.commands)
        appendHelpRow(text, inner.name, inner.summary());
    text += "\nOptions:\n";
    appendHelpRow(text, formOf(helpOption), explanationOf(helpOption));
    for (const OptionRow& option : command.options)
        appendHelpRow(text, formOf(option), explanationOf(option));
    if (!command.commands.empty())
        text += "\n\"" + names + " COMMAND --help\" shows the help of a command.\n";
    return text;
}

}  // namespace vantorel
