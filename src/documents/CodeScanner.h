#pragma once

#include "documents/DocumentPart.h"
#include "documents/SnippetLines.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace vantorel {

struct CodeSyntax;

/// Finds the colours of program code: hex numbers, colours of CSS in strings, and in JavaScript
/// also style sheets in templates such as css`...`.
class CodeScanner {
public:
    /// `text` begins with the part. Both must outlive the scanner.
    /// The snippets, which can be null, must, too.
    CodeScanner(std::string_view text, DocumentLanguage language, const SnippetReaders* snippets,
                DocumentPart& part);

    /// Scans the text up to its end, or up to the beginning of a line at or after `leastEnd` that
    /// is in no string or comment. Returns the end.
    std::size_t scan(std::size_t leastEnd);
    void scanRange(TextRange range);

private:
    [[nodiscard]] char at(std::size_t place) const { return place < _end ? _text[place] : '\0'; }
    [[nodiscard]] bool startsWith(std::string_view text) const
    {
        return _text.substr(_place, std::min(text.size(), _end - _place)) == text;
    }
    std::size_t scanCode(std::size_t leastEnd);
    void beginLine();
    bool readSnippet();
    bool skipComment();
    void readQuote();
    void readString(char quote);
    void readTripleString(char quote);
    void readTemplate();
    void skipRegularExpression();
    void readNumber();
    [[nodiscard]] bool isTemplateOfStyles() const;
    [[nodiscard]] std::size_t endOfStyles() const;

    void scanString(TextRange content);
    void readHash(TextRange content, std::size_t& place);
    void readWord(TextRange content, std::size_t& place);
    void add(TextRange range, const HostColor& color, WrittenForm form, CSSColorForm cssForm);
    [[nodiscard]] std::string_view nameBefore(std::size_t place) const;
    [[nodiscard]] bool mayBeIdentifier(TextRange code) const;

    std::string_view _text;
    DocumentLanguage _language;
    const CodeSyntax& _syntax;
    const SnippetReaders* _snippets;
    DocumentPart& _part;
    std::size_t _place = 0;
    std::size_t _end;
    /// Of each template string around the current place: the depth of braces in its "${".
    std::vector<std::size_t> _holes;
    /// The lines of snippets in the current line of the text, some of which may be in comments.
    std::vector<SnippetLine> _snippetLines;
    std::size_t _nextSnippetLine = 0;
    /// The last byte that was not blank.
    char _previous = '\0';
};

}  // namespace vantorel
