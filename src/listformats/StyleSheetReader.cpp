#include "listformats/StyleSheetReader.h"

#include "text/ASCII.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

class StyleSheetReader {
public:
    explicit StyleSheetReader(std::string_view text) : _text(text) {}

    ListContents read()
    {
        while (_place < _text.size()) {
            if (rest().starts_with("/*")) {
                readComment("*/");
            } else if (rest().starts_with("//")) {
                readComment("\n");
            } else if (startsDeclaration()) {
                readDeclaration();
            } else {
                if (_text[_place] == '\n') _followsDeclaration = false;
                ++_place;
            }
        }
        return std::move(_contents);
    }

private:
    [[nodiscard]] std::string_view rest() const { return _text.substr(_place); }
    [[nodiscard]] static bool isNameByte(char c)
    {
        return isLetterOrDigit(c) || c == '-' || c == '_' || static_cast<unsigned char>(c) >= 0x80;
    }
    [[nodiscard]] bool startsDeclaration() const
    {
        const bool isInName = _place > 0 && isNameByte(_text[_place - 1]);
        return !isInName && (rest().starts_with("--") || rest().starts_with('$'));
    }

    void readComment(std::string_view closing)
    {
        const std::size_t begin = _place + 2;
        const std::size_t end = std::min(_text.find(closing, begin), _text.size());
        const std::u16string name =
            utf16FromUtf8(withoutListBlanks(_text.substr(begin, end - begin)));
        if (_followsDeclaration && !name.empty()) {
            _contents.entries.back().second = name;
        } else if (_contents.name.empty() && _contents.entries.empty() &&
                   name.find(u'\n') == std::u16string::npos) {
            _contents.name = name;
        }
        _followsDeclaration = false;
        // The line feed after a // comment is left for `read`.
        _place = closing == "\n" ? end : std::min(end + closing.size(), _text.size());
    }

    void readDeclaration()
    {
        _followsDeclaration = false;
        _place += rest().starts_with('$') ? std::size_t{1} : std::size_t{2};
        const std::size_t begin = _place;
        while (_place < _text.size() && isNameByte(_text[_place]))
            ++_place;
        const std::string_view name = _text.substr(begin, _place - begin);
        const std::size_t colon = _text.find_first_not_of(listBlanks, _place);
        if (colon == std::string_view::npos || _text[colon] != ':' || name.empty()) return;
        const std::size_t end = std::min(_text.find_first_of(";}\n", colon), _text.size());
        std::string_view value = withoutListBlanks(_text.substr(colon + 1, end - colon - 1));
        if (const std::size_t flag = value.find('!'); flag != std::string_view::npos)
            value = withoutListBlanks(value.substr(0, flag));
        _place = end < _text.size() && _text[end] == ';' ? end + 1 : end;
        if (const auto color = listColorOf(value)) {
            _contents.entries.emplace_back(*color, utf16FromUtf8(name));
            _followsDeclaration = true;
        } else {
            ++_contents.skipped;
        }
    }

    std::string_view _text;
    std::size_t _place = 0;
    bool _followsDeclaration = false;
    ListContents _contents;
};

}  // namespace

ListContents readStyleSheet(std::string_view text)
{
    return StyleSheetReader(text).read();
}

}  // namespace vantorel
