#include "commandline/Programs.h"

namespace vantorel {
namespace {

std::vector<Choice> modes()
{
    return {{"slider", {}}, {"palette", {}}, {"wheel", {}}};
}

std::vector<Choice> faces()
{
    return {{"colors", {}}, {"settings", {}}};
}

std::vector<Choice> themes()
{
    return {{"auto", {}}, {"light", {}}, {"dark", {}}, {"contrast", {}}, {"desktop", {}}};
}

constexpr OperandRow panelOperands[] = {{"COLOR", "The same as --color COLOR.", 0, 1}};
constexpr OptionRow panelOptions[] = {
    {"--color", "TEXT",
     "Start with this colour: any form of CSS Color 5, such as \"#ff8000\" or "
     "\"hsl(30 100% 50%)\", or a text that the hex page accepts."},
    {"--page", "PAGE",
     "Start with this page: hex, mix, scales, palettes, or the page of another plug-in."},
    {.name = "--mode",
     .value = "MODE",
     .text = "Start in this mode of the hex page: slider, palette or wheel.",
     .choices = modes},
    {"--size", "WxH", "Size of the page in points, such as 260x340."},
    {"--screenshot", "FILE",
     "Write a picture of the window to FILE as PNG and exit. Works without a display and does not "
     "change the settings."},
    {.name = "--face",
     .value = "FACE",
     .text = "Show this face of the hex page: colors or settings.",
     .choices = faces},
    {.name = "--theme",
     .value = "THEME",
     .text = "Look of the window: auto (light or dark as the desktop is), light, dark, contrast "
             "(white on black), or desktop (the desktop's own colours and controls). Without the "
             "option the preferences decide.",
     .choices = themes},
    {"--data", "DIR",
     "Keep settings, colour lists and the state of the panel in DIR/Vantorel instead of the user's "
     "own folder. DIR must exist."},
    {.name = "--plugin",
     .value = "FILE",
     .text = "Also load this picker plug-in. Can be given more than once.",
     .isRepeatable = true},
    {"--print-color", {}, "Print the colour to standard output as #rrggbbaa whenever it changes."},
    {"--pick",
     {},
     "Pick a colour from the screen, print it as #rrggbb, and exit. Status: 0 picked, 1 cancelled, "
     "3 not possible."},
    {"--pick-and-copy", {}, "Like --pick, and copy the colour to the clipboard."},
    {"--copy",
     {},
     "Copy the panel's colour with its opacity to the clipboard, in the form that the panel's "
     "field "
     "shows, print the text, and exit."},
    {"--copy-as", "FORM", "Like --copy, in the form with this name in the panel's menu."},
    {"--choose",
     {},
     "Let the user choose a colour in a separate panel, print it in the form that a drag out of "
     "the panel would carry, and exit. Status: 0 chosen, 1 cancelled, 3 not possible."},
    {"--new", {}, "Start a new panel even if one is already running."},
    {"--service",
     {},
     "Start without a window, answer requests over D-Bus, and exit when there are no more. The "
     "session bus starts the panel with this option."},
    {"--version", {}, "Show the version and exit."},
};

constexpr TermRow panelStatuses[] = {
    {"0", "The command succeeded."},
    {"1", "The user cancelled, a picture could not be written, or there is no display."},
    {"2", "The command line is wrong."},
    {"3",
     "Picking, choosing or copying is not possible; the reason is reported on standard error."},
};
constexpr TermRow panelFiles[] = {
    {"$XDG_DATA_HOME/Vantorel/",
     "The user's settings, colour lists and plug-ins. If the variable is not set, the folder is "
     "~/.local/share/Vantorel/."},
    {"$XDG_CONFIG_HOME/Vantorel/Preferences.plist",
     "The preferences of the panel. If the variable is not set, the folder is "
     "~/.config/Vantorel/."},
};
constexpr SectionRow panelSections[] = {
    {.title = phraseText("EXIT STATUS"), .terms = panelStatuses},
    {.title = phraseText("FILES"), .terms = panelFiles},
};

}  // namespace

constinit const ProgramRow vantorelPanelProgram{
    .command =
        {.name = "vantorel-panel",
         .text =
             "A colour panel with pages from plug-ins. If a panel is already running, it is "
             "shown and carries out COLOR, --color, --pick, --pick-and-copy, --copy and --copy-as.",
         .operands = panelOperands,
         .options = panelOptions},
    .subject = phraseText("a colour panel with pages from plug-ins"),
    .version = VANTOREL_VERSION,
    .sections = panelSections,
    .seeAlso = "vantorel",
};

}  // namespace vantorel
