#pragma once

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// Messages as data: what they say is put into words where they are shown, in the language that is
/// wanted there.
namespace vantorel {

/// The text of a phrase with so many arguments. Any other number of places does not compile.
template <class... Arguments>
class PhraseText {
public:
    consteval PhraseText(const char* text) : _text(text)
    {
        std::size_t highest = 0;
        for (const char* c = text; *c != '\0'; ++c) {
            if (c[0] != '%' || c[1] < '1' || c[1] > '9') continue;
            const auto number = static_cast<std::size_t>(c[1] - '0');
            if (number > highest) highest = number;
        }
        if (highest != sizeof...(Arguments)) throw "the places do not match the arguments";
    }
    [[nodiscard]] constexpr const char* text() const { return _text; }

private:
    const char* _text;
};

class PhraseArgument;

/// A piece of a message: an English text with a place, `%1` to `%9`, for each of its arguments.
/// Arguments may be anything that others have written. They are never read as a text with places of
/// its own, and are made harmless when the phrase is put into words.
class Phrase {
public:
    /// The empty phrase.
    Phrase() = default;
    /// `text` must live as long as the program. Call `phrase`, which checks the places.
    Phrase(const char* text, std::vector<PhraseArgument> arguments);

    [[nodiscard]] bool isEmpty() const { return *_text == '\0'; }
    /// The English text with its places, by which translations are found.
    [[nodiscard]] const char* text() const { return _text; }

    /// Returns the translation of a `text()` in UTF-8, with the same places.
    using Translate = std::string (*)(const char* text);
    /// The phrase in words, as one line of UTF-8.
    [[nodiscard]] std::string inWords(Translate translate) const;

    bool operator==(const Phrase& other) const;

private:
    const char* _text = "";
    std::vector<PhraseArgument> _arguments;
};

/// What takes a place in a phrase: a text, a number, or a phrase, which is translated, too.
class PhraseArgument {
public:
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

    [[nodiscard]] std::string inWords(Phrase::Translate translate) const;

    bool operator==(const PhraseArgument&) const = default;

private:
    struct InUtf16 {};
    PhraseArgument(InUtf16, std::u16string_view text);

    std::variant<std::string, Phrase> _value;
};

/// Makes a phrase of a literal and its arguments: `phrase("%1 has no end", name)`.
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

/// A text that somebody else has written, such as a message of the system, in UTF-8.
[[nodiscard]] Phrase verbatim(std::string_view text);

/// What went wrong, and what to do about it.
struct Message {
    Phrase what;
    /// Empty where `what` leaves no question.
    Phrase remedy = {};

    bool operator==(const Message&) const = default;
};

[[nodiscard]] std::string english(const Phrase& phrase);
/// "WHAT; REMEDY", a sentence without its full stop. Programs print `separator` as ": ".
[[nodiscard]] std::string english(const Message& message, std::string_view separator = "; ");

}  // namespace vantorel
