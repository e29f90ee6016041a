#include "hosts/gtk/GtkTexts.h"

#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

bool isTrailSurrogate(char16_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

std::string caseFolded(std::u16string_view text)
{
    const GText folded(g_utf8_casefold(gtkText(text).c_str(), -1));
    return folded.get();
}

}  // namespace

std::string gtkText(std::u16string_view text)
{
    std::string bytes = utf8FromUtf16(std::u16string(text.substr(0, text.find(u'\0'))));
    if (g_utf8_validate(bytes.data(), static_cast<gssize>(bytes.size()), nullptr)) return bytes;
    const GText valid(g_utf8_make_valid(bytes.data(), static_cast<gssize>(bytes.size())));
    return valid.get();
}

std::u16string coreText(const char* text)
{
    return text != nullptr ? utf16FromUtf8(text) : std::u16string();
}

bool hasPrefix(std::u16string_view text, std::u16string_view start)
{
    return caseFolded(text).starts_with(caseFolded(start));
}

std::size_t unitsOfCharacters(std::u16string_view text, int characters)
{
    std::size_t units = 0;
    for (int i = 0; i < characters && units < text.size(); ++i) {
        ++units;
        if (units < text.size() && isTrailSurrogate(text[units])) ++units;
    }
    return units;
}

int charactersOfUnits(std::u16string_view text, std::size_t units)
{
    const auto before = text.substr(0, std::min(units, text.size()));
    return static_cast<int>(std::count_if(before.begin(), before.end(),
                                          [](char16_t unit) { return !isTrailSurrogate(unit); }));
}

}  // namespace vantorel
