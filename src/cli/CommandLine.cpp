#include "cli/CommandLine.h"

#include "cli/CommandDescription.h"
#include "cli/Failure.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <array>
#include <map>

namespace vantorel {
namespace {

constexpr const char* programText =
    "Colours for people who write CSS and code.\n"
    "A COLOR is any form of CSS Color 4 (\"#ff8000\", \"rgb(255 128 0)\", \"oklch(70% 0.1 50)\", "
    "\"orange\"), a text that the colour picker takes (\"ff8000\", \"RGB(255, 128, 0);\"), or a "
    "name of the colour list.\n"
    "Settings, snippets and colour lists are those of the colour picker.";

const std::vector<std::string> shells{"bash", "zsh", "fish"};
const std::vector<std::string> exportFormats{"gpl", "css", "scss", "json", "ase", "svg", "txt"};

/// Adds the options of one command. What CLI11 does not know of them is kept beside it.
class Definer {
public:
    explicit Definer(CommandLine& commandLine) : _line(commandLine) {}

    /// What a command takes without an option.
    struct Operands {
        std::string value;
        std::string text;
        std::size_t fewest = 0;
        /// 0 is any number.
        std::size_t most = 0;
        std::vector<std::string> choices;
    };
    /// Null for a command that takes none.
    [[nodiscard]] const Operands* operandsOf(const CLI::App& app) const
    {
        const auto found = _operands.find(&app);
        return found != _operands.end() ? &found->second : nullptr;
    }

    using Choices = std::map<const CLI::Option*, std::vector<std::string>>;
    [[nodiscard]] const Choices& choices() const { return _choices; }

    void option(CLI::App* app, const char* names, std::optional<std::string>& field,
                const char* value, const char* text, const std::vector<std::string>& choices = {})
    {
        CLI::Option* option = app->add_option_function<std::string>(
            names, [&field](const std::string& given) { field = given; }, text);
        option->type_name(value);
        if (!choices.empty()) _choices[option] = choices;
    }
    static void flag(CLI::App* app, const char* names, bool& field, const char* text)
    {
        app->add_flag_callback(
            names, [&field] { field = true; }, text);
    }
    static void flag(CLI::App* app, const char* names, std::optional<bool>& field, bool value,
                     const char* text)
    {
        app->add_flag_callback(
            names, [&field, value] { field = value; }, text);
    }
    /// `most` 0 is any number.
    void operands(CLI::App* app, const char* value, std::size_t fewest, std::size_t most,
                  const char* text, const std::vector<std::string>& choices = {})
    {
        _operands[app] = {value, text, fewest, most, choices};
    }

