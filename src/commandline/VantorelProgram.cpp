#include "commandline/ColorCommands.h"
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

constexpr std::string_view jsonLines = "Write JSON, one object per line.";

constexpr OptionRow sizeOption{
    "--size", "WxH", "Width and height in points, or in pixels for PNG. The default is 640x480."};

constexpr std::string_view snippetNames = "snippets --names";

constexpr OperandRow listName{.value = "NAME",
                              .text = "The name of the list.",
                              .fewest = 1,
                              .most = 1,
                              .valuesFrom = listNames};

constexpr OperandRow showOperands[] = {
    {"COLOR",
     "The colour to show. With \"-\", or without COLOR, colours are read from standard input, one "
     "per line."}};
constexpr OptionRow showOptions[] = {
    {"--json", {}, jsonLines},
    {.name = "--list",
     .value = "NAME",
     .text = "Take the name from this list instead of the list in the settings. With standard "
             "input, add the name to each line.",
     .valuesFrom = listNames},
    {.name = "--snippet",
     .value = "NAME",
     .text = "Write only the text of this snippet.",
     .valuesFrom = snippetNames},
    {.name = "--lowercase", .text = "Write hex digits in lower case.", .excludes = "--uppercase"},
    {"--uppercase",
     {},
     "Write hex digits in upper case. Without --lowercase or --uppercase, the settings decide."},
    {"--no-pound-sign", {}, "Write hex codes without \"#\"."},
    {.name = "--pound-sign",
     .text = "Write hex codes with \"#\". Without --pound-sign or --no-pound-sign, the settings "
             "decide.",
     .excludes = "--no-pound-sign"},
    themeOption,
};

constexpr OperandRow nameOperands[] = {{"COLOR", "The colour to name; read as for \"show\"."}};
constexpr OptionRow nameOptions[] = {
    {.name = "--list",
     .value = "NAME",
     .text = "Take the names from this list instead of the list in the settings.",
     .valuesFrom = listNames},
    {"--json", {}, jsonLines},
};

constexpr OptionRow namesOptions[] = {
    {"--json", {}, jsonLines},
    {.name = "--names", .text = "Print only the names, one per line.", .excludes = "--json"},
};
constexpr OptionRow jsonOption[] = {{"--json", {}, "Write JSON."}};

constexpr OperandRow importOperands[] = {
    {"FILE", "A palette file in any format of \"export\" except svg.", 1}};
constexpr OptionRow importOptions[] = {
    {"--name", "NAME", "Save the list under this name. Requires a single FILE."},
    {"--yes", {}, "Replace lists of the same name without asking."},
};

constexpr OperandRow exportOperands[] = {listName};
constexpr OptionRow exportOptions[] = {
    {.name = "--format", .value = "FORMAT", .isRequired = true, .choices = exportFormats},
    {"--output", "FILE", "Write to FILE instead of standard output."},
};

constexpr OperandRow publishOperands[] = {listName};
constexpr OptionRow publishOptions[] = {
    {"--yes", {}, "Replace files with different contents without asking."},
    {"--undo",
     {},
     "Revert the last publish of the list: restore the files that it replaced and remove those "
     "that it created. Files that have changed since are kept."},
};

constexpr OperandRow listOperands[] = {
    {.value = "NAME",
     .text = "The name of the list. If it is also the name of a command, put \"--\" before it.",
     .most = 1,
     .valuesFrom = listNames}};
constexpr CommandRow listCommands[] = {
    {"import",
     "Add palette files to your colour lists.\n"
     "A list of the same name is replaced only if you agree.",
     importOperands, importOptions},
    {"export", "Write a colour list in a format that other programs read.", exportOperands,
     exportOptions},
    {"publish",
     "Put a colour list into the palette folders of graphics programs.\n"
     "A palette file is written into your palette folder of every version of GIMP, of Inkscape, "
     "Krita and KDE, if the folder exists. A file with different contents is "
     "replaced only if you agree.",
     publishOperands, publishOptions},
};

constexpr OperandRow contrastOperands[] = {
    {"COLOR", "The foreground colour, then the background colour.", 2, 2}};

