#pragma once

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// Messages as data. They are formatted, and translated, only where they are shown.
namespace vantorel {

/// The text of a phrase with these arguments. A text with another number of placeholders does not
/// compile.
template <class... Arguments>
class PhraseText {
public:
    // Implicit, so that a literal can be passed.
    // NOLINTNEXTLINE(google-explicit-constructor)
    consteval PhraseText(const char* text) : _text(text)
    {
        std::size_t highest = 0;
        for (const char* c = text; *c != '\0'; ++c) {
            if (c[0] != '%' || c[1] < '1' || c[1] > '9') continue;
            const auto number = static_cast<std::size_t>(c[1] - '0');
            if (number > highest) highest = number;
        }
        if (highest != sizeof...(Arguments)) throw "the placeholders do not match the arguments";
    }
    [[nodiscard]] constexpr const char* text() const { return _text; }

private:
    const char* _text;
};

class PhraseArgument;

/// A part of a message: an English text with a placeholder, `%1` to `%9`, for each argument.
/// Arguments can be untrusted: placeholders in them are not replaced, and `inWords` makes them safe
/// to print.
// NOLINTNEXTLINE(clang-analyzer-core.uninitialized.Assign): `_text` always has a value.
class Phrase {
public:
    /// An empty phrase.
    Phrase() = default;
    /// `text` must live as long as the program. Prefer `phrase`, which checks the placeholders.
    Phrase(const char* text, std::vector<PhraseArgument> arguments);

    [[nodiscard]] bool isEmpty() const { return *_text == '\0'; }
    /// The English text with its placeholders; the key of its translations.
    [[nodiscard]] const char* text() const { return _text; }

    /// Returns the translation of a `text()` in UTF-8, with the same placeholders.
    using Translate = std::string (*)(const char* text);
    /// Translates the phrase and inserts the arguments. Returns one line of UTF-8.
    [[nodiscard]] std::string inWords(Translate translate) const;

    bool operator==(const Phrase& other) const;

private:
    const char* _text = "";
    std::vector<PhraseArgument> _arguments;
};

/// An argument of a phrase: a text, a number, or another phrase, which is translated too.
class PhraseArgument {
public:
    // The constructors are implicit, so that values can be passed as they are.
    // NOLINTBEGIN(google-explicit-constructor)
    PhraseArgument(const std::convertible_to<std::string_view> auto& utf8)
        : _value(std::string(std::string_view(utf8)))
    {
    }
    PhraseArgument(const std::convertible_to<std::u16string_view> auto& text)
        : PhraseArgument(InUtf16{}, text)
    {
    }
    PhraseArgument(std::integral auto number) : _value(std::to_string(number)) {}
    PhraseArgument(Phrase phrase) : _value(std::move(phrase)) {}
    PhraseArgument(PhraseText<> text) : _value(Phrase(text.text(), {})) {}
    // NOLINTEND(google-explicit-constructor)

    [[nodiscard]] std::string inWords(Phrase::Translate translate) const;

    bool operator==(const PhraseArgument&) const = default;

private:
    struct InUtf16 {};
    PhraseArgument(InUtf16, std::u16string_view text);

    std::variant<std::string, Phrase> _value;
};

/// Creates a phrase from a literal and its arguments: `phrase("%1 is not closed", name)`.
/// tools/update-translations finds these calls and offers the literals to translators.
template <class... Arguments>
[[nodiscard]] Phrase phrase(PhraseText<std::type_identity_t<Arguments>...> text,
                            Arguments&&... arguments)
{
    std::vector<PhraseArgument> list;
    list.reserve(sizeof...(Arguments));
    (list.emplace_back(std::forward<Arguments>(arguments)), ...);
    return {text.text(), std::move(list)};
}

/// The text of a phrase without arguments, for tables.
[[nodiscard]] consteval PhraseText<> phraseText(const char* text)
{
    return text;
}

/// Wraps a text from elsewhere, such as an error message of the system. It must be UTF-8 and is not
/// translated.
[[nodiscard]] Phrase verbatim(std::string_view text);

/// An error message: what went wrong and what to do about it.
struct Message {
    Phrase what;
    /// Empty if `what` makes it obvious.
    Phrase remedy = {};

    [[nodiscard]] bool isEmpty() const { return what.isEmpty(); }
    bool operator==(const Message&) const = default;
};

[[nodiscard]] std::string english(const Phrase& phrase);
/// Returns "WHAT; REMEDY", a sentence without its full stop. On standard error, programs use ": "
/// as the separator.
[[nodiscard]] std::string english(const Message& message, std::string_view separator = "; ");

}  // namespace vantorel
