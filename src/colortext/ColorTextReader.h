#pragma once

#include "colortext/ByteColor.h"
#include "csscolor/CSSColorReader.h"
#include "host/HostColorList.h"
#include "result/Result.h"
#include "snippets/SnippetReaders.h"
#include "text/HexDigits.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Reads colours that a user types: hex codes, all forms of CSS, the texts that the picker's fields
/// accept, names of a colour list, and lines of snippets. What begins as a function of CSS must be
/// whole and right: the picker's fields guess what "rgb(1 2 3 4)" means; a program reports
/// it.
class ColorTextReader {
public:
    using FindList = std::function<std::shared_ptr<HostColorList>()>;

    using FindSnippets = std::function<const SnippetReaders*()>;

    /// `findList` returns the list whose names are accepted, or null. It is called at most once,
    /// when a text has none of the other forms. `findSnippets` returns the snippets whose lines are
    /// accepted, or null; it is called for each text that is not CSS, a hex code or a name.
    explicit ColorTextReader(FindList findList, CSSTheme theme = CSSTheme::unknown,
                             FindSnippets findSnippets = {})
        : _findList(std::move(findList)), _theme(theme), _findSnippets(std::move(findSnippets))
    {
    }

    /// Takes linear time for texts of any length.
    [[nodiscard]] Result<ByteColor> read(std::string_view utf8);
    /// Like `read`, but the colour is neither rounded nor mapped into sRGB.
    [[nodiscard]] Result<CSSColor> readUnrounded(std::string_view utf8);

private:
    /// Reads the texts that are not CSS.
    [[nodiscard]] std::optional<HostColor> readOtherForm(std::u16string_view text);
    [[nodiscard]] std::optional<HostColor> colorNamed(const std::u16string& name);

    FindList _findList;
    CSSTheme _theme;
    FindSnippets _findSnippets;
    bool _hasList = false;
    std::shared_ptr<HostColorList> _list;
};

/// Reads three hex digits, as `readPlainHex` does. A function of its own, so that the compiler
/// inlines the other, which reads each line of a long stream.
[[nodiscard]] std::optional<ByteColor> readShortHex(std::string_view digits);

/// Reads six or three hex digits, with or without "#". The result is that of `ColorTextReader`, but
/// faster. Returns `std::nullopt` for any other text, even if it is a colour.
[[nodiscard]] inline std::optional<ByteColor> readPlainHex(std::string_view text)
{
    if (text.starts_with('#')) text.remove_prefix(1);
    if (text.size() != 6) return readShortHex(text);
    const auto digit = [text](std::size_t place) { return hexDigitValue(text[place]); };
    const std::uint8_t all = digit(0) | digit(1) | digit(2) | digit(3) | digit(4) | digit(5);
    if (all > 15) return std::nullopt;
    const auto byte = [&](std::size_t place) {
        return static_cast<std::uint8_t>(digit(place) << 4 | digit(place + 1));
    };
    return ByteColor{byte(0), byte(2), byte(4)};
}

}  // namespace vantorel
