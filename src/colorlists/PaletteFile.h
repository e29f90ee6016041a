#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Palette files in the GIMP format (`.gpl`): a first line `GIMP Palette`, `Name:` and `Columns:`
/// lines, rows `r g b<TAB>name` with numbers 0..255, and comments that start with `#`.
namespace vantorel {

struct PaletteReading {
    std::shared_ptr<HostColorList> list;
    /// A skipped line: its number, starting at 1, and the reason.
    struct SkippedLine {
        std::size_t number;
        std::string reason;
    };
    /// The maximum number of lines in `skipped`; a binary file can have millions.
    static constexpr std::size_t mostSkippedLines = 100;
    std::vector<SkippedLine> skipped;
    /// The number of skipped lines that are not in `skipped`.
    std::size_t furtherSkippedLines = 0;
};

/// Reads a palette in the GIMP format or in KDE's, which begins with `KDE RGB Palette`. Accepts
/// what programs are known to write: a byte-order mark, CR LF, Latin-1, a missing `Name:` (the list
/// is then called `fallbackName`), colours without a name ("Untitled") and repeated names (each
/// further one gets a number), so that no colour is lost. Returns `std::nullopt` if the first line
/// is not that of a palette.
[[nodiscard]] std::optional<PaletteReading> readPalette(std::string_view bytes,
                                                        const std::u16string& fallbackName);

/// Reads a palette as `readPalette` does, but in steps.
class PaletteReader {
public:
    /// `bytes` must outlive the reader.
    PaletteReader(std::string_view bytes, const std::u16string& fallbackName);
    PaletteReader(const PaletteReader&) = delete;
    PaletteReader& operator=(const PaletteReader&) = delete;
    ~PaletteReader();

    /// Reads the next lines, at most `count`. Returns whether the end has been reached.
    bool readLines(std::size_t count);
    /// Returns what has been read so far; null if the first line is not that of a palette.
    [[nodiscard]] const PaletteReading* reading() const;
    /// How many bytes have been read.
    [[nodiscard]] std::size_t bytesRead() const;

private:
    struct State;
    std::unique_ptr<State> _state;
};

/// Returns the name that `readPalette` would give the list, reading only the head of the file;
/// `std::nullopt` if it is not a palette.
[[nodiscard]] std::optional<std::u16string> paletteName(std::string_view bytes,
                                                        const std::u16string& fallbackName);

struct PaletteHead {
    /// False if the name can depend on what follows.
    bool isDecided = false;
    /// As `paletteName` returns it.
    std::optional<std::u16string> name = {};
};
/// Returns the name in the beginning of a file.
[[nodiscard]] PaletteHead paletteHead(std::string_view beginning,
                                      const std::u16string& fallbackName);

/// Writes a list in the strict form of the GIMP format, in UTF-8, which every program can read.
/// Channels are rounded to bytes, alpha is dropped, patterns become black, and control characters
/// in names become spaces.
[[nodiscard]] std::string paletteText(const HostColorList& list);

}  // namespace vantorel
