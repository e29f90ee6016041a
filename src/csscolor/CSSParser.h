#pragma once

#include "csscolor/CSSTokenizer.h"
#include "result/Message.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// What the readers of all parts of a colour share: the current token, and the first error. Their
/// functions return `std::nullopt` or false after setting the error.
class CSSParser {
public:
    /// `text` must outlive the parser. Call `advance` to read the first token.
    explicit CSSParser(std::u16string_view text) : _text(text), _tokens(text) {}

    [[nodiscard]] const CSSToken& token() const { return _token; }
    [[nodiscard]] bool is(CSSTokenKind kind) const { return _token.kind == kind; }
    /// Whether the token is a name. `name` must be in lower case.
    [[nodiscard]] bool isName(std::u16string_view name) const;
    /// Whether the token is one character such as "+".
    [[nodiscard]] bool isCharacter(char16_t character) const;
    void advance()
    {
        _previousEnd = _token.end;
        _tokens.readNext(_token);
    }
    /// Skips a token of a kind. Returns false if the token is another one.
    bool skip(CSSTokenKind kind)
    {
        if (!is(kind)) return false;
        advance();
        return true;
    }
    /// Skips the ")" of a function, which has a name such as "rgb". Returns false, with an error,
    /// if there is another token.
    bool readClosing(std::u16string_view function, std::u16string_view example);
    /// Whether there is white space on both sides of the token.
    [[nodiscard]] bool isSpacedApart() const;

    /// The token as it is written.
    [[nodiscard]] std::u16string_view source() const;
    /// The token for a message. Long ones are shortened.
    [[nodiscard]] std::u16string quoted() const;
    /// The name of a function for a message, without its parenthesis.
    [[nodiscard]] std::u16string quotedFunction() const;
    /// The text from the token on, for a message.
    [[nodiscard]] std::u16string quotedRest() const;

    std::nullopt_t fail(Phrase what, Phrase remedy = {});
    /// Fails because a comment is not closed, if that is the token, or with the phrases.
    std::nullopt_t failAtToken(Phrase what, Phrase remedy = {});
    /// Fails because the text ends before the ")" of a function.
    std::nullopt_t failUnclosed(std::u16string_view function);
    [[nodiscard]] bool hasFailed() const { return _error.has_value(); }
    /// Returns the error, which must have been set.
    [[nodiscard]] Message takeError() { return *std::move(_error); }

    /// Counts how deep functions and parentheses are nested while it exists. If that is too deep
    /// for the stack, it is false and the parser has failed.
    class Nesting {
    public:
        explicit Nesting(CSSParser& parser);
        ~Nesting() { --_parser._depth; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;
        explicit operator bool() const { return !_isTooDeep; }

    private:
        CSSParser& _parser;
        bool _isTooDeep;
    };

    // For readers of texts that are no tokens.

    [[nodiscard]] std::u16string_view text() const { return _text; }
    [[nodiscard]] CSSTokenizer& tokens() { return _tokens; }

private:
    std::u16string_view _text;
    CSSTokenizer _tokens;
    CSSToken _token;
    std::size_t _previousEnd = 0;
    int _depth = 0;
    std::optional<Message> _error;
};

/// Returns "write "EXAMPLE"".
[[nodiscard]] Phrase writeAs(std::u16string_view example);

}  // namespace vantorel
