#pragma once

#include "colortext/ByteColor.h"
#include "host/HostColorList.h"
#include "result/Result.h"
#include "text/HexDigits.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// Reads colours as they are typed: a hex code, any form of CSS, what the picker's fields take, and
/// names of a colour list.
class ColorTextReader {
public:
    using FindList = std::function<std::shared_ptr<HostColorList>()>;

    /// `findList` gives the list whose names count, or null; it is asked once, and not before a
    /// text is nothing else.
    explicit ColorTextReader(FindList findList) : _findList(std::move(findList)) {}

    /// Texts of any length; takes time in proportion to it.
    [[nodiscard]] Result<ByteColor> read(std::string_view utf8);

private:
    [[nodiscard]] std::optional<HostColor> colorInList(const std::u16string& name);

    FindList _findList;
    bool _hasList = false;
    std::shared_ptr<HostColorList> _list;
};

/// Reads six or three hex digits behind "#" or without it, as `ColorTextReader` does, but fast.
/// Nothing for any other text, which may be a colour all the same.
[[nodiscard]] inline std::optional<ByteColor> readPlainHex(std::string_view text)
{
    if (text.starts_with('#')) text.remove_prefix(1);
    const auto digit = [text](std::size_t place) { return hexDigitValue(text[place]); };
    if (text.size() == 6) {
        const std::uint8_t all = digit(0) | digit(1) | digit(2) | digit(3) | digit(4) | digit(5);
        if (all > 15) return std::nullopt;
        const auto byte = [&](std::size_t place) {
            return static_cast<std::uint8_t>(digit(place) << 4 | digit(place + 1));
        };
        return ByteColor{byte(0), byte(2), byte(4)};
    }
    if (text.size() != 3 || (digit(0) | digit(1) | digit(2)) > 15) return std::nullopt;
    const auto doubled = [&](std::size_t place) {
        return static_cast<std::uint8_t>(digit(place) * 17);
    };
    return ByteColor{doubled(0), doubled(1), doubled(2)};
}

}  // namespace vantorel
