#include "listformats/ColorLinesReader.h"

#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {

ListContents readColorLines(std::string_view text)
{
    ListContents contents;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = withoutListBlanks(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty()) continue;
        const bool hasTab = line.find('\t') != std::string_view::npos;
        const std::size_t separator = hasTab ? line.find('\t')
                                      : line.starts_with('#')
                                          ? std::min(line.find(' '), line.size())
                                          : line.size();
        if (const auto color = listColorOf(withoutListBlanks(line.substr(0, separator)))) {
            contents.entries.emplace_back(*color,
                                          utf16FromUtf8(withoutListBlanks(line.substr(separator))));
        } else {
            ++contents.skipped;
        }
    }
    return contents;
}

}  // namespace vantorel
