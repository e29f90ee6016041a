#pragma once

#include "documents/DocumentPart.h"

#include <cstddef>
#include <string_view>

namespace vantorel {

/// Finds the colours of HTML, SVG, Vue and Svelte: in style sheets, in attributes that hold styles
/// or colours, and in strings of scripts.
class MarkupScanner {
public:
    /// `text` begins with the part. Both must outlive the scanner.
    /// The snippets, which can be null, must, too.
    MarkupScanner(std::string_view text, DocumentLanguage language, const SnippetReaders* snippets,
                  DocumentPart& part)
        : _text(text), _language(language), _snippets(snippets), _part(part)
    {
    }

    /// Scans the text up to its end, or up to a tag at or after `leastEnd`. Returns the end.
    std::size_t scan(std::size_t leastEnd);

private:
    struct Attribute {
        TextRange name;
        TextRange value;
    };

    [[nodiscard]] char at(std::size_t place) const
    {
        return place < _text.size() ? _text[place] : '\0';
    }
    void skipPast(std::string_view end, std::size_t from);
    bool readSnippet();
    void readTag();
    [[nodiscard]] Attribute readAttribute();
    void skipBraces();
    void scanAttribute(std::string_view tag, const Attribute& attribute);
    void scanContent(std::string_view tag, DocumentLanguage styles);

    std::string_view _text;
    DocumentLanguage _language;
    const SnippetReaders* _snippets;
    DocumentPart& _part;
    std::size_t _place = 0;
};

}  // namespace vantorel
