#pragma once

#include "text/ASCII.h"

#include <string>
#include <string_view>
#include <utility>

/// Texts without what surrounds them. Callers say what counts as blank, because formats differ.
///
/// The searches of `std::string_view` for one of several characters call a function for each
/// character, which takes a third of the time of reading a long colour list; these are inlined.
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

/// Without spaces and tabs around it.
template <TextUnit Unit>
[[nodiscard]] constexpr std::basic_string_view<Unit> trimmed(std::basic_string_view<Unit> text)
{
    return trimmed(text, isBlank<Unit>);
}

/// A name as menus show it on one line: a space for each control character, and none around it.
[[nodiscard]] inline std::u16string tidied(std::u16string name)
{
    return std::u16string(trimmed(std::u16string_view(withoutControls(std::move(name)))));
}

}  // namespace vantorel
