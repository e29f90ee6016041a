#pragma once

#include <string_view>
#include <vector>

namespace vantorel {

/// Returns the lines of a text to draw or measure. A "\n" at the end adds no line; an empty text is
/// one empty line.
[[nodiscard]] inline std::vector<std::u16string_view> linesOf(std::u16string_view text)
{
    std::vector<std::u16string_view> lines;
    while (true) {
        const std::size_t end = text.find(u'\n');
        lines.push_back(text.substr(0, end));
        if (end == std::u16string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    if (lines.size() > 1 && lines.back().empty()) lines.pop_back();
    return lines;
}

}  // namespace vantorel
