#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vantorel {

enum class CSSTokenKind {
    name,
    /// A name with "(" right after it.
    function,
    /// "#" with the characters of a name after it.
    hash,
    number,
    percentage,
    /// A number with a unit right after it.
    dimension,
    comma,
    slash,
    colon,
    semicolon,
    openParenthesis,
    closeParenthesis,
    /// A comment that the text does not close. Nothing follows it.
    unclosedComment,
    /// Any other single character.
    other,
    end,
};

struct CSSToken {
    CSSTokenKind kind = CSSTokenKind::end;
    /// Of numbers, percentages (50 for "50%") and dimensions. Always finite, see
    /// `largestCSSNumber`.
    double number = 0;
    /// The name, what follows the "#", or the unit: ASCII letters in lower case, escapes resolved.
    std::u16string name;
    /// Where the token stands in the text.
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Larger numbers count as this one, and far smaller fractions as 0. It is that of single
/// precision, which browsers store, and small enough that every colour conversion stays finite in
/// double.
inline constexpr double largestCSSNumber = 3.4028234663852886e38;

/// Cuts a text into the tokens of CSS Syntax 3, section 4, as far as colours need them: strings and
/// URLs fall into single characters. Comments and white space part tokens and are not returned.
/// Takes linear time for the whole text.
class CSSTokenizer {
public:
    /// `text` must outlive the tokenizer.
    explicit CSSTokenizer(std::u16string_view text) : _text(text) {}

    [[nodiscard]] CSSToken next();

    /// Goes on behind white space and comments; false at a comment without an end.
    bool skipBlanks();
    [[nodiscard]] std::size_t place() const { return _place; }
    void moveTo(std::size_t place) { _place = place; }

private:
    [[nodiscard]] char16_t at(std::size_t index) const;
    [[nodiscard]] bool startsEscape(std::size_t index) const;
    [[nodiscard]] bool startsName(std::size_t index) const;
    [[nodiscard]] bool startsNumber(std::size_t index) const;
    [[nodiscard]] std::u16string readName();
    void appendEscaped(std::u16string& name);
    void skipNumber();

    std::u16string_view _text;
    std::size_t _place = 0;
};

/// Space, tab, line feed, carriage return and form feed.
[[nodiscard]] bool isCSSWhiteSpace(char16_t character);

}  // namespace vantorel
