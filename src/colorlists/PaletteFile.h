#pragma once

#include "host/HostColorList.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Palette files in the form of GIMP (`.gpl`): a first line `GIMP Palette`, `Name:` and `Columns:`
/// lines, rows `r g b<TAB>name` with the numbers 0..255, and comments that begin with `#`.
namespace vantorel {

struct PaletteReading {
    std::shared_ptr<HostColorList> list;
    /// Lines that were passed over: the number, from 1, and why.
    struct SkippedLine {
        std::size_t number;
        std::string reason;
    };
    /// A file that is no text can have millions of such lines; only the first are told apart.
    static constexpr std::size_t mostSkippedLines = 100;
    std::vector<SkippedLine> skipped;
    /// How many more were passed over.
    std::size_t furtherSkippedLines = 0;
};

/// Reads a palette of GIMP's form, or of KDE's, which begins with `KDE RGB Palette`. Takes what
/// programs have been seen to write: a byte-order mark, CR LF, Latin-1, a missing `Name:` (the list
/// is then called `fallbackName`), colours without a name ("Untitled") and names that come twice
/// (the second gets a number behind it), so that no colour is lost. Nothing when the first line
/// says that the file is no palette.
[[nodiscard]] std::optional<PaletteReading> readPalette(std::string_view bytes,
                                                        const std::u16string& fallbackName);

/// The name that `readPalette` would give the list, from the head of the file alone; nothing when
/// it is no palette.
[[nodiscard]] std::optional<std::u16string> paletteName(std::string_view bytes,
                                                        const std::u16string& fallbackName);

/// The strict form, in UTF-8, which every program reads. Channels are rounded to bytes; alpha is
/// not kept, a pattern becomes black, and control characters in names become blanks.
[[nodiscard]] std::string paletteText(const HostColorList& list);

}  // namespace vantorel
