#include "documents/ColorDocument.h"

#include "documents/CodeScanner.h"
#include "documents/MarkupScanner.h"
#include "documents/StyleScanner.h"
#include "documents/VariableResolver.h"

#include <algorithm>
#include <iterator>

namespace vantorel {
namespace {

/// The least length of a part: an edit scans this much and a little more.
constexpr std::size_t partLength = 8192;

bool hasDefinitions(const std::unique_ptr<DocumentPart>& part)
{
    return !part->definitions.empty();
}

}  // namespace

DocumentPart scanPart(std::string_view text, DocumentLanguage language,
                      const SnippetReaders* snippets, std::size_t leastLength)
{
    DocumentPart part;
    if (isStyleSheet(language)) {
        part.length = StyleScanner(text, language, part).scanRules(0, text.size(), leastLength);
    } else if (isMarkup(language)) {
        part.length = MarkupScanner(text, language, snippets, part).scan(leastLength);
    } else {
        part.length = CodeScanner(text, language, snippets, part).scan(leastLength);
    }
    return part;
}

DocumentColors findColors(std::string_view text, DocumentLanguage language,
                          const SnippetReaders* snippets)
{
    DocumentPart part = scanPart(text, language, snippets, text.size());
    if (part.usesVariables) {
        const std::vector<PlacedPart> parts{{&part, 0}};
        VariableResolver resolver(text, parts);
        for (DocumentColor& color : part.colors) {
            if (!color.usesVariables) continue;
            const auto literal = resolver.resolve(0, color);
            if (!literal) continue;
            color.color = literal->color;
            color.cssForm = literal->form;
        }
        std::erase_if(part.colors,
                      [](const DocumentColor& color) { return color.color.isPattern(); });
    }
    return {std::move(part.colors), std::move(part.blocks), std::move(part.declarations)};
}

ColorDocument::ColorDocument(std::string text, DocumentLanguage language,
                             const SnippetReaders* snippets)
    : _text(std::move(text)), _language(language), _snippets(snippets)
{
    appendParts(_parts, 0, _text.size());
    resolveVariables(0, _parts.size());
}

/// Scans at least the text from `begin` to `end`, and appends its parts.
void ColorDocument::appendParts(std::vector<std::unique_ptr<DocumentPart>>& parts,
                                std::size_t begin, std::size_t end)
{
    do {
        const std::size_t rest = end - begin;
        const std::size_t least = rest < 2 * partLength ? rest : partLength;
        const std::string_view text = std::string_view(_text).substr(begin);
        parts.push_back(
            std::make_unique<DocumentPart>(scanPart(text, _language, _snippets, least)));
        begin += parts.back()->length;
        _scannedLength += parts.back()->length;
    } while (begin < end);
}

void ColorDocument::replace(TextRange range, std::string_view replacement)
{
    std::size_t first = 0;
    std::size_t begin = 0;
    while (first + 1 < _parts.size() && begin + _parts[first]->length <= range.begin)
        begin += _parts[first++]->length;
    // The old parts from `first` up to `last`, which ends at `oldEnd`, are replaced.
    std::size_t last = first + 1;
    std::size_t oldEnd = begin + _parts[first]->length;
    while (last < _parts.size() && oldEnd < range.end)
        oldEnd += _parts[last++]->length;
    _text.replace(range.begin, range.length(), replacement);
    _scannedLength = 0;
    const auto shifted = [&](std::size_t place) {
        return place - range.length() + replacement.size();
    };
    std::vector<std::unique_ptr<DocumentPart>> parts;
    std::size_t end = begin;
    for (;;) {
        appendParts(parts, end, shifted(oldEnd));
        end = begin;
        for (const auto& part : parts)
            end += part->length;
        while (last < _parts.size() && shifted(oldEnd) < end)
            oldEnd += _parts[last++]->length;
        if (shifted(oldEnd) == end) break;
    }
    const bool changesDefinitions =
        std::any_of(parts.begin(), parts.end(), hasDefinitions) ||
        std::any_of(_parts.begin() + static_cast<std::ptrdiff_t>(first),
                    _parts.begin() + static_cast<std::ptrdiff_t>(last), hasDefinitions);
    const std::size_t added = parts.size();
    const auto place = _parts.erase(_parts.begin() + static_cast<std::ptrdiff_t>(first),
                                    _parts.begin() + static_cast<std::ptrdiff_t>(last));
    _parts.insert(place, std::make_move_iterator(parts.begin()),
                  std::make_move_iterator(parts.end()));
    if (changesDefinitions) {
        resolveVariables(0, _parts.size());
    } else {
        resolveVariables(first, first + added);
    }
}

/// Resolves the variables in the parts from `first` up to `last`.
void ColorDocument::resolveVariables(std::size_t first, std::size_t last)
{
    const auto usesVariables = [](const auto& part) { return part->usesVariables; };
    if (std::none_of(_parts.begin() + static_cast<std::ptrdiff_t>(first),
                     _parts.begin() + static_cast<std::ptrdiff_t>(last), usesVariables)) {
        return;
    }
    std::vector<PlacedPart> placed;
    std::size_t begin = 0;
    for (const auto& part : _parts) {
        placed.push_back({part.get(), begin});
        begin += part->length;
    }
    VariableResolver resolver(_text, placed);
    for (std::size_t i = first; i < last; ++i) {
        for (DocumentColor& color : _parts[i]->colors) {
            if (!color.usesVariables) continue;
            const auto literal = resolver.resolve(i, color);
            color.color = literal ? literal->color : HostColor::patternColor();
            if (literal) color.cssForm = literal->form;
        }
    }
}

ColorDocument::Place ColorDocument::partAt(std::size_t place) const
{
    std::size_t begin = 0;
    for (std::size_t i = 0;; ++i) {
        const DocumentPart& part = *_parts[i];
        if (i + 1 == _parts.size() || place < begin + part.length) return {&part, begin};
        begin += part.length;
    }
}

}  // namespace vantorel
