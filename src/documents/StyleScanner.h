#pragma once

#include "documents/DocumentPart.h"
#include "documents/StyleBlocks.h"
#include "documents/StyleBrackets.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vantorel {

/// Finds the colours of CSS, SCSS and Less, also of single declarations and values in other
/// documents.
///
/// A statement ends with ";", "{" or "}". Only then is it known whether it was a selector or a
/// declaration, so the colours of a statement are candidates until its end. An unclosed parenthesis
/// ends with its statement, so that an expression that is being typed does not hide the rest of the
/// file.
class StyleScanner {
public:
    /// `text` begins with the part. Both must outlive the scanner.
    StyleScanner(std::string_view text, DocumentLanguage language, DocumentPart& part)
        : _text(text), _language(language), _part(part), _blocks(part.blocks)
    {
    }

    /// Scans rules up to `end`, or up to the end of a statement outside of all blocks at or after
    /// `leastEnd`. Returns the end.
    std::size_t scanRules(std::size_t begin, std::size_t end, std::size_t leastEnd);
    void scanRules(TextRange range) { scanRules(range.begin, range.end, range.end); }
    /// Scans a list of declarations, such as the value of a `style` attribute.
    void scanDeclarations(TextRange range);
    /// Scans the value of the property or attribute with this name.
    void scanValue(TextRange name, TextRange value);

private:
    enum class Kind : std::uint8_t { hash, name, function, variable };
    /// What may be a colour.
    struct Candidate {
        std::uint32_t begin;
        /// 0 while a function is open.
        std::uint32_t end;
        Kind kind;
        bool isInBrackets;
        bool usesVariables;
    };
    /// Which candidates of a statement count.
    enum class Kept : std::uint8_t { none, all, inBrackets, inValue };

    [[nodiscard]] char at(std::size_t place) const { return place < _end ? _text[place] : '\0'; }
    [[nodiscard]] bool startsLineComment() const;
    void scanStatements(std::size_t leastEnd);
    void scanOne();
    void skipComment();
    void skipString();
    void skipAddress();
    void readNumber();
    void readName();
    void readFunction(std::size_t begin);
    void readHash();
    void readVariable();
    void addCandidate(std::size_t begin, Kind kind, bool usesVariables);
    [[nodiscard]] bool isFollowedByColon() const;
    void closeBracket();

    void endStatement(char end);
    [[nodiscard]] Kept keptCandidates(char end) const;
    [[nodiscard]] TextRange nameOfDeclaration() const;
    void keepCandidates(Kept kept, std::uint32_t declaration);
    void keep(const Candidate& candidate, std::uint32_t declaration);

    std::string_view _text;
    DocumentLanguage _language;
    DocumentPart& _part;
    std::size_t _place = 0;
    std::size_t _end = 0;
    StyleBlocks _blocks;

    // Of the current statement.
    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    std::size_t _start = none;
    std::size_t _colon = none;
    std::size_t _flag = none;
    bool _isDefault = false;
    StyleBrackets _brackets;
    std::vector<Candidate> _candidates;
};

}  // namespace vantorel
