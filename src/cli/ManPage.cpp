#include "cli/CommandDescription.h"

#include <algorithm>
#include <string_view>

namespace vantorel {
namespace {

/// A text in which no character commands roff.
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

void appendText(std::string& page, const std::string& text)
{
    page += roffText(text) + "\n";
}

void appendRow(std::string& page, const std::string& term, const std::string& text)
{
    page += ".TP\n.B " + roffText(term) + "\n";
    appendText(page, text);
}

void appendOptions(std::string& page, const CommandDescription& command)
{
    const auto operand =
        std::find_if(command.options.begin(), command.options.end(),
                     [](const OptionDescription& option) { return option.isOperand(); });
    if (operand != command.options.end()) appendRow(page, formOf(*operand), operand->text);
    for (const OptionDescription& option : command.options) {
        // Every command has --help; once is enough.
        const bool isHelp = option.names.size() == 2 && option.names.back() == "--help";
        if (!option.isOperand() && !isHelp) appendRow(page, formOf(option), option.text);
    }
}

void appendCommands(std::string& page, const CommandDescription& command, const std::string& names)
{
    for (const CommandDescription& inner : command.commands) {
        page += ".SS " + roffText(names + " " + usageOf(inner)) + "\n";
        bool isFirst = true;
        for (const std::string& paragraph : inner.paragraphs()) {
            if (!isFirst) page += ".PP\n";
            isFirst = false;
            appendText(page, paragraph);
        }
        appendOptions(page, inner);
        appendCommands(page, inner, names + " " + inner.name);
    }
}

constexpr std::string_view closingSections = R"(.SH EXIT STATUS
.TP
.B 0
All went well.
.TP
.B 1
.B vantorel choose
or
.B vantorel pick
was left without a colour.
.TP
.B 2
Something is wrong with the command line, a text that is no colour, a list, or a file.
.PP
.BR pick ,
.B choose
and
.B panel
end with the status of
.BR vantorel\-panel .
.SH ENVIRONMENT
.TP
.B COLORTERM
Where it is
.I truecolor
or
.IR 24bit ,
colours are shown as patches on a terminal.
.TP
.B NO_COLOR
Where it is set and not empty, they are not.
.TP
.B XDG_DATA_HOME
The folder of settings and colour lists, in place of
.IR \(ti/.local/share .
.TP
.B XDG_CONFIG_HOME
Where graphics programs keep their palettes, in place of
.IR \(ti/.config .
.SH FILES
.TP
.I $XDG_DATA_HOME/Vantorel/Settings.plist
The settings of the colour picker. They are only read.
.TP
.I $XDG_DATA_HOME/Vantorel/Palettes/*.gpl
Your colour lists.
.TP
.I $XDG_DATA_HOME/Vantorel/Published/*.plist
What
.B list publish
replaced, for its
.BR \-\-undo .
.SH EXAMPLES
.nf
vantorel show orange
vantorel show \-\-snippet VBasic \(aq#ff8000\(aq
grep \-oi \(aq#[0\-9a\-f]\e{6\e}\(aq style.css | vantorel name
vantorel list export \(dqCSS Keyword\(dq \-\-format scss \-\-output colors.scss
vantorel contrast white \(aq#767676\(aq
.fi
)";

}  // namespace

std::string manualPage(const CommandDescription& program)
{
    // Without a date, so that a build can be repeated to the byte.
    std::string page =
        ".TH VANTOREL 1 \"\" \"Vantorel " VANTOREL_VERSION "\" \"User Commands\"\n.SH NAME\n";
    page += "vantorel \\- colours for people who write CSS and code\n.SH SYNOPSIS\n.B vantorel\n";
    page += ".I COMMAND\n[\\fIOPTION\\fR...] [\\fIARGUMENT\\fR...]\n.SH DESCRIPTION\n";
    bool isFirst = true;
    for (const std::string& paragraph : program.paragraphs()) {
        if (!isFirst) page += ".PP\n";
        isFirst = false;
        appendText(page, paragraph);
    }
    page += ".SH OPTIONS\n";
    appendRow(page, "-h, --help", "Show help; behind a command, that of the command.");
    appendOptions(page, program);
    page += ".SH COMMANDS\n";
    appendCommands(page, program, program.name);
    page += closingSections;
    return page;
}

}  // namespace vantorel
