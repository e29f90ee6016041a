#include "cli/CommandDescription.h"

#include <algorithm>

namespace vantorel {

std::vector<std::string> CommandDescription::paragraphs() const
{
    std::vector<std::string> result;
    std::size_t begin = 0;
    while (begin <= text.size()) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        result.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return result;
}

std::string formOf(const OptionDescription& option)
{
    std::string form;
    for (const std::string& name : option.names)
        form.append(form.empty() ? "" : ", ").append(name);
    if (!option.value.empty()) form.append(form.empty() ? "" : " ").append(option.value);
    if (option.isRepeatable) form += "...";
    return form;
}

std::string usageOf(const CommandDescription& command)
{
    std::string usage = command.name;
    bool hasOptions = false;
    for (const OptionDescription& option : command.options) {
        if (option.isOperand()) continue;
        if (option.isRequired) {
            usage.append(" ").append(formOf(option));
        } else {
            hasOptions = true;
        }
    }
    if (hasOptions) usage += " [OPTION...]";
    for (const OptionDescription& option : command.options) {
        if (!option.isOperand()) continue;
        usage += option.isRequired ? " " + formOf(option) : " [" + formOf(option) + "]";
    }
    return usage;
}

namespace {

constexpr std::size_t lineWidth = 79;

/// Appends words behind `column` characters of a line; further lines are indented.
void appendWrapped(std::string& result, const std::string& text, std::size_t column,
                   std::size_t indent)
{
    std::size_t begin = 0;
    bool isFirst = true;
    while (begin < text.size()) {
        const std::size_t end = std::min(text.find(' ', begin), text.size());
        const std::size_t length = end - begin;
        if (!isFirst && column + 1 + length > lineWidth) {
            result.append("\n").append(indent, ' ');
            column = indent;
            isFirst = true;
        }
        if (!isFirst) {
            result += ' ';
            ++column;
        }
        result.append(text, begin, length);
        column += length;
        isFirst = false;
        begin = end + 1;
    }
    result += '\n';
}

void appendRow(std::string& result, const std::string& term, const std::string& text)
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

std::string helpText(const CommandDescription& command, const std::string& names)
{
    const std::string namesBefore = names.substr(0, names.size() - command.name.size());
    std::string text;
    const bool needsCommand = names == command.name;
    if (!needsCommand) text += "Usage: " + namesBefore + usageOf(command) + "\n";
    if (needsCommand) text += "Usage: " + names + " COMMAND [OPTION...] [ARGUMENT...]\n";
    for (const CommandDescription& inner : command.commands) {
        if (!needsCommand) text += "       " + names + " " + usageOf(inner) + "\n";
    }
    for (const std::string& paragraph : command.paragraphs()) {
        text += '\n';
        appendWrapped(text, paragraph, 0, 0);
    }
    const auto operand =
        std::find_if(command.options.begin(), command.options.end(),
                     [](const OptionDescription& option) { return option.isOperand(); });
    if (operand != command.options.end()) {
        text += "\nArguments:\n";
        appendRow(text, formOf(*operand), operand->text);
    }
    if (!command.commands.empty()) text += "\nCommands:\n";
    for (const CommandDescription& inner : command.commands)
        appendRow(text, inner.name, inner.summary());
    text += "\nOptions:\n";
    for (const OptionDescription& option : command.options) {
        if (!option.isOperand()) appendRow(text, formOf(option), option.text);
    }
    if (!command.commands.empty())
        text += "\n\"" + names + " COMMAND --help\" tells more about a command.\n";
    return text;
}

}  // namespace vantorel
