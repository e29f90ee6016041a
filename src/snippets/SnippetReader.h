#pragma once

#include "host/HostColor.h"
#include "snippets/NumberPattern.h"
#include "snippets/QTXCodeSnippet.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace vantorel {

/// The largest number of UTF-16 units of a format that is read back.
inline constexpr std::size_t longestReadableFormat = 2000;

/// Reads the lines that a snippet writes. The reader is made from the format once; a match takes
/// time in proportion to its length.
///
///   - The text of the format must be there, letter by letter. Blanks and line feeds may be added
///     or left out beside ( ) [ ] { } < > , ; : = / and *, and where the format has a blank, any
///     number may stand; between two words there must be one.
///   - The word "accent" in a format is any name, because the user gives each colour its own.
///   - Hex digits may be in either case. Their number must be the one that the format writes.
///   - Numbers may have fewer or more decimals. A number that the format writes for a step of the
///     8-bit grid is that step. In a format of fractions, one number at least must have a decimal
///     point, because 1, 0, 0 can be meant as bytes.
///   - A number outside its range, such as a red of 256, is no match.
///   - A line in which it is not clear where a value ends and the next begins is no match.
class SnippetReader {
public:
    explicit SnippetReader(const QTXCodeSnippet& snippet);

    /// Whether the format has all values of a colour in a form that can be read.
    [[nodiscard]] bool canRead() const { return !_steps.empty(); }
    /// Whether the format has text by which a line can be found among other text. "%d, %d, %d" has
    /// none.
    [[nodiscard]] bool hasOwnText() const { return _hasOwnText; }
    /// Returns the unit that each line begins with; `std::nullopt` if it begins with a value or a
    /// name.
    [[nodiscard]] std::optional<char16_t> firstUnit() const;

    struct Match {
        /// The place after the match.
        std::size_t end = 0;
        HostColor color = HostColor::blackColor();
    };
    /// Matches the text at a place, where a word or number must begin if the line begins with one.
    /// It must also end where the line does. `std::nullopt` if the snippet did not write it.
    [[nodiscard]] std::optional<Match> matchAt(std::u16string_view text, std::size_t place) const;

    /// What prevents a value from being read, always or sometimes.
    struct Obstacle {
        enum class Kind : std::uint8_t {
            tooLong,
            unknownForm,
            missing,
            character,
            wholeNumber,
            cutText,
            highBits,
            notSeparated,
        };
        Kind kind = Kind::unknownForm;
        SnippetValue::Part part = SnippetValue::Part::red;
    };
    [[nodiscard]] const std::vector<Obstacle>& obstacles() const { return _obstacles; }

private:
    enum class Blanks : std::uint8_t { none, allowed, required };
    struct Step {
        enum class Kind : std::uint8_t { unit, name, number };

        Kind kind = Kind::unit;
        Blanks blanksBefore = Blanks::none;
        /// The unit, or a digit for a name or number, which are words as well.
        char16_t edge = u'0';
        /// The place of a number among the values of the form.
        std::uint8_t number = 0;
        /// Whether the number ends where another value or a unit that could continue it begins.
        bool touchesNext = false;
    };
    struct Matching;

    void compile(std::u16string_view format);
    void addNumber(const FormatConversion& conversion);
    void addText(std::u16string_view text);
    void addStep(Step step);
    void findTouchingNumbers();
    void findSuffix();
    void findNeedOfPoint();
    [[nodiscard]] bool hasColor() const;
    void add(Obstacle::Kind kind, SnippetValue::Part part);
    [[nodiscard]] bool mayBeginAt(std::u16string_view text, std::size_t place) const;
    [[nodiscard]] bool mayEndAt(std::u16string_view text, std::size_t place) const;
    void follow(std::size_t step, std::size_t place, Matching& matching) const;
    void followNumber(std::size_t step, std::size_t place, Matching& matching) const;
    void finish(std::size_t place, Matching& matching) const;

    std::span<const SnippetValue> _values;
    std::vector<NumberPattern> _numbers;
    std::vector<Step> _steps;
    std::vector<Obstacle> _obstacles;
    bool _hasBlank = false;
    bool _hasOwnText = false;
    bool _endsInSuffix = false;
    bool _needsPoint = false;
};

}  // namespace vantorel