std::vector<Choice> findings()
{
    return {{"any", {}}, {"contrast", {}}, {"doubles", {}}, {"never", {}}};
}
constexpr OperandRow sheetOperands[] = {
    {"FILE", "A style sheet, or another document with colours; \"-\" is standard input.", 1}};
constexpr OptionRow sheetOptions[] = {
    {"--json", {}, "Write JSON."},
    {.name = "--fail-on",
     .value = "WHAT",
     .text = "When to exit with status 1: contrast, for a contrast below AA; doubles, for near "
             "doubles; any of them (the default); or never.",
     .choices = findings},
    {.name = "--list",
     .value = "NAME",
     .text = "Take the names from this list instead of the list in the settings.",
     .valuesFrom = listNames},
    {.name = "--svg",
     .value = "FILE",
     .text = "Also draw the colours as SVG to FILE; \"-\" is standard output.",
     .excludes = "--png"},
    {"--png", "FILE", "Also draw the colours as PNG to FILE; \"-\" is standard output."},
    sizeOption,
};

constexpr OptionRow lspOptions[] = {{"--stdio", {}, "Has no effect: some editors add it."}};

constexpr OptionRow wheelOptions[] = {
    {"--rings", "N", "Number of rings, 2 to 128. The default is the number in the settings."},
    {"--svg", "FILE", "Write SVG to FILE; \"-\" is standard output.", true},
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

std::vector<Choice> dialogPrograms()
{
    return {{"qt", "Qt 5, Qt 6"}, {"gtk", "GTK 3"}, {"gimp", "GIMP 2.10, GIMP 3.0"}};
}
constexpr OperandRow dialogsOperands[] = {
    {.value = "PROGRAMS",
     .text = "qt, gtk or gimp. Without PROGRAMS, all that are installed.",
     .choices = dialogPrograms}};
constexpr OptionRow dialogsOptions[] = {
    {.name = "--status",
     .text = "Print whether the page is in the dialogs; so does the command without an option.",
     .excludes = "--on"},
    {.name = "--on", .text = "Add the page to the colour dialogs.", .excludes = "--off"},
    {.name = "--off",
     .text = "Take the page out of the colour dialogs, and remove all that --on has written.",
     .excludes = "--status"},
};

constexpr OperandRow completionsOperands[] = {{"SHELL", "bash, zsh or fish.", 1, 1, shells}};
constexpr OptionRow completionsOptions[] = {
    {"--panel", {}, "Print the completion script of vantorel-panel."}};
constexpr OptionRow manualOptions[] = {{"--panel", {}, "Print the manual page of vantorel-panel."}};

constexpr CommandRow vantorelCommands[] = {
    {"show",
     "Show a colour in every form, with its name and your snippets.\n"
     "Colours on standard input are read one per line. For each, one line is written: the hex "
     "code, a tab and the rgb() text; --list adds a tab and the name. Empty lines are skipped. A "
     "line that is not a colour is reported on standard error, and the following lines are still "
     "read.",
     showOperands, showOptions},
    {"convert",
     "Write each colour in another form of CSS, on a line of its own.\n"
     "hex, rgb, hsl and hwb hold sRGB only, so other colours are mapped as CSS prescribes. All "
     "other "
     "forms keep colours as they are.",
     convertOperands, convertOptions},
    {"mix", "Mix a colour with others, and write each result on a line of its own.", mixOperands,
     mixOptions},
    {"gradient", "Write the colours of an even gradient through the given colours, one per line.",
     gradientOperands, gradientOptions},
    {"lighten", "Add to the lightness of each colour.", adjustOperands, adjustOptions},
    {"darken", "Subtract from the lightness of each colour.", adjustOperands, adjustOptions},
    {"saturate",
     "Add to the saturation of each colour.\n"
     "A grey has no hue to saturate, and stays grey.",
     adjustOperands, adjustOptions},
    {"desaturate", "Subtract from the saturation of each colour.", adjustOperands, adjustOptions},
    {"rotate", "Turn the hue of each colour.", rotateOperands, adjustOptions},
    {"complement", "Write the complement of each colour, whose hue is turned by 180 degrees.",
     complementOperands, adjustOptions},
    {"gray", "Write the grey of a lightness.", grayOperands, grayOptions},
    {"scale",
     "Write the scale of each colour, from nearly white to nearly black.\n"
     "Its eleven steps are known as 50, 100, 200 to 900, and 950. Their lightness in OkLCh is "
     "evenly "
     "spaced on both sides of the colour, which is one of them.",
     scaleOperands, scaleOptions},
    {"distinct",
     "Write colours that differ as much as possible.\n"
     "They can be seen on black and on white, and are the same each time.",
     distinctOperands, distinctOptions},
    {"sort",
     "Sort colours.\n"
     "Colours with equal keys stay in order. Greys have no hue, and precede all others.",
     sortOperands, sortOptions},
    {"nearest",
     "Write the nearest colour of a list and its name, separated by a tab.\n"
     "The difference is deltaE OK of CSS Color 4, the distance in Oklab.",
     nearestOperands, nearestOptions},
    {"simulate", "Write how each colour looks to people who do not see all colours.",
     simulateOperands, simulateOptions},
    {"name",
     "Print the name of each colour on a line of its own.\n"
     "If the list has no exact name but CSS Color 4 has one, that name is printed, followed by "
     "\"(CSS Color 4)\". If neither has, the names of close colours follow a \"*\"; if no colour "
     "is "
     "close, the line is \"No Match\".",
     nameOperands, nameOptions},
    {"lists",
     "List all colour lists with their number of colours, name and file.",
     {},
     namesOptions},
    {"list", "List the colours of a list, or import, export or publish a list.", listOperands,
     jsonOption, listCommands},
    {"snippets",
     "List the snippets with their formats.\n"
     "Those of the settings come first, then those of your own file, then those that ship with "
     "the program. A line that a snippet writes is read as a colour. If some lines of a snippet "
     "cannot be read as the colour that was written, the last column says why.",
     {},
     namesOptions},
    {"contrast",
     "Print the contrast ratio of two colours and the criteria of WCAG 2.2 that it meets.\n"
     "The ratio is truncated to two decimals, not rounded.",
     contrastOperands, jsonOption},
    {"sheet",
     "List the colours of style sheets, and what may be wrong with them.\n"
     "Each colour is written with its number and names: the variables that hold it, and its exact "
     "name. Near doubles are colours that differ by less than 2 (CIEDE2000). A contrast is "
     "reported if the color and the background of one rule fail AA of WCAG 2.2 for text of normal "
     "size. If something is found, the exit status is 1.",
     sheetOperands, sheetOptions},
    {"lsp",
     "Serve an editor by the Language Server Protocol, on standard input and output.\n"
     "The editor shows the colours of style sheets, markup and code, writes them in other forms, "
     "completes the names of your lists, and opens the colour panel. Editors start the command "
     "themselves; docs/editors.md describes how to set them up.",
     {},
     lspOptions},
    {"wheel", "Draw the colour wheel.", {}, wheelOptions},
    {"palette", "Draw the palette of a colour list.", paletteOperands, paletteOptions},
    {"pick", "Pick a colour from the screen and print it (vantorel-panel).", {}, pickOptions},
    {"choose", "Choose a colour in the colour panel and print it (vantorel-panel).",
     chooseOperands},
    {.name = "panel",
     .text = "Start the colour panel with the options that follow. \"panel --help\" lists them.",
     .handsOnTo = &vantorelPanelProgram.command},
    {"dialogs",
     "Add the colour page to the colour dialogs of other programs.\n"
     "Programs of Qt and of GTK 3, and GIMP, then show the page in their own colour dialogs. "
     "Nothing is changed before you use --on, which changes your own settings only.",
     dialogsOperands, dialogsOptions},
    {"completions",
     "Print a completion script for a shell.\nFor bash: source <(vantorel completions bash)",
     completionsOperands, completionsOptions},
    {"manpage", "Print the manual page, formatted for man.", {}, manualOptions},
};

constexpr OptionRow vantorelOptions[] = {{"--version", {}, "Show the version."}};

constexpr TermRow exitStatuses[] = {
    {"0", "The command succeeded."},
    {"1",
     "The user left \"choose\" or \"pick\" without a colour, or \"sheet\" has found something."},
    {"2",
     "An error, such as a wrong option, a text that is not a colour, or a file that cannot be "
     "read. It is reported on standard error."},
    {"3", "\"choose\" or \"pick\" is not possible, for example without a display."},
};
constexpr TermRow variables[] = {
    {"COLORTERM", "If it is \"truecolor\" or \"24bit\", a terminal shows a patch of each colour."},
    {"TERM",
     "If it contains \"256color\", a terminal shows a patch of the nearest of its 256 colours."},
    {"NO_COLOR", "If it is set and not empty, no patches are shown."},
    {"XDG_DATA_HOME",
     "The folder that contains settings and colour lists, instead of ~/.local/share."},
    {"XDG_CONFIG_HOME",
     "The folder that contains the palettes of graphics programs, instead of ~/.config."},
};
constexpr TermRow files[] = {
    {"$XDG_DATA_HOME/Vantorel/Settings.plist",
     "The settings of the colour picker. They are never changed."},
    {"$XDG_DATA_HOME/Vantorel/Snippets.plist",
     "Your own snippets, in the form of those in the settings."},
    {"$XDG_DATA_HOME/Vantorel/Palettes/*.gpl", "Your colour lists."},
    {"$XDG_DATA_HOME/Vantorel/Dialogs",
     "The plug-ins of \"dialogs --on\", and what its option --off restores."},
    {"$XDG_CONFIG_HOME/environment.d/60-vantorel-*.conf, ~/.xsessionrc",
     "The environment in which programs find these plug-ins."},
    {"$XDG_CONFIG_HOME/gtk-3.0/settings.ini", "GTK's list of modules, to which ours is added."},
    {"$XDG_CONFIG_HOME/Vantorel/programs-without-page",
     "The programs whose dialogs stay as they are, one per line."},
    {"$XDG_DATA_HOME/Vantorel/Published/*.plist",
     "The files that \"list publish\" replaced, for its option --undo."},
};
constexpr std::string_view examples[] = {
    "vantorel show orange",
    "vantorel show --snippet VBasic '#ff8000'",
    "grep -oi '#[0-9a-f]\\{6\\}' style.css | vantorel name",
    "vantorel list export \"CSS Keyword\" --format scss --output colors.scss",
    "vantorel contrast white '#767676'",
    "vantorel gradient red blue -n 9 --in oklch | vantorel simulate deuteranopia",
};
constexpr SectionRow vantorelSections[] = {
    {.title = phraseText("EXIT STATUS"),
     .terms = exitStatuses,
     .text = "\"pick\", \"choose\" and \"panel\" exit with the status of vantorel-panel."},
    {.title = phraseText("ENVIRONMENT"), .terms = variables},
    {.title = phraseText("FILES"), .terms = files},
    {.title = phraseText("EXAMPLES"), .lines = examples},
};

}  // namespace

constinit const ProgramRow vantorelProgram{
    .command = {.name = "vantorel",
                .text = "Colours for people who write CSS and code.\n"
                        "A COLOR is any form of CSS Color 5 (\"#ff8000\", \"rgb(255 128 0)\", "
                        "\"oklch(70% 0.1 50)\", \"orange\"), a text that the colour picker accepts "
                        "(\"ff8000\", \"RGB(255, 128, 0);\"), a line of code that a snippet "
                        "writes (\"Color(0xffff8000)\"), or a name of the colour list.\n"
                        "Settings, snippets and colour lists are shared with the colour picker.",
                .options = vantorelOptions,
                .commands = vantorelCommands},
    .subject = phraseText("colours for people who write CSS and code"),
    .version = VANTOREL_VERSION,
    .sections = vantorelSections,
    .seeAlso = "vantorel-panel",
};

}  // namespace vantorel
