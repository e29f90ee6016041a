#include "cli/ColorReport.h"
#include "cli/Commands.h"
#include "cli/Failure.h"
#include "cli/PictureFiles.h"
#include "cli/Terminal.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/CSSNamedColors.h"
#include "csscolor/Contrast.h"
#include "documents/DocumentLanguage.h"
#include "hosts/posix/SystemCalls.h"
#include "listformats/Json.h"
#include "result/HarmlessLine.h"
#include "stylesheets/StyleSheetReport.h"
#include "text/Decimals.h"
#include "text/Unicode.h"

#include <unistd.h>

#include <array>

namespace vantorel {
namespace {

/// The exit status if something is found.
constexpr int findingStatus = 1;

std::string hexOf(const HostColor& color)
{
    return utf8FromUtf16(hexText(color).value_or(u""));
}

/// Reads standard input, or returns `std::nullopt` if that fails or it is larger than a file may
/// be.
std::optional<std::string> contentsOfStandardInput()
{
    std::string bytes;
    std::array<char, 64 << 10> chunk{};
    for (;;) {
        const ssize_t count =
            uninterrupted([&] { return ::read(STDIN_FILENO, chunk.data(), chunk.size()); });
        if (count == 0) return bytes;
        if (count < 0 || bytes.size() > PosixFiles::largestFile) return std::nullopt;
        bytes.append(chunk.data(), static_cast<std::size_t>(count));
    }
}

/// What is found in the files, and how it is written.
class SheetReport {
public:
    SheetReport(const StyleSheetReport& report, const std::vector<std::string>& files,
                std::optional<ColorNamer> namer)
        : _files(files),
          _namer(std::move(namer)),
          _colors(report.colors()),
          _doubles(StyleSheetReport::nearDoubles(_colors)),
          _contrasts(report.lowContrasts())
    {
    }

    [[nodiscard]] bool hasDoubles() const { return !_doubles.empty(); }
    [[nodiscard]] bool hasLowContrasts() const { return !_contrasts.empty(); }

    [[nodiscard]] std::string text() const
    {
        const bool swatches = showsSwatches();
        const auto shown = [&](const HostColor& color) {
            return (swatches ? swatchOf(byteColorOf(color)) : "") + hexOf(color);
        };
        std::string text = "colours: " + std::to_string(_colors.size()) + '\n';
        for (const SheetColor& color : _colors) {
            text += "  " + std::to_string(color.count) + '\t' + shown(color.hostColor());
            const std::string names = namesOf(color);
            text += names.empty() ? "\n" : '\t' + names + '\n';
        }
        text += "near doubles: " + std::to_string(_doubles.size()) + '\n';
        for (const NearDoubles& pair : _doubles) {
            text += "  " + shown(_colors[pair.first].hostColor()) + '\t' +
                    shown(_colors[pair.second].hostColor()) + '\t' + fixedText(pair.difference, 2) +
                    '\t' + textOf(_colors[pair.second].first) + '\n';
        }
        text += "contrast below AA: " + std::to_string(_contrasts.size()) + '\n';
        for (const LowContrast& pair : _contrasts) {
            text += "  " + shown(pair.foreground) + '\t' + shown(pair.background) + '\t' +
                    ratioText(pair.ratio) + '\t' + textOf(pair.place) + '\n';
        }
        return text;
    }

    [[nodiscard]] std::string json() const
    {
        std::string json = "{\"colors\":[";
        for (const SheetColor& color : _colors) {
            open(json);
            add(json, "hex", hexOf(color.hostColor()));
            addRaw(json, "count", std::to_string(color.count));
            addRaw(json, "variables", "[");
            for (const std::string& name : color.variables) {
                if (!json.ends_with('[')) json += ',';
                appendJson(json, std::string_view(name));
            }
            json += ']';
            const auto name = nameOf(color);
            addRaw(json, "name", name ? "" : "null");
            if (name) appendJson(json, std::u16string_view(*name));
            close(json, color.first);
        }
        json += "],\"nearDoubles\":[";
        for (const NearDoubles& pair : _doubles) {
            open(json);
            add(json, "first", hexOf(_colors[pair.first].hostColor()));
            add(json, "second", hexOf(_colors[pair.second].hostColor()));
            addRaw(json, "difference", fixedText(pair.difference, 2));
            close(json, _colors[pair.second].first);
        }
        json += "],\"lowContrasts\":[";
        for (const LowContrast& pair : _contrasts) {
            open(json);
            add(json, "foreground", hexOf(pair.foreground));
            add(json, "background", hexOf(pair.background));
            addRaw(json, "ratio", ratioText(pair.ratio));
            close(json, pair.place);
        }
        return json + "]}\n";
    }

