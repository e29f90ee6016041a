#include "listformats/ListReader.h"

#include "colorlists/KeyedEntries.h"
#include "colorlists/PaletteFile.h"
#include "colortext/ByteColor.h"
#include "csscolor/CSSColorReader.h"
#include "listformats/ListFormats.h"
#include "listformats/SwatchExchange.h"
#include "text/Trimming.h"
#include "text/Unicode.h"

#include <nlohmann/json.hpp>

namespace vantorel {
namespace {

using Entries = std::vector<std::pair<HostColor, std::u16string>>;

struct Found {
    std::u16string name;
    Entries entries;
    std::size_t skipped = 0;
};

/// In bytes. A longer text is not a colour, only costly.
constexpr std::size_t longestColorText = std::size_t{64} << 10;

constexpr std::string_view blanks = " \t\r\n";

std::string_view withoutSurroundings(std::string_view text)
{
    return trimmed(text, [](char c) { return blanks.find(c) != std::string_view::npos; });
}

/// The colour of a text as lists hold it: opaque, on the 8-bit grid.
std::optional<HostColor> colorOf(std::string_view text)
{
    if (text.size() > longestColorText) return std::nullopt;
    const Result<CSSColor> css = readCSSColor(text);
    if (!css) return std::nullopt;
    return byteColorOf(css->color).hostColor().colorWithAlphaComponent(1);
}

std::string_view baseName(std::string_view path)
{
    return path.substr(path.rfind('/') + 1);
}

std::u16string nameFromFile(std::string_view fileName)
{
    const std::string_view base = baseName(fileName);
    return utf16FromUtf8(
        base.substr(0, base.rfind('.') == 0 ? std::string_view::npos : base.rfind('.')));
}

/// Custom properties and variables, wherever they stand. A comment on the line of a declaration, or
/// the first comment before all, is a name.
class StyleSheetReader {
public:
    explicit StyleSheetReader(std::string_view text) : _text(text) {}

    Found read()
    {
        while (_place < _text.size()) {
            if (rest().starts_with("/*")) {
                readComment("*/");
            } else if (rest().starts_with("//")) {
                readComment("\n");
            } else if (startsDeclaration()) {
                readDeclaration();
            } else {
                if (_text[_place] == '\n') _isBehindDeclaration = false;
                ++_place;
            }
        }
        return std::move(_found);
    }

private:
    [[nodiscard]] std::string_view rest() const { return _text.substr(_place); }
    [[nodiscard]] static bool isNameByte(char c)
    {
        return isLetterOrDigit(c) || c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
    }
    [[nodiscard]] bool startsDeclaration() const
    {
        const bool isBehindName = _place > 0 && isNameByte(_text[_place - 1]);
        return !isBehindName && (rest().starts_with("--") || rest().starts_with('$'));
    }

    void readComment(std::string_view closing)
    {
        const std::size_t begin = _place + 2;
        const std::size_t end = std::min(_text.find(closing, begin), _text.size());
        const std::u16string name =
            utf16FromUtf8(withoutSurroundings(_text.substr(begin, end - begin)));
        if (_isBehindDeclaration && !name.empty()) {
            _found.entries.back().second = name;
        } else if (_found.name.empty() && _found.entries.empty() &&
                   name.find(u'\n') == std::u16string::npos) {
            _found.name = name;
        }
        _isBehindDeclaration = false;
        // The line feed counts again.
        _place = closing == "\n" ? end : std::min(end + closing.size(), _text.size());
    }

    void readDeclaration()
    {
        _isBehindDeclaration = false;
        _place += rest().starts_with('$') ? std::size_t{1} : std::size_t{2};
        const std::size_t begin = _place;
        while (_place < _text.size() && isNameByte(_text[_place]))
            ++_place;
        const std::string_view name = _text.substr(begin, _place - begin);
        const std::size_t colon = _text.find_first_not_of(blanks, _place);
        if (colon == std::string_view::npos || _text[colon] != ':' || name.empty()) return;
        const std::size_t end = std::min(_text.find_first_of(";}\n", colon), _text.size());
        std::string_view value = withoutSurroundings(_text.substr(colon + 1, end - colon - 1));
        if (const std::size_t flag = value.find('!'); flag != std::string_view::npos)
            value = withoutSurroundings(value.substr(0, flag));
        _place = end < _text.size() && _text[end] == ';' ? end + 1 : end;
        if (const auto color = colorOf(value)) {
            _found.entries.emplace_back(*color, utf16FromUtf8(name));
            _isBehindDeclaration = true;
        } else {
            ++_found.skipped;
        }
    }

