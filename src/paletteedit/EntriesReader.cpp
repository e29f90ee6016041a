#include "paletteedit/EntriesReader.h"

#include "colorlists/PaletteFolder.h"

#include <algorithm>

namespace vantorel {
namespace {

/// Returns whether a palette file contains text that `paletteText` would not write.
bool holdsOtherLines(const std::string& bytes, const PaletteReading& reading)
{
    if (!reading.skipped.empty()) return true;
    std::size_t at = 0;
    while ((at = bytes.find('#', at)) != std::string::npos) {
        const std::size_t lineStart = bytes.find_last_of("\r\n", at) + 1;
        const std::size_t lineEnd = std::min(bytes.find_first_of("\r\n", at), bytes.size());
        const bool beginsLine = bytes.find_first_not_of(" \t", lineStart) == at;
        // Some programs write an empty comment, "#", after the head.
        const std::size_t text = bytes.find_first_not_of("# \t", at);
        if (beginsLine && text < lineEnd) return true;
        at = lineEnd;
    }
    return false;
}

}  // namespace

EntriesReader::EntriesReader(std::string bytes, const std::string& path)
    : _bytes(std::move(bytes)), _reader(_bytes, fallbackName(path))
{
}

std::u16string EntriesReader::fallbackName(const std::string& path)
{
    return PaletteFolder::fallbackListName(path.substr(path.rfind('/') + 1));
}

bool EntriesReader::readLines(std::size_t count)
{
    const bool isAtEnd = _reader.readLines(count);
    if (const PaletteReading* reading = _reader.reading()) {
        const HostColorList& list = *reading->list;
        for (std::size_t i = _entries.size(); i < list.allKeys().size(); ++i)
            _entries.emplace_back(list.allKeys()[i], list.colorAtIndex(i));
    }
    return isAtEnd;
}

std::optional<PaletteState> EntriesReader::takeState()
{
    const PaletteReading* reading = _reader.reading();
    if (reading == nullptr) return std::nullopt;
    PaletteState state;
    state.name = reading->list->name();
    state.entries = std::make_shared<const PaletteEntries>(std::move(_entries));
    if (holdsOtherLines(_bytes, *reading))
        state.bytes = std::make_shared<const std::string>(std::move(_bytes));
    return state;
}

}  // namespace vantorel