    void show(CLI::App* app)
    {
        operands(app, "COLOR", 0, 0,
                 "What to show; \"-\" stands for the lines of standard input, and so does no COLOR "
                 "at all.");
        json(app, "Write JSON, an object a line.");
        list(app,
             "Name the colour by this list, not by that of the settings. With standard input, "
             "add the name to each line.");
        option(app, "--snippet", _line.snippetName, "NAME",
               "Write the text of this snippet alone.");
        writing(app);
    }
    void name(CLI::App* app)
    {
        operands(app, "COLOR", 0, 0, "What to name, as for \"show\".");
        list(app, "Take the names from this list, not from that of the settings.");
        json(app, "Write JSON, an object a line.");
    }
    void lists(CLI::App* app) { json(app, "Write JSON, an object a line."); }
    void listExport(CLI::App* app)
    {
        operands(app, "NAME", 1, 1, "The list.");
        option(
            app, "--format", _line.format, "FORMAT",
            "gpl (palette of graphics programs), css (custom properties), scss (variables), json, "
            "ase (swatch exchange, binary), svg (a picture with names) or txt.",
            exportFormats);
        app->get_option("--format")->required();
        option(app, "--output", _line.output, "FILE", "Write to FILE, not to standard output.");
    }
    void listImport(CLI::App* app)
    {
        operands(app, "FILE", 1, 0, "Palettes in any of the formats of export but svg.");
        option(app, "--name", _line.newName, "NAME", "Call the list so; with one FILE only.");
        flag(app, "--yes", _line.yes, "Replace lists of the same names without asking.");
    }
    void listPublish(CLI::App* app)
    {
        operands(app, "NAME", 1, 1, "The list.");
        flag(app, "--yes", _line.yes, "Replace files that differ without asking.");
        flag(app, "--undo", _line.undo,
             "Take the last publish of the list back: what it replaced is restored, and what it "
             "made is removed. A file that has been changed since stays.");
    }
    void list(CLI::App* app)
    {
        operands(app, "NAME", 0, 1,
                 "The list; one that is called like a command comes behind \"--\".");
        json(app, "Write JSON.");
        app->require_subcommand(0, 1);
        listImport(
            command(app, "import",
                    "Save palette files among your colour lists.\nA list of the same name is "
                    "replaced only when you agree."));
        listExport(command(app, "export", "Write a colour list for other programs."));
        listPublish(command(app, "publish",
                            "Put a colour list into the palette folders of graphics programs.\nOne "
                            "palette file is written into each folder for your own palettes that "
                            "exists: of every version of GIMP, of Inkscape, Krita and KDE. A file "
                            "that differs is replaced only when you agree."));
    }
    void contrast(CLI::App* app)
    {
        operands(app, "COLOR", 2, 2, "The foreground, then the background.");
        json(app, "Write JSON.");
    }
    void wheel(CLI::App* app)
    {
        option(app, "--rings", _line.rings, "N",
               "Rings, 2 to 128; those of the settings otherwise.");
        option(app, "--svg", _line.svg, "FILE", "Where to write; \"-\" is standard output.");
        app->get_option("--svg")->required();
        size(app);
    }
    void palette(CLI::App* app)
    {
        operands(app, "NAME", 1, 1, "The list.");
        option(app, "--svg", _line.svg, "FILE", "Write SVG to FILE; \"-\" is standard output.");
        option(app, "--png", _line.png, "FILE", "Write PNG to FILE; \"-\" is standard output.");
        app->get_option("--svg")->excludes("--png");
        size(app);
    }
    void pick(CLI::App* app)
    {
        flag(app, "--copy", _line.copy, "Copy the colour to the clipboard.");
    }
    void choose(CLI::App* app) { operands(app, "COLOR", 0, 1, "The colour to start with."); }
    void completions(CLI::App* app) { operands(app, "SHELL", 1, 1, "bash, zsh or fish.", shells); }

    static CLI::App* command(CLI::App* parent, const char* name, const char* text)
    {
        // CLI11 would take an operand such as "[a,b]" apart, and cannot tell "-- import" from
        // "import"; so it hands over what is no option.
        return parent->add_subcommand(name, text)->allow_extras();
    }

private:
    void json(CLI::App* app, const char* text) { flag(app, "--json", _line.json, text); }
    void list(CLI::App* app, const char* text)
    {
        option(app, "--list", _line.listName, "NAME", text);
    }
    void size(CLI::App* app)
    {
        option(app, "--size", _line.size, "WxH",
               "Width and height in points or pixels, such as 640x480, which is the default.");
    }
    void writing(CLI::App* app)
    {
        flag(app, "--lowercase", _line.lowercase, true, "Hex digits in lower case.");
        flag(app, "--uppercase", _line.lowercase, false, "Hex digits in upper case.");
        flag(app, "--no-pound-sign", _line.poundSign, false, "Hex codes without \"#\".");
        flag(app, "--pound-sign", _line.poundSign, true,
             "Hex codes with \"#\". What of these is not given is as in the settings.");
        app->get_option("--lowercase")->excludes("--uppercase");
        app->get_option("--pound-sign")->excludes("--no-pound-sign");
    }

