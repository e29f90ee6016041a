#include "paletteedit/FreeNames.h"

#include "text/Decimals.h"
#include "text/Trimming.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Splits "Red 2" into "Red" and 2. A name without a number is returned with 1.
std::pair<std::u16string, std::size_t> nameAndNumber(const std::u16string& name)
{
    const std::size_t blank = name.rfind(u' ');
    if (blank == std::u16string::npos || blank == 0) return {name, 1};
    const auto number = nameNumber(std::u16string_view(name).substr(blank + 1));
    if (!number) return {name, 1};
    return {name.substr(0, blank), *number};
}

}  // namespace

std::u16string tidyName(std::u16string_view typed)
{
    return tidied(utf16FromUtf8(utf8FromUtf16(typed)));
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
        free = name + u' ' + decimalText(++last);
    } while (!_used.insert(free).second);
    return free;
}

}  // namespace vantorel
