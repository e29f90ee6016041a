#pragma once

#include "text/ASCII.h"

#include <string>
#include <string_view>
#include <utility>

/// Functions that remove leading and trailing characters. Callers choose which characters count as
/// blank, because file formats differ.
///
/// `std::string_view::find_first_not_of` calls a function for each character, which takes a third
/// of the time of reading a long colour list. These templates are inlined instead.
namespace vantorel {

template <TextUnit Unit, std::predicate<Unit> IsBlank>
[[nodiscard]] constexpr std::basic_string_view<Unit> withoutLeading(
    std::basic_string_view<Unit> text, IsBlank isBlankUnit)
{
    while (!text.empty() && isBlankUnit(text.front()))
        text.remove_prefix(1);
    return text;
}

template <TextUnit Unit, std::predicate<Unit> IsBlank>
[[nodiscard]] constexpr std::basic_string_view<Unit> withoutTrailing(
    std::basic_string_view<Unit> text, IsBlank isBlankUnit)
{
    while (!text.empty() && isBlankUnit(text.back()))
        text.remove_suffix(1);
    return text;
}

template <TextUnit Unit, std::predicate<Unit> IsBlank>
[[nodiscard]] constexpr std::basic_string_view<Unit> trimmed(std::basic_string_view<Unit> text,
                                                             IsBlank isBlankUnit)
{
    return withoutTrailing(withoutLeading(text, isBlankUnit), isBlankUnit);
}

/// Removes leading and trailing spaces and tabs.
template <TextUnit Unit>
[[nodiscard]] constexpr std::basic_string_view<Unit> trimmed(std::basic_string_view<Unit> text)
{
    return trimmed(text, isBlank<Unit>);
}

/// Makes a name fit for one line of a menu: replaces control characters by spaces, then removes
/// leading and trailing spaces.
[[nodiscard]] inline std::u16string tidied(std::u16string name)
{
    return std::u16string(trimmed(std::u16string_view(withoutControls(std::move(name)))));
}

}  // namespace vantorel
