#pragma once

#include "csscolor/CSSColorReader.h"
#include "documents/DocumentLanguage.h"
#include "host/HostColor.h"
#include "snippets/SnippetReaders.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vantorel {

/// A range of bytes in a text: from `begin` up to, but excluding, `end`.
struct TextRange {
    std::size_t begin = 0;
    std::size_t end = 0;

    [[nodiscard]] std::size_t length() const { return end - begin; }
    [[nodiscard]] std::string_view in(std::string_view text) const
    {
        return text.substr(begin, end - begin);
    }
    bool operator==(const TextRange&) const = default;
};

/// How a colour is written in a document.
enum class WrittenForm : std::uint8_t {
    /// A form of CSS: see `DocumentColor::cssForm`.
    css,
    /// A variable: `var(--x)`, `$x` or `@x`.
    variable,
    /// `0xRRGGBB` or `0xAARRGGBB`.
    hexNumber,
    /// The line of a snippet: see `DocumentColor::snippet`.
    snippet,
};

/// The index of no block or declaration.
inline constexpr std::uint32_t notInDocument = 0xFFFFFFFF;

struct DocumentColor {
    /// The text that denotes the colour, and that another text can replace.
    TextRange range;
    HostColor color = HostColor::blackColor();
    WrittenForm form = WrittenForm::css;
    CSSColorForm cssForm = CSSColorForm::named;
    /// Whether the colour depends on variables.
    bool usesVariables = false;
    /// The snippet's place among those that were searched for.
    std::uint16_t snippet = 0;
    /// The innermost rule, as an index of `DocumentColors::blocks`, and the declaration in whose
    /// value the colour is, as an index of `declarations`; or `notInDocument`.
    std::uint32_t block = notInDocument;
    std::uint32_t declaration = notInDocument;
};

/// What is between "{" and "}" in CSS, or the value of a `style` attribute.
struct DocumentBlock {
    /// Without the braces.
    TextRange range;
    /// The block around it, or `notInDocument`.
    std::uint32_t parent = notInDocument;
};

/// A property or a variable, and its value.
struct DocumentDeclaration {
    TextRange name;
    TextRange value;
    std::uint32_t block = notInDocument;
};

struct DocumentColors {
    /// Sorted by their beginnings. A colour can be part of another one, as in color-mix().
    std::vector<DocumentColor> colors;
    /// Those that contain colours, and others.
    std::vector<DocumentBlock> blocks;
    std::vector<DocumentDeclaration> declarations;
};

/// Finds the colours of a document: in CSS those of all forms that `readCSSColor` reads, and
/// variables that hold colours; in code hex numbers, strings with colours of CSS, and the lines of
/// `snippets`, if they are given. Names of colours are found only in values of CSS. Comments,
/// addresses, selectors and identifiers contain no colours.
///
/// Takes linear time for any text, which may be ill-formed.
[[nodiscard]] DocumentColors findColors(std::string_view text, DocumentLanguage language,
                                        const SnippetReaders* snippets = nullptr);

}  // namespace vantorel
