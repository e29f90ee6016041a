#pragma once

#include "snippets/SnippetReader.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace vantorel {

/// A line of a snippet in a text.
struct SnippetMatch {
    /// The range, in UTF-16 units.
    std::size_t begin = 0;
    std::size_t end = 0;
    /// With the opacity; 1 if the snippet has none.
    HostColor color = HostColor::blackColor();
    /// The place of the snippet among those of the readers.
    std::size_t snippet = 0;
};

/// Reads the lines of several snippets. Where more than one matches, the longest match counts, and
/// of equal ones that of the first snippet. Takes time in proportion to the length of a text.
class SnippetReaders {
public:
    /// Snippets that cannot be read are ignored.
    explicit SnippetReaders(std::vector<QTXCodeSnippet> snippets);

    [[nodiscard]] const std::vector<QTXCodeSnippet>& snippets() const { return _snippets; }

    /// Matches a line that begins at a place. Ignores snippets without text of their own, such as
    /// "%d, %d, %d".
    [[nodiscard]] std::optional<SnippetMatch> matchAt(std::u16string_view text,
                                                      std::size_t place) const;
    /// Returns the lines in a text, from its beginning, without overlaps. The same snippets are
    /// ignored.
    [[nodiscard]] std::vector<SnippetMatch> matchesIn(std::u16string_view text) const;
    /// Matches a whole text, apart from blanks and line feeds at its ends, with any snippet.
    [[nodiscard]] std::optional<SnippetMatch> matchOf(std::u16string_view text) const;

private:
    using Places = std::vector<std::uint16_t>;

    void matchWith(const Places& readers, std::u16string_view text, std::size_t place,
                   std::optional<SnippetMatch>& best) const;

    std::vector<QTXCodeSnippet> _snippets;
    std::vector<SnippetReader> _readers;
    /// The readers with text of their own, by the unit with which their lines begin.
    std::array<Places, 128> _byFirstUnit;
    /// Those whose lines begin with a value, a name, or a unit outside ASCII.
    Places _others;
};

}  // namespace vantorel