    /// Returns the colours as a list, each with its numbers as its name. A picture has no opacity,
    /// so translucent colours are composed over white.
    [[nodiscard]] HostColorList list() const
    {
        HostColorList list(u"colours");
        for (const SheetColor& color : _colors) {
            std::string name = hexOf(color.hostColor()) + " x " + std::to_string(color.count);
            if (const std::string names = namesOf(color); !names.empty()) name += ", " + names;
            const auto seen = composedOver(color.hostColor(), HostColor::whiteColor());
            list.setColor(seen.value_or(HostColor::whiteColor()), utf16FromUtf8(name));
        }
        return list;
    }

private:
    static void open(std::string& json) { json += json.ends_with('[') ? "{" : ",{"; }
    void close(std::string& json, const SheetPlace& place) const
    {
        add(json, "file", _files[place.file]);
        addRaw(json, "line", std::to_string(place.line));
        json += '}';
    }
    static void add(std::string& json, std::string_view key, std::string_view value)
    {
        appendJsonKey(json, key);
        appendJson(json, value);
    }
    static void addRaw(std::string& json, std::string_view key, std::string_view value)
    {
        appendJsonKey(json, key);
        json += value;
    }

    [[nodiscard]] std::string textOf(const SheetPlace& place) const
    {
        return harmlessLine(_files[place.file]) + ':' + std::to_string(place.line);
    }

    /// Returns the exact name of an opaque colour.
    [[nodiscard]] std::optional<std::u16string> nameOf(const SheetColor& color) const
    {
        if (color.bytes[3] != 255) return std::nullopt;
        const QTXHexColorSpec spec = byteColorOf(color.hostColor()).spec();
        if (_namer) {
            const ColorNameMatch match = _namer->match(spec);
            if (match.exactPlace) return _namer->title(match);
        }
        const auto name = cssNameOfColor(spec.javaRGBInt());
        return name ? std::optional(std::u16string(*name)) : std::nullopt;
    }

    [[nodiscard]] std::string namesOf(const SheetColor& color) const
    {
        std::string names;
        for (const std::string& name : color.variables)
            names += (names.empty() ? "" : ", ") + harmlessLine(name);
        if (const auto name = nameOf(color))
            names += (names.empty() ? "" : ", ") + harmlessLine(utf8FromUtf16(*name));
        return names;
    }

    const std::vector<std::string>& _files;
    std::optional<ColorNamer> _namer;
    std::vector<SheetColor> _colors;
    std::vector<NearDoubles> _doubles;
    std::vector<LowContrast> _contrasts;
};

/// Adds a file, or standard input for "-". Returns false if it cannot be read, which is reported.
bool addFile(Session& session, const std::string& file, StyleSheetReport& report)
{
    const bool isInput = file == "-";
    const auto bytes =
        isInput ? contentsOfStandardInput() : session.files().contentsAtPath(absolutePath(file));
    if (bytes) {
        const DocumentLanguage language = documentLanguage(isInput ? "css" : "", file);
        report.add(*bytes, language, isStyleSheet(language) ? nullptr : &session.snippetReaders());
        return true;
    }
    report.add({}, DocumentLanguage::css);
    session.output().flush();
    reportError({phrase("\"%1\" cannot be read", excerpt(isInput ? "standard input" : file)),
                 phrase("check that it is a readable file of at most 64 MiB")});
    return false;
}

}  // namespace

int checkStyleSheets(Session& session, const CommandLine& commandLine)
{
    StyleSheetReport found;
    bool areAllRead = true;
    for (const std::string& file : commandLine.operands)
        areAllRead = addFile(session, file, found) && areAllRead;
    std::optional<ColorNamer> namer;
    if (auto list = session.namingList(commandLine)) namer.emplace(std::move(list));
    const SheetReport report(found, commandLine.operands, std::move(namer));
    const bool hasPicture = commandLine.svg || commandLine.png;
    if (hasPicture) writePalettePicture(session, commandLine, report.list());
    if (commandLine.svg != "-" && commandLine.png != "-")
        session.output().write(commandLine.json ? report.json() : report.text());
    if (!areAllRead) return failureStatus;
    const std::string what = commandLine.failOn.value_or("any");
    const bool fails = (what != "contrast" && what != "never" && report.hasDoubles()) ||
                       (what != "doubles" && what != "never" && report.hasLowContrasts());
    return fails ? findingStatus : 0;
}

}  // namespace vantorel
