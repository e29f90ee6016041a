#include "cli/ColorReport.h"
#include "cli/ColorStream.h"
#include "cli/Commands.h"
#include "cli/Failure.h"
#include "cli/PanelProgram.h"
#include "cli/RunningPanel.h"
#include "cli/Snippets.h"
#include "cli/Terminal.h"
#include "csscolor/CSSNamedColors.h"
#include "csscolor/Contrast.h"
#include "listformats/Json.h"
#include "result/HarmlessLine.h"
#include "text/Unicode.h"

#include <functional>

namespace vantorel {
namespace {

/// Creates the namer when the first colour is named, because a stream may not need one.
class LazyNamer {
public:
    LazyNamer(Session& session, const CommandLine& commandLine)
        : _session(session), _commandLine(commandLine)
    {
    }

    const ColorNamer* get()
    {
        if (!_isMade) {
            _isMade = true;
            if (auto list = _session.namingList(_commandLine)) _namer.emplace(std::move(list));
        }
        return _namer ? &*_namer : nullptr;
    }

private:
    Session& _session;
    const CommandLine& _commandLine;
    bool _isMade = false;
    std::optional<ColorNamer> _namer;
};

class ShowWriter final : public ColorWriter {
public:
    ShowWriter(Session& session, const CommandLine& commandLine, ColorTextReader& reader)
        : ColorWriter(reader),
          _session(session),
          _commandLine(commandLine),
          _namer(session, commandLine)
    {
        const QTXHexSettings& settings = session.settings();
        _form.entryForm = settings.entryForm();
        if (commandLine.lowercase)
            _form.entryForm = *commandLine.lowercase ? EntryForm::lowercase : EntryForm::uppercase;
        _form.poundSign = commandLine.poundSign.value_or(settings.usePoundSign());
        _form.swatches = showsSwatches();
        if (commandLine.snippetName) {
            _snippet = requiredSnippet(session.snippets(), *commandLine.snippetName);
        }
        // Report a missing list before anything is written.
        if (commandLine.listName) _form.namer = _namer.get();
    }

    void write(Output& output, const ByteColor& color, bool isLine) override
    {
        if (_snippet) {
            output.write(utf8FromUtf16(_snippet->codeSnippetWithColorSpec(color.spec())));
            output.write('\n');
        } else if (_commandLine.json) {
            completeForm();
            output.write(jsonReportOf(color, _form));
            output.write('\n');
        } else if (isLine) {
            writeLine(output, color);
        } else {
            completeForm();
            if (_hasWritten) output.write('\n');
            output.write(reportOf(color, _form));
        }
        _hasWritten = true;
    }

private:
    /// Adds to the form what a report has and a line need not have.
    void completeForm()
    {
        _form.namer = _namer.get();
        _form.snippets = _session.snippets().users();
    }
    void writeLine(Output& output, const ByteColor& color)
    {
        if (!_commandLine.listName) _form.namer = nullptr;
        if (hasPlainLines(_form) && color.alpha == 1) {
            output.commit(
                writePlainLine(output.reserve(), color, _form.entryForm, _form.poundSign));
            return;
        }
        output.write(lineOf(color, _form));
        output.write('\n');
    }

    Session& _session;
    const CommandLine& _commandLine;
    LazyNamer _namer;
    ReportForm _form;
    std::optional<QTXCodeSnippet> _snippet;
    bool _hasWritten = false;
};

using FindNames = std::function<PaletteNameMatch(const QTXHexColorSpec&)>;

class NameWriter final : public ColorWriter {
public:
    NameWriter(std::u16string listName, FindNames findNames, bool json, ColorTextReader& reader)
        : ColorWriter(reader),
          _listName(std::move(listName)),
          _findNames(std::move(findNames)),
          _json(json)
    {
    }

