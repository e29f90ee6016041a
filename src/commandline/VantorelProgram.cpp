#include "commandline/Programs.h"
#include "listformats/ListFormats.h"

namespace vantorel {
namespace {

std::vector<Choice> shells()
{
    return {{"bash", {}}, {"zsh", {}}, {"fish", {}}};
}

std::vector<Choice> exportFormats()
{
    std::vector<Choice> choices;
    for (const ListFormat& format : listFormats())
        choices.push_back({format.name, format.description});
    return choices;
}

constexpr std::string_view jsonLines = "Write JSON, an object a line.";

constexpr OptionRow sizeOption{
    "--size", "WxH",
    "Width and height in points or pixels, such as 640x480, which is the default."};

constexpr OperandRow listName{"NAME", "The list.", 1, 1};

constexpr OperandRow showOperands[] = {
    {"COLOR",
     "What to show; \"-\" stands for the lines of standard input, and so does no COLOR at all."}};
constexpr OptionRow showOptions[] = {
    {"--json", {}, jsonLines},
    {"--list", "NAME",
     "Name the colour by this list, not by that of the settings. With standard input, add the name "
     "to each line."},
    {"--snippet", "NAME", "Write the text of this snippet alone."},
    {.name = "--lowercase", .text = "Hex digits in lower case.", .excludes = "--uppercase"},
    {"--uppercase", {}, "Hex digits in upper case."},
    {"--no-pound-sign", {}, "Hex codes without \"#\"."},
    {.name = "--pound-sign",
     .text = "Hex codes with \"#\". What of these is not given is as in the settings.",
     .excludes = "--no-pound-sign"},
};

constexpr OperandRow nameOperands[] = {{"COLOR", "What to name, as for \"show\"."}};
constexpr OptionRow nameOptions[] = {
    {"--list", "NAME", "Take the names from this list, not from that of the settings."},
    {"--json", {}, jsonLines},
};

constexpr OptionRow jsonLinesOption[] = {{"--json", {}, jsonLines}};
constexpr OptionRow jsonOption[] = {{"--json", {}, "Write JSON."}};

constexpr OperandRow importOperands[] = {
    {"FILE", "Palettes in any of the formats of export but svg.", 1}};
constexpr OptionRow importOptions[] = {
    {"--name", "NAME", "Call the list so; with one FILE only."},
    {"--yes", {}, "Replace lists of the same names without asking."},
};

constexpr OperandRow exportOperands[] = {listName};
constexpr OptionRow exportOptions[] = {
    {.name = "--format", .value = "FORMAT", .isRequired = true, .choices = exportFormats},
    {"--output", "FILE", "Write to FILE, not to standard output."},
};

constexpr OperandRow publishOperands[] = {listName};
constexpr OptionRow publishOptions[] = {
    {"--yes", {}, "Replace files that differ without asking."},
    {"--undo",
     {},
     "Take the last publish of the list back: what it replaced is restored, and what it made is "
     "removed. A file that has been changed since stays."},
};

constexpr OperandRow listOperands[] = {
    {"NAME", "The list; one that is called like a command comes behind \"--\".", 0, 1}};
constexpr CommandRow listCommands[] = {
    {"import",
     "Save palette files among your colour lists.\n"
     "A list of the same name is replaced only when you agree.",
     importOperands, importOptions},
    {"export", "Write a colour list for other programs.", exportOperands, exportOptions},
    {"publish",
     "Put a colour list into the palette folders of graphics programs.\n"
     "One palette file is written into each folder for your own palettes that exists: of every "
     "version of GIMP, of Inkscape, Krita and KDE. A file that differs is replaced only when you "
     "agree.",
     publishOperands, publishOptions},
};

constexpr OperandRow contrastOperands[] = {{"COLOR", "The foreground, then the background.", 2, 2}};

constexpr OptionRow wheelOptions[] = {
    {"--rings", "N", "Rings, 2 to 128; those of the settings otherwise."},
    {"--svg", "FILE", "Where to write; \"-\" is standard output.", true},
    sizeOption,
};

constexpr OperandRow paletteOperands[] = {listName};
constexpr OptionRow paletteOptions[] = {
    {.name = "--svg",
     .value = "FILE",
     .text = "Write SVG to FILE; \"-\" is standard output.",
     .excludes = "--png"},
    {"--png", "FILE", "Write PNG to FILE; \"-\" is standard output."},
    sizeOption,
};

constexpr OptionRow pickOptions[] = {{"--copy", {}, "Copy the colour to the clipboard."}};
constexpr OperandRow chooseOperands[] = {{"COLOR", "The colour to start with.", 0, 1}};
constexpr OperandRow completionsOperands[] = {{"SHELL", "bash, zsh or fish.", 1, 1, shells}};
constexpr OptionRow completionsOptions[] = {{"--panel", {}, "Print that of vantorel-panel."}};
constexpr OptionRow manualOptions[] = {{"--panel", {}, "Print the page of vantorel-panel."}};

constexpr CommandRow vantorelCommands[] = {
    {"show",
     "Show what a colour is in every form, its name and its snippets.\n"
     "Colours from standard input come one a line and are written one a line: the hex code, a tab "
     "and the rgb() text; with --list a tab and the name. Empty lines are passed over; a line that "
     "is no colour is told on standard error, and the rest goes on.",
     showOperands, showOptions},
    {"name",
     "Tell the name of a colour, one a line.\n"
     "Where no name is exact, the close ones stand behind a \"*\", or it says \"No Match\".",
     nameOperands, nameOptions},
    {"lists",
     "Tell all colour lists: the number of colours, the name and the file.",
     {},
     jsonLinesOption},
    {"list", "Tell the colours of a list, or import, export or publish one.", listOperands,
     jsonOption, listCommands},
    {"snippets", "Tell the snippets of the settings with their formats.", {}, jsonLinesOption},
    {"contrast",
     "Tell the contrast ratio of two colours and which criteria of WCAG 2.2 it meets.\n"
     "The ratio is cut, not rounded, after two decimals.",
     contrastOperands, jsonOption},
    {"wheel", "Draw the colour wheel.", {}, wheelOptions},
    {"palette", "Draw the palette of a colour list.", paletteOperands, paletteOptions},
    {"pick", "Pick a colour from the screen and print it (vantorel-panel).", {}, pickOptions},
    {"choose", "Choose a colour in the colour panel and print it (vantorel-panel).",
     chooseOperands},
    {.name = "panel",
     .text = "Start the colour panel with the options that follow; \"panel --help\" tells them.",
     .handsOn = true},
    {"completions",
     "Print a completion script for a shell.\nFor bash: source <(vantorel completions bash)",
     completionsOperands, completionsOptions},
    {"manpage", "Print the manual page, for man.", {}, manualOptions},
};

constexpr OptionRow vantorelOptions[] = {{"--version", {}, "Show the version."}};

}  // namespace

constinit const ProgramRow vantorelProgram{
    .command = {.name = "vantorel",
                .text = "Colours for people who write CSS and code.\n"
                        "A COLOR is any form of CSS Color 4 (\"#ff8000\", \"rgb(255 128 0)\", "
                        "\"oklch(70% 0.1 50)\", \"orange\"), a text that the colour picker takes "
                        "(\"ff8000\", \"RGB(255, 128, 0);\"), or a name of the colour list.\n"
                        "Settings, snippets and colour lists are those of the colour picker.",
                .options = vantorelOptions,
                .commands = vantorelCommands},
    .subject = "colours for people who write CSS and code",
    .version = VANTOREL_VERSION,
    .furtherSections = R"(.SH EXIT STATUS
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
)",
};

}  // namespace vantorel
