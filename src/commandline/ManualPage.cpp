#include "commandline/Descriptions.h"
#include "commandline/Translations.h"
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
    const std::string words = inUsersWords(phraseOf(text));
    bool isFirst = true;
    for (const std::string_view paragraph : paragraphsOf(words)) {
        if (!isFirst) page += ".PP\n";
        isFirst = false;
        appendText(page, paragraph);
    }
}

void appendTitle(std::string& page, PhraseText<> title)
{
    page += ".SH " + roffText(inUsersWords(title)) + "\n";
}

void appendEntry(std::string& page, std::string_view term, const Phrase& text)
{
    page += ".TP\n.B " + roffText(term) + "\n";
    appendText(page, inUsersWords(text));
}

void appendArguments(std::string& page, const CommandRow& command)
{
    for (const OperandRow& operand : command.operands)
        appendEntry(page, formOf(operand), phraseOf(operand.text));
    for (const OptionRow& option : command.options)
        appendEntry(page, formOf(option), explanationOf(option));
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

void appendSection(std::string& page, const SectionRow& section)
{
    appendTitle(page, section.title);
    for (const TermRow& row : section.terms)
        appendEntry(page, row.term, phraseOf(row.text));
    if (!section.text.empty()) {
        page += ".PP\n";
        appendParagraphs(page, section.text);
    }
    if (section.lines.empty()) return;
    page += ".nf\n";
    for (const std::string_view line : section.lines)
        appendText(page, line);
    page += ".fi\n";
}

}  // namespace

std::string manualPage(const ProgramRow& program)
{
    const CommandRow& command = program.command;
    const std::string name = roffText(command.name);
    std::string page = ".TH " + roffText(upperCased(std::string(command.name))) +
                       " 1 \"\" \"Vantorel " + std::string(program.version) + "\" \"" +
                       roffText(inUsersWords(phraseText("User Commands"))) + "\"\n";
    appendTitle(page, phraseText("NAME"));
    page += name + " \\- " + roffText(inUsersWords(program.subject)) + "\n";
    appendTitle(page, phraseText("SYNOPSIS"));
    page += ".B " + name + "\n";
    if (command.needsCommand()) page += ".I COMMAND\n";
    page += "[\\fIOPTION\\fR...]";
    if (command.needsCommand()) page += " [\\fIARGUMENT\\fR...]";
    for (const OperandRow& operand : command.operands)
        page += " [\\fI" + roffText(formOf(operand)) + "\\fR]";
    page += "\n";
    appendTitle(page, phraseText("DESCRIPTION"));
    appendParagraphs(page, command.text);
    appendTitle(page, phraseText("OPTIONS"));
    appendEntry(page, formOf(helpOption),
                command.commands.empty()
                    ? explanationOf(helpOption)
                    : phrase("Show help. After a command, show the help of that command."));
    appendArguments(page, command);
    if (!command.commands.empty()) {
        appendTitle(page, phraseText("COMMANDS"));
        appendCommands(page, command, std::string(command.name));
    }
    for (const SectionRow& section : program.sections)
        appendSection(page, section);
    appendTitle(page, phraseText("SEE ALSO"));
    page += ".BR " + roffText(program.seeAlso) + " (1)\n";
    return page;
}

}  // namespace vantorel
