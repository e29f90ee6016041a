#include "commandline/Descriptions.h"
#include "commandline/Translations.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr std::size_t lineWidth = 79;

/// Counts the characters of UTF-8. Those of our texts are one column wide.
std::size_t columnsOf(std::string_view text)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

/// Appends words to a line that already has `column` characters; further lines are indented.
void appendWrapped(std::string& result, std::string_view text, std::size_t column,
                   std::size_t indent)
{
    bool isFirst = true;
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(word.size() + 1, text.size()));
        if (!isFirst && column + 1 + columnsOf(word) > lineWidth) {
            result.append("\n").append(indent, ' ');
            column = indent;
            isFirst = true;
        }
        if (!isFirst) {
            result += ' ';
            ++column;
        }
        result += word;
        column += columnsOf(word);
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

std::string summaryOf(const CommandRow& command)
{
    const std::string text = inUsersWords(phraseOf(command.text));
    return text.substr(0, text.find('\n'));
}

std::string helpText(const CommandRow& command, const std::string& names)
{
    std::string text;
    if (command.needsCommand()) {
        text +=
            inUsersWords(phrase("Usage: %1", names + " COMMAND [OPTION...] [ARGUMENT...]")) + "\n";
    } else {
        const std::string before = names.substr(0, names.size() - command.name.size());
        text += inUsersWords(phrase("Usage: %1", before + usageOf(command))) + "\n";
        for (const CommandRow& inner : command.commands)
            text += "       " + names + " " + usageOf(inner) + "\n";
    }
    const std::string explanation = inUsersWords(phraseOf(command.text));
    for (const std::string_view paragraph : paragraphsOf(explanation)) {
        text += '\n';
        appendWrapped(text, paragraph, 0, 0);
    }
    const auto appendTitle = [&text](PhraseText<> title) {
        text += "\n" + inUsersWords(title) + "\n";
    };
    if (!command.operands.empty()) appendTitle(phraseText("Arguments:"));
    for (const OperandRow& operand : command.operands)
        appendHelpRow(text, formOf(operand), inUsersWords(phraseOf(operand.text)));
    if (!command.commands.empty()) appendTitle(phraseText("Commands:"));
    for (const CommandRow& inner : command.commands)
        appendHelpRow(text, inner.name, summaryOf(inner));
    appendTitle(phraseText("Options:"));
    appendHelpRow(text, formOf(helpOption), inUsersWords(explanationOf(helpOption)));
    for (const OptionRow& option : command.options)
        appendHelpRow(text, formOf(option), inUsersWords(explanationOf(option)));
    if (!command.commands.empty()) {
        text += "\n" +
                inUsersWords(phrase("\"%1 COMMAND --help\" shows the help of a command.", names)) +
                "\n";
    }
    return text;
}

}  // namespace vantorel
