#include "paletteedit/FreeNames.h"

#include "host/HostText.h"

#include <algorithm>

namespace vantorel {
namespace {

std::u16string decimal(std::size_t number)
{
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
}

/// "Red" and 2 of "Red 2"; the name itself and 1 where no number stands behind it.
std::pair<std::u16string, std::size_t> nameAndNumber(const std::u16string& name)
{
    constexpr std::size_t mostDigits = 9;
    const std::size_t blank = name.rfind(u' ');
    if (blank == std::u16string::npos || blank == 0) return {name, 1};
    const std::u16string_view digits = std::u16string_view(name).substr(blank + 1);
    if (digits.empty() || digits.size() > mostDigits || digits.front() == u'0') return {name, 1};
    std::size_t number = 0;
    for (const char16_t c : digits) {
        if (c < u'0' || c > u'9') return {name, 1};
        number = number * 10 + (c - u'0');
    }
    return {name.substr(0, blank), number};
}

}  // namespace

std::u16string tidyName(std::u16string_view typed)
{
    std::u16string name = utf16FromUtf8(utf8FromUtf16(typed));
    std::replace_if(
        name.begin(), name.end(), [](char16_t c) { return c < 0x20 || c == 0x7F; }, u' ');
    const std::size_t first = name.find_first_not_of(u' ');
    if (first == std::u16string::npos) return {};
    return name.substr(first, name.find_last_not_of(u' ') + 1 - first);
}

FreeNames::FreeNames(const PaletteEntries& entries)
{
    _used.reserve(entries.size());
    for (const PaletteEntry& entry : entries)
        _used.insert(entry.name());
}

std::u16string FreeNames::take(const std::u16string& wanted)
{
    if (_used.insert(wanted).second) return wanted;
    const auto [name, number] = nameAndNumber(wanted);
    std::size_t& last = _lastNumbers.try_emplace(name, number).first->second;
    last = std::max(last, number);
    std::u16string free;
    do {
        free = name + u' ' + decimal(++last);
    } while (!_used.insert(free).second);
    return free;
}

}  // namespace vantorel
