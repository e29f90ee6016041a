#include "colorlists/PaletteFile.h"

#include "color/ChannelConversion.h"
#include "colorlists/KeyedEntries.h"
#include "text/Trimming.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace vantorel {
namespace {

constexpr std::array<std::string_view, 2> heads{"GIMP Palette", "KDE RGB Palette"};
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view nameField = "Name:";
constexpr std::string_view columnsField = "Columns:";

bool isLineEnd(char c)
{
    return c == '\r' || c == '\n';
}

/// Decodes a text as UTF-8, or as Latin-1 if it is not well-formed UTF-8.
std::u16string decoded(std::string_view text)
{
    if (isWellFormedUtf8(text)) return utf16FromUtf8(text);
    std::u16string result;
    for (const char c : text)
        result.push_back(static_cast<unsigned char>(c));
    return result;
}

/// Iterates over the lines of a file, which may end in LF, CR LF or CR.
class Lines {
public:
    explicit Lines(std::string_view bytes) : _rest(bytes)
    {
        if (_rest.starts_with(byteOrderMark)) _rest.remove_prefix(byteOrderMark.size());
    }

    bool next(std::string_view& line)
    {
        if (_rest.empty()) return false;
        const auto* end = std::find_if(_rest.begin(), _rest.end(), isLineEnd);
        line = _rest.substr(0, static_cast<std::size_t>(end - _rest.begin()));
        _rest.remove_prefix(line.size());
        if (_rest.starts_with("\r\n")) {
            _rest.remove_prefix(2);
        } else if (!_rest.empty()) {
            _rest.remove_prefix(1);
        }
        ++_number;
        return true;
    }

    [[nodiscard]] std::size_t number() const { return _number; }
    [[nodiscard]] std::size_t bytesLeft() const { return _rest.size(); }

private:
    std::string_view _rest;
    std::size_t _number = 0;
};

bool readHead(Lines& lines)
{
    std::string_view line;
    return lines.next(line) && std::find(heads.begin(), heads.end(), trimmed(line)) != heads.end();
}

/// Reads a number 0..255 and removes it from the line.
bool readByte(std::string_view& line, int& byte)
{
    line = withoutLeading(line, isBlank<char>);
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), byte);
    if (error != std::errc{} || byte < 0 || byte > 255) return false;
    line.remove_prefix(static_cast<std::size_t>(end - line.data()));
    return line.empty() || isBlank(line.front());
}

/// Returns the name that follows the numbers of a row. After a tab, which our writer uses, the name
/// is taken literally. Additional tabs, which some programs use for alignment, are skipped.
std::u16string rowName(std::string_view rest)
{
    const std::size_t start = rest.find_first_not_of(' ');
    if (start != std::string_view::npos && rest[start] == '\t') {
        return decoded(rest.substr(std::min(rest.find_first_not_of('\t', start), rest.size())));
    }
    return decoded(trimmed(rest));
}

/// Reads the head of a file whose lines are complete.
PaletteHead headIn(std::string_view bytes, const std::u16string& fallbackName)
{
    Lines lines(bytes);
    if (!readHead(lines)) return {true, std::nullopt};
    std::string_view line;
    while (lines.next(line)) {
        const std::string_view content = trimmed(line);
        if (content.starts_with(nameField)) {
            // One space after the colon belongs to the field. The rest is the name, taken
            // literally.
            std::string_view name = line.substr(line.find(nameField) + nameField.size());
            if (name.starts_with(' ')) name.remove_prefix(1);
            if (!trimmed(name).empty()) return {true, decoded(name)};
        }
        // The head ends at the first row.
        if (!content.empty() && isDigit(content.front())) return {true, fallbackName};
    }
    return {false, fallbackName};
}

std::string harmless(const std::u16string& name)
{
    return utf8FromUtf16(withoutControls(name));
}

void appendNumber(std::string& text, int byte)
{
    const std::string digits = std::to_string(byte);
    text.append(3 - digits.size(), ' ');
    text += digits;
}

}  // namespace

struct PaletteReader::State {
    State(std::string_view bytes, const std::u16string& name)
        : size(bytes.size()), lines(bytes), reading{std::make_shared<HostColorList>(name), {}, 0}
    {
        readHead(lines);
    }

    std::size_t size;
    Lines lines;
    PaletteReading reading;
    KeyedEntries colors{*reading.list};
};

PaletteReader::PaletteReader(std::string_view bytes, const std::u16string& fallbackName)
{
    if (const auto name = paletteName(bytes, fallbackName))
        _state = std::make_unique<State>(bytes, *name);
}

PaletteReader::~PaletteReader() = default;

const PaletteReading* PaletteReader::reading() const
{
    return _state ? &_state->reading : nullptr;
}

std::size_t PaletteReader::bytesRead() const
{
    return _state ? _state->size - _state->lines.bytesLeft() : 0;
}

bool PaletteReader::readLines(std::size_t count)
{
    if (!_state) return true;
    Lines& lines = _state->lines;
    PaletteReading& reading = _state->reading;
    std::string_view line;
    for (; count > 0; --count) {
        if (!lines.next(line)) return true;
        const std::string_view content = trimmed(line);
        if (content.empty() || content.front() == '#' || content.starts_with(nameField) ||
            content.starts_with(columnsField)) {
            continue;
        }
        std::array<int, 3> rgb{};
        std::string_view rest = line;
        const bool isRow =
            std::ranges::all_of(rgb, [&](int& byte) { return readByte(rest, byte); });
        if (isRow) {
            _state->colors.add(HostColor::colorWithCalibratedRed(rgb[0] / 255.0, rgb[1] / 255.0,
                                                                 rgb[2] / 255.0, 1.0),
                               rowName(rest));
        } else if (reading.skipped.size() < PaletteReading::mostSkippedLines) {
            reading.skipped.push_back({lines.number(), "not three numbers from 0 to 255"});
        } else {
            ++reading.furtherSkippedLines;
        }
    }
    return false;
}

std::optional<PaletteReading> readPalette(std::string_view bytes,
                                          const std::u16string& fallbackName)
{
    PaletteReader reader(bytes, fallbackName);
    reader.readLines(std::numeric_limits<std::size_t>::max());
    const PaletteReading* reading = reader.reading();
    return reading != nullptr ? std::optional(*reading) : std::nullopt;
}

std::optional<std::u16string> paletteName(std::string_view bytes,
                                          const std::u16string& fallbackName)
{
    return headIn(bytes, fallbackName).name;
}

PaletteHead paletteHead(std::string_view beginning, const std::u16string& fallbackName)
{
    // The last line may be incomplete.
    const std::size_t end = beginning.find_last_of("\r\n");
    if (end == std::string_view::npos) return {};
    return headIn(beginning.substr(0, end), fallbackName);
}

std::string paletteText(const HostColorList& list)
{
    std::string text = "GIMP Palette\nName: " + harmless(list.name()) + "\nColumns: 0\n";
    const auto& keys = list.allKeys();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const auto rgb = list.colorAtIndex(i).calibratedRGB().value_or(HostColor::Components{});
        appendNumber(text, nearestByte(rgb.red));
        text += ' ';
        appendNumber(text, nearestByte(rgb.green));
        text += ' ';
        appendNumber(text, nearestByte(rgb.blue));
        text += '\t' + harmless(keys[i]) + '\n';
    }
    return text;
}

}  // namespace vantorel
