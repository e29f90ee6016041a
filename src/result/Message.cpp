#include "result/Message.h"

#include "result/HarmlessLine.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

std::string untranslated(const char* text)
{
    return text;
}

}  // namespace

Phrase::Phrase(const char* text, std::vector<PhraseArgument> arguments)
    : _text(text), _arguments(std::move(arguments))
{
}

std::string Phrase::inWords(Translate translate) const
{
    if (isEmpty()) return {};
    const std::string text = translate(_text);
    std::string words;
    // In a single pass, because an argument can contain text that looks like a placeholder.
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPlace = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1';
        const auto index = isPlace ? static_cast<std::size_t>(text[i + 1] - '1') : std::size_t{0};
        // There are at most nine arguments, and a faulty translation can have more placeholders.
        if (!isPlace || index >= _arguments.size()) {
            words += text[i];
            continue;
        }
        words += _arguments[index].inWords(translate);
        ++i;
    }
    return words;
}

bool Phrase::operator==(const Phrase& other) const
{
    return std::string_view(_text) == other._text && _arguments == other._arguments;
}

PhraseArgument::PhraseArgument(InUtf16, std::u16string_view text) : _value(utf8FromUtf16(text)) {}

std::string PhraseArgument::inWords(Phrase::Translate translate) const
{
    if (const auto* phrase = std::get_if<Phrase>(&_value)) return phrase->inWords(translate);
    return harmlessLine(std::get<std::string>(_value));
}

Phrase verbatim(std::string_view text)
{
    return {"%1", {text}};
}

std::string english(const Phrase& phrase)
{
    return phrase.inWords(untranslated);
}

std::string english(const Message& message, std::string_view separator)
{
    std::string words = english(message.what);
    if (!message.remedy.isEmpty()) words.append(separator).append(english(message.remedy));
    return words;
}

}  // namespace vantorel
