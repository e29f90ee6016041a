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
    return {{"light", {}}, {"dark", {}}};
}

constexpr OptionRow panelOptions[] = {
    {"--color", "TEXT",
     "Start with this colour: any form of CSS Color 4, such as \"#ff8000\" or "
     "\"hsl(30 100% 50%)\", or a text that the hex page takes."},
    {"--page", "PAGE", "Start with this page: hex, dialog, palettes, or one of another plug-in."},
    {.name = "--mode",
     .value = "MODE",
     .text = "Start in this mode of the hex page: slider, palette or wheel.",
     .choices = modes},
    {"--size", "WxH", "Size of the page in points, e.g. 260x340."},
    {"--screenshot", "FILE",
     "Write a picture of the window (PNG) to FILE and end; works without a display and leaves the "
     "settings alone."},
    {.name = "--face",
     .value = "FACE",
     .text = "Show this face of the hex page: colors or settings.",
     .choices = faces},
    {.name = "--theme",
     .value = "THEME",
     .text = "Colours of the window in place of the desktop's: light or dark.",
     .choices = themes},
    {"--data", "DIR",
     "Keep settings, colour lists and the panel's own memory under DIR/Vantorel, not with the "
     "user's own; DIR must exist."},
    {.name = "--plugin",
     .value = "FILE",
     .text = "Load this picker plug-in, too. May be given more than once.",
     .isRepeatable = true},
    {"--print-color", {}, "Print the colour as #rrggbbaa to standard output at each change."},
    {"--pick",
     {},
     "Pick a colour from the screen, print it as #rrggbb, and end. Status: 0 picked, 1 cancelled, "
     "3 not possible."},
    {"--pick-and-copy", {}, "The same, and put the colour on the clipboard."},
    {"--copy",
     {},
     "Put the panel's colour on the clipboard as a drag out of the panel would carry it, print the "
     "text, and end."},
    {"--copy-as", "FORM", "The same in the form that has this name in the panel's menu."},
    {"--choose",
     {},
     "Let the user choose one colour in a panel of its own, print it as a drag out of the panel "
     "would carry it, and end. Status: 0 chosen, 1 cancelled, 3 not possible."},
    {"--new", {}, "Start a panel even where one runs already."},
    {"--service",
     {},
     "Start without a window, do what is asked over D-Bus, and end when nobody asks any more: how "
     "the session bus starts the panel."},
    {"--version", {}, "Show the version and end."},
};

}  // namespace

constinit const ProgramRow vantorelPanelProgram{
    .command = {.name = "vantorel-panel",
                .text =
                    "A colour panel with pages by plug-ins. Where one runs already it is shown, "
                    "and does what --color, --pick, --pick-and-copy, --copy and --copy-as say.",
                .options = panelOptions},
    .subject = "a colour panel with pages by plug-ins",
    .version = VANTOREL_VERSION,
    .furtherSections = R"(.SH EXIT STATUS
.TP
.B 0
Done.
.TP
.B 1
The user left the pick; a picture could not be written; there is no display.
.TP
.B 2
An option is wrong.
.TP
.B 3
Picking or copying is not possible here; standard error says why.
.SH FILES
.TP
.I $XDG_DATA_HOME/Vantorel/
Settings, colour lists and plug\-ins of the user;
.I \(ti/.local/share/Vantorel/
where the variable is not set.
.SH SEE ALSO
.BR vantorel (1)
)",
};

}  // namespace vantorel