    CommandLine& _line;
    Choices _choices;
    std::map<const CLI::App*, Operands> _operands;
};

struct CommandRow {
    Command command;
    const char* name;
    const char* text;
    void (*define)(Definer&, CLI::App*);
};

constexpr auto noOptions = [](Definer&, CLI::App*) {};

/// "panel" hands on whatever stands behind it, so it is not parsed here.
constexpr std::array commandRows{
    CommandRow{Command::show, "show",
               "Show what a colour is in every form, its name and its snippets.\n"
               "Colours from standard input come one a line and are written one a line: the hex "
               "code, a tab and the rgb() text; with --list a tab and the name. Empty lines are "
               "passed over; a line that is no colour is told on standard error, and the rest goes "
               "on.",
               [](Definer& definer, CLI::App* app) { definer.show(app); }},
    CommandRow{Command::name, "name",
               "Tell the name of a colour, one a line.\nWhere no name is exact, the close ones "
               "stand behind a \"*\", or it says \"No Match\".",
               [](Definer& definer, CLI::App* app) { definer.name(app); }},
    CommandRow{Command::lists, "lists",
               "Tell all colour lists: the number of colours, the name and the file.",
               [](Definer& definer, CLI::App* app) { definer.lists(app); }},
    CommandRow{Command::list, "list",
               "Tell the colours of a list, or import, export or publish one.",
               [](Definer& definer, CLI::App* app) { definer.list(app); }},
    CommandRow{Command::snippets, "snippets",
               "Tell the snippets of the settings with their formats.",
               [](Definer& definer, CLI::App* app) { definer.lists(app); }},
    CommandRow{
        Command::contrast, "contrast",
        "Tell the contrast ratio of two colours and which criteria of WCAG 2.2 it meets.\nThe "
        "ratio is cut, not rounded, after two decimals.",
        [](Definer& definer, CLI::App* app) { definer.contrast(app); }},
    CommandRow{Command::wheel, "wheel", "Draw the colour wheel.",
               [](Definer& definer, CLI::App* app) { definer.wheel(app); }},
    CommandRow{Command::palette, "palette", "Draw the palette of a colour list.",
               [](Definer& definer, CLI::App* app) { definer.palette(app); }},
    CommandRow{Command::pick, "pick",
               "Pick a colour from the screen and print it (vantorel-panel).",
               [](Definer& definer, CLI::App* app) { definer.pick(app); }},
    CommandRow{Command::choose, "choose",
               "Choose a colour in the colour panel and print it (vantorel-panel).",
               [](Definer& definer, CLI::App* app) { definer.choose(app); }},
    CommandRow{Command::panel, "panel",
               "Start the colour panel with the options that follow; \"panel --help\" tells them.",
               noOptions},
    CommandRow{
        Command::completions, "completions",
        "Print a completion script for a shell.\nFor bash: source <(vantorel completions bash)",
        [](Definer& definer, CLI::App* app) { definer.completions(app); }},
    CommandRow{Command::manpage, "manpage", "Print the manual page, for man.", noOptions},
};

const CommandRow* rowNamed(const std::string& name)
{
    const auto row = std::find_if(commandRows.begin(), commandRows.end(),
                                  [&](const CommandRow& each) { return name == each.name; });
    return row != commandRows.end() ? &*row : nullptr;
}

/// Defines the program; of commands other than `only` their names alone, or everything for null.
void define(CLI::App& app, Definer& definer, bool& wantsVersion, const CommandRow* only)
{
    app.require_subcommand(1);
    app.set_help_flag("-h,--help", "Show this help.");
    Definer::flag(&app, "--version", wantsVersion, "Show the version.");
    for (const CommandRow& row : commandRows) {
        // A known command answers faster without the others.
        if (only != nullptr && only != &row) continue;
        row.define(definer, Definer::command(&app, row.name, row.text));
    }
}

OptionDescription descriptionOf(const CLI::Option& option, const Definer& definer)
{
    OptionDescription description;
    for (const std::string& name : option.get_snames())
        description.names.push_back("-" + name);
    for (const std::string& name : option.get_lnames())
        description.names.push_back("--" + name);
    if (option.get_expected_max() > 0 && option.get_type_size() > 0)
        description.value = option.get_type_name();
    description.text = option.get_description();
    description.isRequired = option.get_required();
    const auto choices = definer.choices().find(&option);
    if (choices != definer.choices().end()) description.choices = choices->second;
    return description;
}

CommandDescription descriptionOf(const CLI::App& app, const Definer& definer)
{
    CommandDescription description{app.get_name(), app.get_description(), {}, {}};
    for (const CLI::Option* option : app.get_options())
        description.options.push_back(descriptionOf(*option, definer));
    if (const auto* operands = definer.operandsOf(app)) {
        // Two colours are told as such.
        for (std::size_t i = 0; i < std::max<std::size_t>(operands->most, 1); ++i) {
            OptionDescription operand;
            operand.value = operands->value;
            operand.text = operands->text;
            operand.isRequired = i < operands->fewest;
            operand.isRepeatable = operands->most == 0;
            operand.choices = operands->choices;
            description.options.push_back(operand);
        }
    }
    for (const CLI::App* inner : app.get_subcommands({}))
        description.commands.push_back(descriptionOf(*inner, definer));
    return description;
}

/// The command that was given, the deepest one; `names` is what was typed to reach it.
const CLI::App& givenCommand(const CLI::App& program, std::string& names)
{
    const CLI::App* app = &program;
    names = app->get_name();
    while (!app->get_subcommands().empty()) {
        app = app->get_subcommands().front();
        names += " " + app->get_name();
    }
    return *app;
}

std::string lowerFirst(std::string text)
{
    if (text.size() > 1 && text[0] >= 'A' && text[0] <= 'Z' && text[1] >= 'a' && text[1] <= 'z')
        text[0] = static_cast<char>(text[0] - 'A' + 'a');
    return text;
}

[[noreturn]] void failUsage(const CLI::App& program, const CLI::ParseError& error,
                            const std::vector<std::string>& arguments)
{
    std::string names;
    const CLI::App& command = givenCommand(program, names);
    const std::string advice = "\"" + names + " --help\" tells what can be given";
    if (&command == &program && !arguments.empty() && !arguments.front().starts_with('-')) {
        throw Failure{quotedText(arguments.front()) + " is no command", advice};
    }
    if (&command == &program && arguments.empty()) throw Failure{"there is no command", advice};
    const auto rest = program.remaining(true);
    if (&command == &program && !rest.empty()) {
        throw Failure{quotedText(rest.front()) + " does not belong to \"" + names + "\"", advice};
    }
    std::string what = lowerFirst(error.what());
    // "--list: 1 required NAME missing" has a colon of its own.
    if (error.get_name() == "ArgumentMismatch")
        what.replace(std::min(what.find(':'), what.size()), std::string::npos, " has no value");
    throw Failure{what, advice};
}

void checkChoice(const std::string& what, const std::string& value,
                 const std::vector<std::string>& choices)
{
    if (std::find(choices.begin(), choices.end(), value) != choices.end()) return;
    std::string all;
    for (const std::string& choice : choices) {
        if (!all.empty()) all += choice == choices.back() ? " or " : ", ";
        all += choice;
    }
    throw Failure{what + " is " + quotedText(value), "it can be " + all};
}

void checkChoices(const Definer& definer)
{
    for (const auto& [option, choices] : definer.choices()) {
        for (const std::string& value : option->results())
            checkChoice(option->get_name(), value, choices);
    }
}

/// What stands between a command and one of its own belongs to neither.
void checkNothingBetween(const CLI::App& program)
{
    const CLI::App* outer = program.get_subcommands().front();
    if (outer->get_subcommands().empty()) return;
    const std::string right = "write it behind \"" + program.get_name() + " " + outer->get_name() +
                              " " + outer->get_subcommands().front()->get_name() + "\"";
    if (const auto rest = outer->remaining(false); !rest.empty())
        throw Failure{quotedText(rest.front()) + " stands before the command", right};
    for (const CLI::Option* option : outer->get_options()) {
        if (option->count() > 0)
            throw Failure{option->get_name() + " stands before the command", right};
    }
}

/// The operands of a command: what CLI11 has left over, and what came behind "--".
std::vector<std::string> takeOperands(const CLI::App& command, const std::string& names,
                                      const Definer& definer,
                                      const std::vector<std::string>& behindMark)
{
    const std::string advice = "\"" + names + " --help\" tells what can be given";
    std::vector<std::string> given = command.remaining(false);
    for (const std::string& text : given) {
        if (text.starts_with('-') && text != "-") {
            throw Failure{quotedText(text) + " does not belong to \"" + names + "\"", advice};
        }
    }
    given.insert(given.end(), behindMark.begin(), behindMark.end());
    const auto* operands = definer.operandsOf(command);
    const std::size_t most = operands != nullptr ? operands->most : 0;
    if (!given.empty() && (operands == nullptr || (most > 0 && given.size() > most))) {
        throw Failure{quotedText(given[most]) + " is one argument too many", advice};
    }
    if (operands == nullptr) return {};
    if (given.size() < operands->fewest) throw Failure{"there is no " + operands->value, advice};
    if (!operands->choices.empty()) {
        for (const std::string& value : given)
            checkChoice(operands->value, value, operands->choices);
    }
    return given;
}

Command commandOf(const CLI::App& program)
{
    const CLI::App* given = program.get_subcommands().front();
    const Command command = rowNamed(given->get_name())->command;
    if (command != Command::list || given->get_subcommands().empty()) return command;
    const std::string& inner = given->get_subcommands().front()->get_name();
    if (inner == "import") return Command::listImport;
    return inner == "export" ? Command::listExport : Command::listPublish;
}

}  // namespace

CommandDescription describeProgram()
{
    CommandLine unused;
    Definer definer(unused);
    bool wantsVersion = false;
    CLI::App app(programText, "vantorel");
    define(app, definer, wantsVersion, nullptr);
    return descriptionOf(app, definer);
}

CommandLineReading readCommandLine(const std::vector<std::string>& arguments)
{
    const CommandRow* only = arguments.empty() ? nullptr : rowNamed(arguments.front());
    CommandLine commandLine;
    if (only != nullptr && only->command == Command::panel) {
        commandLine.command = Command::panel;
        commandLine.operands.assign(arguments.begin() + 1, arguments.end());
        return {commandLine, {}};
    }

    Definer definer(commandLine);
    bool wantsVersion = false;
    CLI::App app(programText, "vantorel");
    define(app, definer, wantsVersion, only);
    const auto mark = std::find(arguments.begin(), arguments.end(), "--");
    const std::vector<std::string> behindMark(mark != arguments.end() ? mark + 1 : mark,
                                              arguments.end());
    const std::string version = "vantorel " VANTOREL_VERSION "\n";
    try {
        std::vector<std::string> reversed(std::make_reverse_iterator(mark), arguments.rend());
        app.parse(std::move(reversed));
    } catch (const CLI::CallForHelp&) {
        std::string names;
        const CLI::App& command = givenCommand(app, names);
        return {std::nullopt, helpText(descriptionOf(command, definer), names)};
    } catch (const CLI::ParseError& error) {
        if (wantsVersion) return {std::nullopt, version};
        failUsage(app, error, arguments);
    }
    if (wantsVersion) return {std::nullopt, version};
    checkChoices(definer);
    checkNothingBetween(app);
    std::string names;
    const CLI::App& command = givenCommand(app, names);
    commandLine.operands = takeOperands(command, names, definer, behindMark);
    commandLine.command = commandOf(app);
    return {commandLine, {}};
}

}  // namespace vantorel
