#pragma once

#include "documents/DocumentColors.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace vantorel {

/// What the columns of positions count.
enum class PositionEncoding { utf8, utf16 };

/// A place in a text as the protocol has it.
struct Position {
    std::size_t line = 0;
    std::size_t character = 0;
    bool operator==(const Position&) const = default;
};

/// Counts the columns of a text in UTF-8, which may be ill-formed.
[[nodiscard]] std::size_t columnsOf(std::string_view text, PositionEncoding encoding);

/// The beginnings of the lines of a text. A line ends with a line feed, a carriage return, or both.
class TextLines {
public:
    explicit TextLines(std::string_view text);

    /// Follows an edit. `text` is the new text, in which `length` bytes have replaced the range of
    /// the old one.
    void replace(std::string_view text, TextRange oldRange, std::size_t length);

    /// Returns the place of a position. One after the end of its line is that end, without the
    /// line's own end; one after the last line is the end of the text.
    [[nodiscard]] std::size_t place(std::string_view text, Position position,
                                    PositionEncoding encoding) const;
    [[nodiscard]] Position position(std::string_view text, std::size_t place,
                                    PositionEncoding encoding) const;

    /// The place of the first byte of each line. There is always one.
    [[nodiscard]] const std::vector<std::size_t>& begins() const { return _begins; }

    bool operator==(const TextLines&) const = default;

private:
    std::vector<std::size_t> _begins;
};

/// Finds the positions of places that follow each other, in linear time for the whole text.
class PositionWalker {
public:
    PositionWalker(std::string_view text, const TextLines& lines, PositionEncoding encoding)
        : _text(text), _begins(lines.begins()), _encoding(encoding)
    {
    }

    /// A place shortly before that of the last call is found quickly, too.
    [[nodiscard]] Position to(std::size_t place);

private:
    std::string_view _text;
    const std::vector<std::size_t>& _begins;
    PositionEncoding _encoding;
    std::size_t _place = 0;
    Position _position;
};

}  // namespace vantorel
