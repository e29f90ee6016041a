#include "documents/CodeSyntax.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr CodeSyntax syntaxes[] = {
    {DocumentLanguage::plainText, false, "", "", "", "\"'`"},
    {DocumentLanguage::script, false, "//", "/*", "*/", "\"'"},
    {DocumentLanguage::json, false, "//", "/*", "*/", "\""},
    {DocumentLanguage::cLikeCode, true, "//", "/*", "*/", "\"'`"},
    {DocumentLanguage::rustCode, false, "//", "/*", "*/", "\""},
    {DocumentLanguage::hashCode, true, "#", "", "", "\"'`"},
    {DocumentLanguage::dashCode, false, "--", "/*", "*/", "\"'"},
    {DocumentLanguage::lispCode, false, ";", "", "", "\""},
    {DocumentLanguage::percentCode, false, "%", "", "", "\"'"},
    {DocumentLanguage::basicCode, false, "'", "", "", "\""},
};

}  // namespace

std::size_t endOfTemplateHole(std::string_view text, std::size_t place, std::size_t end)
{
    std::size_t depth = 1;
    char quote = '\0';
    for (; place < end; ++place) {
        const char c = text[place];
        if (c == '\\') {
            ++place;
        } else if (quote != '\0') {
            if (c == quote || c == '\n') quote = '\0';
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '{') {
            ++depth;
        } else if (c == '}' && --depth == 0) {
            return place + 1;
        }
    }
    return end;
}

const CodeSyntax& codeSyntax(DocumentLanguage language)
{
    const auto* const found = std::ranges::find(syntaxes, language, &CodeSyntax::language);
    return found == std::end(syntaxes) ? syntaxes[0] : *found;
}

}  // namespace vantorel
