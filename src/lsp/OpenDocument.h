#pragma once

#include "documents/ColorDocument.h"
#include "lsp/TextLines.h"
#include "snippets/SnippetReaders.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// The range of a text as the protocol has it.
struct PositionRange {
    Position start;
    Position end;
};

/// A document that the client has opened.
class OpenDocument {
public:
    /// `snippets` can be null.
    OpenDocument(std::string text, DocumentLanguage language,
                 std::shared_ptr<const SnippetReaders> snippets, PositionEncoding encoding);

    [[nodiscard]] const ColorDocument& colors() const { return _colors; }
    [[nodiscard]] const std::string& text() const { return _colors.text(); }
    [[nodiscard]] DocumentLanguage language() const { return _colors.language(); }
    [[nodiscard]] const SnippetReaders* snippets() const { return _snippets.get(); }
    [[nodiscard]] const TextLines& lines() const { return _lines; }
    [[nodiscard]] PositionEncoding encoding() const { return _encoding; }

    [[nodiscard]] std::int64_t version() const { return _version; }
    void setVersion(std::int64_t version) { _version = version; }

    void replace(TextRange range, std::string_view replacement);
    void replaceAll(std::string text);

    /// Returns the range of positions. One that ends before it starts is empty.
    [[nodiscard]] TextRange range(const PositionRange& positions) const;
    [[nodiscard]] std::size_t place(Position position) const
    {
        return _lines.place(text(), position, _encoding);
    }
    [[nodiscard]] PositionRange positions(TextRange range) const;

    /// A colour and its range in the document.
    struct Found {
        DocumentColor color;
        TextRange range;
    };
    /// Returns the innermost colour that contains or touches a range.
    [[nodiscard]] std::optional<Found> colorAt(TextRange range) const;
    /// Returns the colour with exactly this range.
    [[nodiscard]] std::optional<Found> colorWithRange(TextRange range) const;

private:
    std::shared_ptr<const SnippetReaders> _snippets;
    ColorDocument _colors;
    TextLines _lines;
    PositionEncoding _encoding;
    std::int64_t _version = 0;
};

}  // namespace vantorel
