#pragma once

#include "documents/DocumentPart.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The text of a document that is being edited, and its colours. An edit scans only the parts of
/// the text that it touches, and those after them up to a place at which the scan is as it was.
class ColorDocument {
public:
    /// The snippets are searched for in code. They can be null, and must outlive the document.
    ColorDocument(std::string text, DocumentLanguage language,
                  const SnippetReaders* snippets = nullptr);

    [[nodiscard]] const std::string& text() const { return _text; }
    [[nodiscard]] DocumentLanguage language() const { return _language; }

    /// Replaces a range, which must be in the text.
    void replace(TextRange range, std::string_view replacement);

    /// Calls a function with each colour and its range in the document, sorted by their beginnings.
    template <class Function>
    void forEachColor(const Function& function) const
    {
        std::size_t begin = 0;
        for (const auto& part : _parts) {
            for (const DocumentColor& color : part->colors) {
                if (color.color.isPattern()) continue;
                function(color, TextRange{begin + color.range.begin, begin + color.range.end});
            }
            begin += part->length;
        }
    }

    /// A part and its beginning in the document.
    struct Place {
        const DocumentPart* part = nullptr;
        std::size_t begin = 0;
    };
    /// Returns the part that contains a place. The end of the text is in the last one.
    [[nodiscard]] Place partAt(std::size_t place) const;

    /// How many bytes the last change scanned.
    [[nodiscard]] std::size_t scannedLength() const { return _scannedLength; }

private:
    void appendParts(std::vector<std::unique_ptr<DocumentPart>>& parts, std::size_t begin,
                     std::size_t end);
    void resolveVariables(std::size_t first, std::size_t last);

    std::string _text;
    DocumentLanguage _language;
    const SnippetReaders* _snippets;
    /// Together they are the whole text. There is always one.
    std::vector<std::unique_ptr<DocumentPart>> _parts;
    std::size_t _scannedLength = 0;
};

}  // namespace vantorel
