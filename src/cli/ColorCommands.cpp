#include "cli/ColorReport.h"
#include "cli/ColorStream.h"
#include "cli/Commands.h"
#include "cli/Failure.h"
#include "cli/PanelProgram.h"
#include "cli/Terminal.h"
#include "csscolor/CSSNamedColors.h"
#include "csscolor/Contrast.h"
#include "listformats/Json.h"
#include "result/HarmlessLine.h"
#include "text/Unicode.h"

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

QTXCodeSnippet requiredSnippet(const QTXHexSettings& settings, const std::string& utf8Name)
{
    const std::u16string name = utf16FromUtf8(utf8Name);
    const auto& snippets = settings.codeSnippets();
    const auto found =
        std::find_if(snippets.begin(), snippets.end(),
                     [&](const QTXCodeSnippet& snippet) { return snippet.nameSnippet() == name; });
    if (found == snippets.end()) {
        throw Failure{{phrase("there is no snippet \"%1\"", excerpt(utf8Name)),
                       phrase("run \"vantorel snippets\" to list them")}};
    }
    return *found;
}

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
        : ColorWriter(reader), _commandLine(commandLine), _namer(session, commandLine)
    {
        const QTXHexSettings& settings = session.settings();
        _form.entryForm = settings.entryForm();
        if (commandLine.lowercase)
            _form.entryForm = *commandLine.lowercase ? EntryForm::lowercase : EntryForm::uppercase;
        _form.poundSign = commandLine.poundSign.value_or(settings.usePoundSign());
        _form.swatches = showsSwatches();
        if (commandLine.snippetName) {
            _snippet = requiredSnippet(settings, *commandLine.snippetName);
        } else {
            _form.snippets = settings.codeSnippets();
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
            _form.namer = _namer.get();
            output.write(jsonReportOf(color, _form));
            output.write('\n');
        } else if (isLine) {
            writeLine(output, color);
        } else {
            _form.namer = _namer.get();
            if (_hasWritten) output.write('\n');
            output.write(reportOf(color, _form));
        }
        _hasWritten = true;
    }

private:
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

    const CommandLine& _commandLine;
    LazyNamer _namer;
    ReportForm _form;
    std::optional<QTXCodeSnippet> _snippet;
    bool _hasWritten = false;
};

class NameWriter final : public ColorWriter {
public:
    NameWriter(const ColorNamer& namer, bool json, ColorTextReader& reader)
        : ColorWriter(reader), _namer(namer), _json(json)
    {
    }

    void write(Output& output, const ByteColor& color, bool) override
    {
        const ColorNameMatch match = _namer.match(color.spec());
        const auto cssName =
            match.exactPlace ? std::nullopt : cssNameOfColor(color.spec().javaRGBInt());
        std::string line;
        if (cssName) {
            writeCSSName(line, utf8FromUtf16(*cssName));
        } else if (_json) {
            appendJsonName(line, _namer, match);
        } else {
            line = harmlessLine(utf8FromUtf16(_namer.title(match)));
        }
        output.write(line);
        output.write('\n');
    }

private:
    void writeCSSName(std::string& line, const std::string& name) const
    {
        const std::string list = utf8FromUtf16(cssColor4ListName);
        if (!_json) {
            line = name + " (" + list + ")";
            return;
        }
        line = "{";
        appendJsonKey(line, "list");
        appendJson(line, std::string_view(list));
        appendJsonKey(line, "exact");
        appendJson(line, std::string_view(name));
        appendJsonKey(line, "close");
        line += "[]}";
    }

    const ColorNamer& _namer;
    bool _json;
};

ByteColor requiredColor(ColorTextReader& reader, const std::string& text)
{
    const Result<ByteColor> color = reader.read(text);
    if (!color) throw Failure{color.error()};
    return *color;
}

/// Formats a ratio with two decimals, truncated, because a ratio that only rounds to a limit does
/// not reach it.
std::string ratioText(double ratio)
{
    const auto hundredths = static_cast<int>(std::floor(ratio * 100 + 1e-9));
    const std::string digits = std::to_string(hundredths % 100);
    return std::to_string(hundredths / 100) + "." + (digits.size() < 2 ? "0" : "") + digits;
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
    auto list = session.requiredNamingList(commandLine);
    ColorTextReader reader([&] { return list; });
    const ColorNamer namer(list);
    NameWriter writer(namer, commandLine.json, reader);
    const bool areAllColors = useColorTexts(commandLine.operands, writer, session.output());
    return areAllColors ? 0 : failureStatus;
}

int printSnippets(Session& session, const CommandLine& commandLine)
{
    for (const QTXCodeSnippet& snippet : session.settings().codeSnippets()) {
        const std::string name = utf8FromUtf16(snippet.nameSnippet().value_or(u""));
        const std::string format = utf8FromUtf16(snippet.formatStringSnippet().value_or(u""));
        const std::string variables = utf8FromUtf16(snippet.varFormSnippet().value_or(u""));
        std::string line;
        if (commandLine.names) {
            line = harmlessLine(name);
        } else if (commandLine.json) {
            line = "{";
            for (const auto& [key, value] :
                 {std::pair{"name", name}, {"format", format}, {"variables", variables}}) {
                appendJsonKey(line, key);
                appendJson(line, std::string_view(value));
            }
            line += '}';
        } else {
            line =
                harmlessLine(name) + '\t' + harmlessLine(variables) + '\t' + harmlessLine(format);
        }
        session.output().write(line + '\n');
    }
    return 0;
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

int pickColor(Session&, const CommandLine& commandLine)
{
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
    becomePanel(commandLine.operands);
}

}  // namespace vantorel
