#pragma once

#include "paletteedit/PaletteEntry.h"
#include "text/Unicode.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <string>

/// Entries as short texts, which tests can read: "red=1 dark_red=2"; the number is the red channel,
/// and "_" is a blank.
namespace vantorel {

inline PaletteEntry entryWithShade(const std::string& name, int shade)
{
    return {utf16FromUtf8(name), HostColor::colorWithCalibratedRed(shade / 255.0, 0, 0, 1)};
}

inline PaletteEntries entriesFrom(const std::string& text)
{
    PaletteEntries entries;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const std::size_t mark = word.find('=');
        std::string name = word.substr(0, mark);
        std::replace(name.begin(), name.end(), '_', ' ');
        entries.push_back(entryWithShade(name, std::stoi(word.substr(mark + 1))));
    }
    return entries;
}

inline std::string textOf(const PaletteEntries& entries)
{
    std::string text;
    for (const PaletteEntry& entry : entries) {
        if (!text.empty()) text += ' ';
        const double red = entry.color().calibratedRGB()->red * 255;
        text += utf8FromUtf16(entry.name()) + "=" + std::to_string(std::lround(red));
    }
    return text;
}

}  // namespace vantorel
