#pragma once

#include "documents/DocumentColors.h"
#include "host/HostColor.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

class SheetLines;

/// A line of a file; both are counted, files from 0 and lines from 1.
struct SheetPlace {
    std::size_t file = 0;
    std::size_t line = 0;

    bool operator==(const SheetPlace&) const = default;
};

/// A colour of a style sheet, in 8 bits.
struct SheetColor {
    /// Red, green, blue and opacity.
    std::array<std::uint8_t, 4> bytes{};
    /// How often it is written, and used through a variable.
    std::size_t count = 0;
    SheetPlace first;
    /// The variables that are defined as this colour, such as "--accent", in the order of the
    /// files.
    std::vector<std::string> variables;

    [[nodiscard]] HostColor hostColor() const;
};

/// Two colours that can hardly be told apart.
struct NearDoubles {
    /// The places among the colours. The first is used more often.
    std::size_t first = 0;
    std::size_t second = 0;
    /// By CIEDE2000.
    double difference = 0;
};

/// A text colour and its background in one rule whose contrast is too low.
struct LowContrast {
    SheetPlace place;
    HostColor foreground = HostColor::blackColor();
    HostColor background = HostColor::blackColor();
    double ratio = 1;
};

/// The colours of style sheets, and what may be wrong with them.
///
///   - Colours that a variable holds count where the variable is used, and colours inside others,
///     as in color-mix(), count as well as the result.
///   - Two colours are near doubles if they have the same opacity and differ by less than 2.
///   - The colours of a rule are its last `color` and its last `background-color` or `background`,
///     of which each colour counts, as in a gradient. The limit is 4.5, AA of WCAG 2.2 for text of
///     normal size.
class StyleSheetReport {
public:
    static constexpr double leastDifference = 2;

    /// Adds a document. Files are counted in this order. Lines of `snippets` are found in code; it
    /// can be null. Takes linear time.
    void add(std::string_view text, DocumentLanguage language,
             const SnippetReaders* snippets = nullptr);

    /// The most frequent colours first.
    [[nodiscard]] std::vector<SheetColor> colors() const;
    /// The nearest first. `colors` are those of this report.
    [[nodiscard]] static std::vector<NearDoubles> nearDoubles(
        const std::vector<SheetColor>& colors);
    /// In the order of the files.
    [[nodiscard]] const std::vector<LowContrast>& lowContrasts() const { return _lowContrasts; }

private:
    void addContrasts(const DocumentColors& found, std::string_view text, const SheetLines& lines);

    std::size_t _files = 0;
    std::vector<SheetColor> _colors;
    std::map<std::array<std::uint8_t, 4>, std::size_t> _places;
    std::vector<LowContrast> _lowContrasts;
};

}  // namespace vantorel
