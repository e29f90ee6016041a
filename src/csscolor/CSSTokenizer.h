#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantorel {

enum class CSSTokenKind {
    name,
    /// A name directly followed by "(".
    function,
    /// "#" followed by the characters of a name.
    hash,
    number,
    percentage,
    /// A number directly followed by a unit.
    dimension,
    comma,
    slash,
    colon,
    semicolon,
    openParenthesis,
    closeParenthesis,
    /// A comment that is not closed. It extends to the end of the text.
    unclosedComment,
    /// Any other single character.
    other,
    end,
};

struct CSSToken {
    CSSTokenKind kind = CSSTokenKind::end;
    /// The value of a number, percentage (50 for "50%") or dimension. Always finite, see
    /// `largestCSSNumber`.
    double number = 0;
    /// The name, the text after the "#", or the unit. ASCII letters are in lower case and escapes
    /// are resolved.
    std::u16string name;
    /// The range of the token in the text, in UTF-16 units.
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Larger numbers are replaced by this one, and tiny fractions by 0. It is the limit of single
/// precision, in which browsers store numbers. With it, all colour conversions stay finite in
/// double precision.
inline constexpr double largestCSSNumber = 3.4028234663852886e38;

/// Splits a text into the tokens of CSS Syntax 3, section 4, as far as colours need them: strings
/// and URLs become single characters. Comments and white space separate tokens and are not
/// returned. Takes linear time for the whole text.
class CSSTokenizer {
public:
    /// `text` must outlive the tokenizer.
    explicit CSSTokenizer(std::u16string_view text) : _text(text) {}

    /// Reads the next token into `token`, whose name keeps its memory.
    void readNext(CSSToken& token);

    /// Skips white space and comments. Returns false at a comment that is not closed.
    bool skipBlanks();
    [[nodiscard]] std::size_t place() const { return _place; }
    void moveTo(std::size_t place) { _place = place; }

private:
    [[nodiscard]] char16_t at(std::size_t index) const;
    [[nodiscard]] bool startsEscape(std::size_t index) const;
    [[nodiscard]] bool startsName(std::size_t index) const;
    [[nodiscard]] bool startsNumber(std::size_t index) const;
    void readName(std::u16string& name);
    void appendEscaped(std::u16string& name);
    void skipNumber();

    std::u16string_view _text;
    std::size_t _place = 0;
};

/// Whether a character is a space, tab, line feed, carriage return or form feed.
[[nodiscard]] bool isCSSWhiteSpace(char16_t character);

}  // namespace vantorel
