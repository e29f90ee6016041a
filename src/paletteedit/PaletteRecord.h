#pragma once

#include "host/HostFiles.h"
#include "paletteedit/EntriesReader.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantorel {

/// The known state of a list's file.
struct PaletteRecord {
    std::string path;
    /// The program that the list belongs to; empty for one of the user's own.
    std::u16string program;
    /// The file's version when `state` was read; 0 if it must be read again.
    std::uint64_t version = 0;
    /// Empty until it is requested, and if the file is not a palette.
    std::optional<PaletteState> state = {};

    [[nodiscard]] bool isOwn() const { return program.empty(); }
    /// Reads the file, unless it has not changed since it was last read. Sets the version to 0
    /// if the file cannot be read.
    void readIfChanged(const HostFiles& files);
    /// Takes in that `written` has just been written to the file as `text`.
    void setWritten(const PaletteState& written, const std::string& text, const HostFiles& files);
    /// Returns whether something that cannot be read exists at the path. Such a list must not be
    /// treated as removed.
    [[nodiscard]] bool isUnreadable(const HostFiles& files) const;
};

}  // namespace vantorel
