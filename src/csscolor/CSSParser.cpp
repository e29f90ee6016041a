#include "csscolor/CSSParser.h"

#include "result/HarmlessLine.h"

#include <utility>

namespace vantorel {
namespace {

/// Whether a text of comments and white space has any of the latter.
bool hasWhiteSpace(std::u16string_view blanks)
{
    std::size_t place = 0;
    while (place < blanks.size()) {
        if (isCSSWhiteSpace(blanks[place])) return true;
        place = blanks.find(u"*/", place + 2);
        if (place == std::u16string_view::npos) return false;
        place += 2;
    }
    return false;
}

std::u16string shortened(std::u16string_view text)
{
    constexpr std::size_t mostUnits = 24;
    return excerpt(text, mostUnits);
}

}  // namespace

bool CSSParser::isName(std::u16string_view name) const
{
    return is(CSSTokenKind::name) && _token.name == name;
}

bool CSSParser::isCharacter(char16_t character) const
{
    return is(CSSTokenKind::other) && source() == std::u16string_view(&character, 1);
}

bool CSSParser::readClosing(std::u16string_view function, std::u16string_view example)
{
    if (skip(CSSTokenKind::closeParenthesis)) return true;
    // Only now is the name put together, because nearly all functions are closed.
    const std::u16string name = std::u16string(function) + u"()";
    if (is(CSSTokenKind::end)) {
        failUnclosed(name);
    } else {
        failAtToken(phrase("Instead of the \")\" of %1 there is \"%2\"", name, quoted()),
                    writeAs(example));
    }
    return false;
}

bool CSSParser::isSpacedApart() const
{
    CSSTokenizer following = _tokens;
    if (!following.skipBlanks()) return true;  // The comment that is not closed is reported.
    const auto blanks = [this](std::size_t begin, std::size_t end) {
        return _text.substr(begin, end - begin);
    };
    return hasWhiteSpace(blanks(_previousEnd, _token.begin)) &&
           hasWhiteSpace(blanks(_token.end, following.place()));
}

std::u16string_view CSSParser::source() const
{
    return _text.substr(_token.begin, _token.end - _token.begin);
}

std::u16string CSSParser::quoted() const
{
    return shortened(source());
}

std::u16string CSSParser::quotedFunction() const
{
    return shortened(source().substr(0, source().size() - 1));
}

std::u16string CSSParser::quotedRest() const
{
    return shortened(_text.substr(_token.begin));
}

std::nullopt_t CSSParser::fail(Phrase what, Phrase remedy)
{
    _error = Message{std::move(what), std::move(remedy)};
    return std::nullopt;
}

std::nullopt_t CSSParser::failAtToken(Phrase what, Phrase remedy)
{
    if (!is(CSSTokenKind::unclosedComment)) return fail(std::move(what), std::move(remedy));
    return fail(phrase("The comment that starts with \"/*\" is not closed"),
                phrase("close it with \"*/\""));
}

std::nullopt_t CSSParser::failUnclosed(std::u16string_view function)
{
    return fail(phrase("%1 is not closed", function), phrase("add a \")\" after the values"));
}

CSSParser::Nesting::Nesting(CSSParser& parser) : _parser(parser)
{
    constexpr int deepest = 32;
    _isTooDeep = ++_parser._depth > deepest;
    if (_isTooDeep) {
        _parser.fail(phrase("The parentheses are nested too deep"),
                     phrase("nest at most %1", static_cast<std::size_t>(deepest)));
    }
}

Phrase writeAs(std::u16string_view example)
{
    return phrase("write \"%1\"", example);
}

}  // namespace vantorel