    std::string_view _text;
    std::size_t _place = 0;
    bool _isBehindDeclaration = false;
    Found _found;
};

/// Each line a colour, and behind it, parted by a tab or a blank behind a hex code, its name.
Found readLines(std::string_view text)
{
    Found found;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = withoutSurroundings(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty()) continue;
        const bool hasTab = line.find('\t') != std::string_view::npos;
        const std::size_t parting = hasTab                  ? line.find('\t')
                                    : line.starts_with('#') ? std::min(line.find(' '), line.size())
                                                            : line.size();
        if (const auto color = colorOf(withoutSurroundings(line.substr(0, parting)))) {
            found.entries.emplace_back(*color,
                                       utf16FromUtf8(withoutSurroundings(line.substr(parting))));
        } else {
            ++found.skipped;
        }
    }
    return found;
}

void addJsonEntry(Found& found, const nlohmann::ordered_json& value, const std::string& name)
{
    const auto color =
        value.is_string() ? colorOf(value.get_ref<const std::string&>()) : std::nullopt;
    if (color) {
        found.entries.emplace_back(*color, utf16FromUtf8(name));
    } else {
        ++found.skipped;
    }
}

std::string stringAt(const nlohmann::ordered_json& object, const char* key)
{
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? found->get<std::string>() : std::string();
}

/// `{"name": ..., "colors": [{"name": ..., "hex": ...}]}`, the array alone, or an object of names
/// and colours.
std::optional<Found> readJson(std::string_view text)
{
    // In the file's order, so that an object of names keeps it.
    const auto json = nlohmann::ordered_json::parse(text, nullptr, false);
    if (json.is_discarded()) return std::nullopt;
    Found found;
    const auto* colors = &json;
    if (json.is_object() && json.contains("colors")) {
        const auto name = json.find("name");
        if (name != json.end() && name->is_string())
            found.name = utf16FromUtf8(name->get_ref<const std::string&>());
        colors = &json["colors"];
    }
    if (colors->is_object()) {
        for (const auto& [name, value] : colors->items())
            addJsonEntry(found, value, name);
    } else if (colors->is_array()) {
        for (const auto& entry : *colors) {
            if (entry.is_object() && entry.contains("hex")) {
                addJsonEntry(found, entry["hex"], stringAt(entry, "name"));
            } else {
                addJsonEntry(found, entry, {});
            }
        }
    } else {
        return std::nullopt;
    }
    return found;
}

Result<ListFile> listOf(const Found& found, const std::string& fileName)
{
    if (found.entries.empty()) {
        return Message{phrase("it holds no colours"),
                       phrase("give a file of one of the forms of export but svg")};
    }
    ListFile file{
        std::make_shared<HostColorList>(found.name.empty() ? nameFromFile(fileName) : found.name),
        found.skipped};
    KeyedEntries entries(*file.list);
    for (const auto& [color, name] : found.entries)
        entries.add(color, name);
    return file;
}

}  // namespace

Result<ListFile> readColorList(std::string_view bytes, const std::string& fileName)
{
    const std::u16string fallbackName = nameFromFile(fileName);
    if (const auto palette = readPalette(bytes, fallbackName)) {
        if (palette->list->allKeys().empty())
            return Message{phrase("it is a palette without colours"),
                           phrase("give one with rows \"R G B NAME\"")};
        return ListFile{palette->list, palette->skipped.size() + palette->furtherSkippedLines};
    }
    if (bytes.starts_with("ASEF")) {
        const auto swatches = readSwatchExchange(bytes, fallbackName);
        if (!swatches)
            return Message{phrase("it ends before its last swatch"), phrase("give the whole file")};
        if (swatches->list->allKeys().empty()) {
            return Message{phrase("it holds no colours"),
                           phrase("give a file with colours of RGB, CMYK, Lab or grey")};
        }
        return ListFile{swatches->list, swatches->skipped};
    }
    const ListFormat* ofEnding = listFormatOfFile(fileName);
    const std::string_view form = ofEnding != nullptr ? ofEnding->name : std::string_view();
    if (form == "svg") {
        return Message{phrase("a picture does not tell its list"),
                       phrase("give a palette, as \"--format gpl\" makes it")};
    }
    const std::string_view content = withoutSurroundings(bytes);
    const bool isStyleSheet = form == "css" || form == "scss";
    if (!isStyleSheet && (content.starts_with('{') || content.starts_with('['))) {
        const auto json = readJson(content);
        if (!json) {
            return Message{
                phrase("it is no JSON list of colours"),
                phrase("write %1",
                       R"({"name": NAME, "colors": [{"name": NAME, "hex": "#ff8000"}]})")};
        }
        return listOf(*json, fileName);
    }
    return listOf(isStyleSheet ? StyleSheetReader(bytes).read() : readLines(bytes), fileName);
}

}  // namespace vantorel
