#include "commandline/Descriptions.h"
#include "text/ASCII.h"

namespace vantorel {
namespace {

/// Escapes the characters of a text that are commands to roff.
std::string roffText(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '\\':
                result += "\\e";
                break;
            case '-':
                result += "\\-";
                break;
            case '"':
                result += "\\(dq";
                break;
            case '\'':
                result += "\\(aq";
                break;
            case '`':
                result += "\\(ga";
                break;
            case '^':
                result += "\\(ha";
                break;
            case '~':
                result += "\\(ti";
                break;
            default:
                result += c;
        }
    }
    return result.starts_with('.') ? "\\&" + result : result;
}

void appendText(std::string& page, std::string_view text)
{
    page += roffText(text) + "\n";
}

void appendParagraphs(std::string& page, std::string_view text)
{
    bool isFirst = true;
    for (const std::string_view paragraph : paragraphsOf(text)) {
        if (!isFirst) page += ".PP\n";
        isFirst = false;
        appendText(page, paragraph);
    }
}

void appendEntry(std::string& page, std::string_view term, std::string_view text)
{
    page += ".TP\n.B " + roffText(term) + "\n";
    appendText(page, text);
}

void appendArguments(std::string& page, const CommandRow& command)
{
    for (const OperandRow& operand : command.operands)
        appendEntry(page, formOf(operand), operand.text);
    for (const OptionRow& option : command.options)
        appendEntry(page, formOf(option), english(explanationOf(option)));
}

void appendCommands(std::string& page, const CommandRow& command, const std::string& names)
{
    for (const CommandRow& inner : command.commands) {
        page += ".SS " + roffText(names + " " + usageOf(inner)) + "\n";
        appendParagraphs(page, inner.text);
        appendArguments(page, inner);
        appendCommands(page, inner, names + " " + std::string(inner.name));
    }
}

}  // namespace

std::string manualPage(const ProgramRow& program)
{
    const CommandRow& command = program.command;
    const std::string name = roffText(command.name);
    std::string page = ".TH " + roffText(upperCased(std::string(command.name))) +
                       " 1 \"\" \"Vantorel " + std::string(program.version) +
                       "\" \"User Commands\"\n.SH NAME\n";
    page += name + " \\- " + roffText(program.subject) + "\n.SH SYNOPSIS\n.B " + name + "\n";
    if (command.needsCommand()) page += ".I COMMAND\n";
    page += "[\\fIOPTION\\fR...]";
    if (command.needsCommand()) page += " [\\fIARGUMENT\\fR...]";
    for (const OperandRow& operand : command.operands)
        page += " [\\fI" + roffText(formOf(operand)) + "\\fR]";
    page += "\n.SH DESCRIPTION\n";
    appendParagraphs(page, command.text);
    page += ".SH OPTIONS\n";
    appendEntry(page, formOf(helpOption),
                command.commands.empty()
                    ? english(explanationOf(helpOption))
                    : "Show help. After a command, show the help of that command.");
    appendArguments(page, command);
    if (!command.commands.empty()) {
        page += ".SH COMMANDS\n";
        appendCommands(page, command, std::string(command.name));
    }
    page += program.furtherSections;
    return page;
}

}  // namespace vantorel