    void write(Output& output, const ByteColor& color, bool) override
    {
        const QTXHexColorSpec spec = color.spec();
        const PaletteNameMatch match = _findNames(spec);
        const auto cssName = match.exact ? std::nullopt : cssNameOfColor(spec.javaRGBInt());
        std::string line;
        if (_json) {
            if (cssName) {
                appendJsonName(line, std::u16string(cssColor4ListName),
                               {std::u16string(*cssName), {}});
            } else {
                appendJsonName(line, _listName, match);
            }
        } else if (cssName) {
            line = utf8FromUtf16(*cssName) + " (" + utf8FromUtf16(cssColor4ListName) + ")";
        } else {
            line = harmlessLine(utf8FromUtf16(titleOf(match)));
        }
        output.write(line);
        output.write('\n');
    }

private:
    std::u16string _listName;
    FindNames _findNames;
    bool _json;
};

/// Names a few colours of the arguments by the file of the list, without making a list of it.
/// Returns `std::nullopt`, without any effect, if that is not possible.
std::optional<int> nameByFile(Session& session, const CommandLine& commandLine)
{
    constexpr std::size_t few = 3;
    const auto& texts = commandLine.operands;
    const auto name = commandLine.listName ? std::optional(utf16FromUtf8(*commandLine.listName))
                                           : session.settings().hexColorList();
    if (!name || texts.empty() || texts.size() > few) return std::nullopt;
    std::optional<std::string> file;
    std::vector<PaletteNameMatch> matches;
    for (const std::string& text : texts) {
        const auto color = readPlainHex(text);
        if (!color) return std::nullopt;
        if (!file) file = session.lists().fileOfList(*name);
        auto match = file ? namesInPalette(*file, color->spec()) : std::nullopt;
        if (!match) return std::nullopt;
        matches.push_back(std::move(*match));
    }
    ColorTextReader reader([] { return nullptr; });
    auto next = matches.begin();
    const auto findNames = [&](const QTXHexColorSpec&) { return std::move(*next++); };
    NameWriter writer(*name, findNames, commandLine.json, reader);
    return useColorTexts(texts, writer, session.output()) ? 0 : failureStatus;
}

ByteColor requiredColor(ColorTextReader& reader, const std::string& text)
{
    const Result<ByteColor> color = reader.read(text);
    if (!color) throw Failure{color.error()};
    return *color;
}

}  // namespace

int showColors(Session& session, const CommandLine& commandLine)
{
    ColorTextReader reader = colorTextReader(session, commandLine);
    ShowWriter writer(session, commandLine, reader);
    const bool areAllColors = useColorTexts(commandLine.operands, writer, session.output());
    return areAllColors ? 0 : failureStatus;
}

int nameColors(Session& session, const CommandLine& commandLine)
{
    if (const auto status = nameByFile(session, commandLine)) return *status;
    auto list = session.requiredNamingList(commandLine);
    ColorTextReader reader([&] { return list; }, CSSTheme::unknown,
                           [&] { return &session.snippetReaders(); });
    const ColorNamer namer(list);
    NameWriter writer(
        list->name(), [&](const QTXHexColorSpec& color) { return namer.names(color); },
        commandLine.json, reader);
    const bool areAllColors = useColorTexts(commandLine.operands, writer, session.output());
    return areAllColors ? 0 : failureStatus;
}

int printContrast(Session& session, const CommandLine& commandLine)
{
    ColorTextReader reader = colorTextReader(session, commandLine);
    const ByteColor foreground = requiredColor(reader, commandLine.operands.at(0));
    const ByteColor background = requiredColor(reader, commandLine.operands.at(1));
    const double ratio = contrastRatio(foreground.hostColor(), background.hostColor()).value_or(1);
    const ContrastVerdicts verdicts = contrastVerdicts(ratio);
    const std::pair<const char*, bool> rows[] = {
        {"normal text AA", verdicts.normalTextAA}, {"normal text AAA", verdicts.normalTextAAA},
        {"large text AA", verdicts.largeTextAA},   {"large text AAA", verdicts.largeTextAAA},
        {"components AA", verdicts.componentAA},
    };
    std::string text;
    if (commandLine.json) {
        text = "{\"ratio\":" + ratioText(ratio);
        for (const auto& [name, passes] : rows) {
            appendJsonKey(text, name);
            text += passes ? "true" : "false";
        }
        text += "}\n";
    } else {
        text = "ratio: " + ratioText(ratio) + '\n';
        for (const auto& [name, passes] : rows)
            text.append(name).append(passes ? ": passes\n" : ": fails\n");
    }
    session.output().write(text);
    return 0;
}

int pickColor(Session& session, const CommandLine& commandLine)
{
    if (const auto status = pickWithRunningPanel(session.output(), commandLine.copy))
        return *status;
    becomePanel({commandLine.copy ? "--pick-and-copy" : "--pick"});
}

int chooseColor(Session& session, const CommandLine& commandLine)
{
    if (commandLine.operands.empty()) becomePanel({"--choose"});
    // Passed as a hex code, because the panel does not know the names of colour lists.
    ColorTextReader reader = colorTextReader(session, commandLine);
    const ByteColor color = requiredColor(reader, commandLine.operands.front());
    becomePanel({"--choose", "--color",
                 hexTextOf(color, {EntryForm::lowercase, true, nullptr, {}, false})});
}

int startPanel(Session&, const CommandLine& commandLine)
{
    if (showRunningPanel(commandLine.operands)) return 0;
    becomePanel(commandLine.operands);
}

}  // namespace vantorel
