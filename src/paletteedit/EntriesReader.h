#pragma once

#include "colorlists/PaletteFile.h"
#include "paletteedit/EditHistory.h"

namespace vantorel {

/// Reads the entries of a palette file in steps.
class EntriesReader {
public:
    /// `path` is that of the file; its name is the list's if the file contains none.
    EntriesReader(std::string bytes, const std::string& path);

    /// Reads the next lines, at most `count`. Returns whether the end has been reached.
    bool readLines(std::size_t count);
    /// The entries so far.
    [[nodiscard]] const PaletteEntries& entries() const { return _entries; }
    /// How far the reader has come, in bytes.
    [[nodiscard]] std::size_t bytesRead() const { return _reader.bytesRead(); }
    [[nodiscard]] std::size_t allBytes() const { return _bytes.size(); }

    /// Returns the list once the end has been reached; `std::nullopt` if the file is not a palette.
    [[nodiscard]] std::optional<PaletteState> takeState();

    [[nodiscard]] static std::u16string fallbackName(const std::string& path);

private:
    std::string _bytes;
    PaletteReader _reader;
    PaletteEntries _entries;
};

}  // namespace vantorel
