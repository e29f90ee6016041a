#include "lsp/OpenDocument.h"

#include <algorithm>

namespace vantorel {

OpenDocument::OpenDocument(std::string text, DocumentLanguage language,
                           std::shared_ptr<const SnippetReaders> snippets,
                           PositionEncoding encoding)
    : _snippets(std::move(snippets)),
      _colors(std::move(text), language, _snippets.get()),
      _lines(_colors.text()),
      _encoding(encoding)
{
}

void OpenDocument::replace(TextRange range, std::string_view replacement)
{
    _colors.replace(range, replacement);
    _lines.replace(text(), range, replacement.size());
}

void OpenDocument::replaceAll(std::string text)
{
    _colors = ColorDocument(std::move(text), language(), _snippets.get());
    _lines = TextLines(_colors.text());
}

TextRange OpenDocument::range(const PositionRange& positions) const
{
    const std::size_t begin = place(positions.start);
    return {begin, std::max(begin, place(positions.end))};
}

PositionRange OpenDocument::positions(TextRange range) const
{
    return {_lines.position(text(), range.begin, _encoding),
            _lines.position(text(), range.end, _encoding)};
}

std::optional<OpenDocument::Found> OpenDocument::colorAt(TextRange range) const
{
    std::optional<Found> found;
    _colors.forEachColor([&](const DocumentColor& color, TextRange where) {
        const bool contains = where.begin <= range.begin && range.end <= where.end;
        if (contains && (!found || where.length() <= found->range.length()))
            found = Found{color, where};
    });
    return found;
}

std::optional<OpenDocument::Found> OpenDocument::colorWithRange(TextRange range) const
{
    std::optional<Found> found;
    _colors.forEachColor([&](const DocumentColor& color, TextRange where) {
        if (where == range) found = Found{color, where};
    });
    return found;
}

}  // namespace vantorel
