#include "lsp/CompletionItems.h"

#include "result/HarmlessLine.h"
#include "text/ASCII.h"
#include "text/Unicode.h"

#include <algorithm>
#include <set>
#include <utility>

namespace vantorel {
namespace {

/// More names are offered after the next letter.
constexpr std::size_t mostItems = 200;
/// How far before the cursor its surroundings are looked at.
constexpr std::size_t farthest = 2000;

bool isWordByte(char c)
{
    return isLetterOrDigit(c) || c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}

TextRange wordBefore(std::string_view text, std::size_t place)
{
    constexpr std::size_t longestWord = 100;
    std::size_t begin = place;
    while (begin > 0 && place - begin < longestWord && isWordByte(text[begin - 1]))
        --begin;
    return {begin, place};
}

/// Whether a value of CSS is before a place: after the ":" of a declaration.
bool isInStyleValue(std::string_view before)
{
    const std::size_t statement = before.find_last_of(";{}");
    const std::string_view declaration =
        statement == std::string_view::npos ? before : before.substr(statement + 1);
    return declaration.find(':') != std::string_view::npos;
}

/// Whether a place on a line is in a string.
bool isInString(std::string_view before)
{
    const std::size_t lineFeed = before.rfind('\n');
    const std::string_view line =
        lineFeed == std::string_view::npos ? before : before.substr(lineFeed + 1);
    char quote = '\0';
    for (const char c : line) {
        if (quote == '\0' && (c == '"' || c == '\'' || c == '`')) {
            quote = c;
        } else if (c == quote) {
            quote = '\0';
        }
    }
    return quote != '\0';
}

bool isCompleted(const OpenDocument& document, TextRange word)
{
    const std::string_view text = document.text();
    if (word.begin > 0 &&
        std::string_view("#$@.").find(text[word.begin - 1]) != std::string_view::npos)
        return false;
    const std::size_t begin = word.begin > farthest ? word.begin - farthest : 0;
    const std::string_view before = text.substr(begin, word.begin - begin);
    if (isStyleSheet(document.language())) return isInStyleValue(before);
    return isInString(before) || (isMarkup(document.language()) && isInStyleValue(before));
}

/// Whether one of the words of a name begins with a text. A name that is a hex code is not offered.
bool continues(const std::u16string& name, std::u16string_view beginning)
{
    if (name.starts_with(u'#')) return false;
    for (std::size_t place = 0; place + beginning.size() <= name.size(); ++place) {
        const bool isWordBegin = place == 0 || !isLetterOrDigit(name[place - 1]);
        const auto part = std::u16string_view(name).substr(place, beginning.size());
        if (isWordBegin && equalIgnoringCase(part, beginning)) return true;
    }
    return false;
}

}  // namespace

Json completionItems(const OpenDocument& document, std::size_t place, const WrittenColors& writer,
                     std::span<const std::shared_ptr<HostColorList>> lists)
{
    Json items = Json::array();
    bool isIncomplete = false;
    const TextRange word = wordBefore(document.text(), place);
    if (isCompleted(document, word)) {
        const std::u16string typed = utf16FromUtf8(word.in(document.text()));
        const CSSColorForm form = writer.mostFrequentForm();
        std::set<std::pair<std::string, std::string>> known;
        for (const auto& list : lists) {
            const auto& names = list->allKeys();
            for (std::size_t i = 0; i < names.size() && !isIncomplete; ++i) {
                const HostColor& color = list->colorAtIndex(i);
                if (color.isPattern() || !continues(names[i], typed)) continue;
                const std::string text = writer.textInForm(form, color);
                const std::string name = harmlessLine(utf8FromUtf16(names[i]));
                if (!known.emplace(name, text).second) continue;
                isIncomplete = items.size() == mostItems;
                if (isIncomplete) break;
                constexpr int colorKind = 16;
                items.push_back({{"label", name},
                                 {"kind", colorKind},
                                 {"detail", harmlessLine(utf8FromUtf16(list->name()))},
                                 {"documentation", text},
                                 {"filterText", name},
                                 {"textEdit", textEdit(document, word, text)}});
            }
        }
    }
    return {{"isIncomplete", isIncomplete}, {"items", std::move(items)}};
}

}  // namespace vantorel
