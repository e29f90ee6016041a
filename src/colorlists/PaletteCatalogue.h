#pragma once

#include "colorlists/PaletteFolder.h"

#include <deque>
#include <vector>

namespace vantorel {

/// Lists the palettes of several folders under unique names.
///
/// The first folder that contains a name gives it to its list. Other lists of that name get their
/// program's name appended, "Reds (GIMP)", and a number if that is taken as well, "Reds (GIMP 2)".
/// A list with the same name and entries as a listed one is omitted, and so is a file that has
/// already been reached by another path.
class PaletteCatalogue {
public:
    struct Source {
        PaletteFolder* folder;
        /// Empty for our own folder. Our own lists are never renamed: if two have the same name,
        /// only the first is listed.
        std::u16string program;
    };
    struct Entry {
        PaletteFolder* folder;
        std::string fileName;
        /// The file's version when the catalogue was built.
        std::uint64_t version;
        /// The list's name in the file.
        std::u16string listName;
        std::u16string program;
        bool isListed;

        [[nodiscard]] std::string path() const { return folder->pathOfFile(fileName); }
    };

    /// Rebuilds the catalogue. `sources` are given most important first, must have been refreshed
    /// by `lookAgain`, and must outlive the entries. Lists that share a name are loaded to compare
    /// them.
    void rebuild(const std::vector<Source>& sources);

    [[nodiscard]] std::vector<std::u16string> names() const;
    /// Returns the palette listed under a name, or null. The pointer is valid until `rebuild`.
    [[nodiscard]] const Entry* entryListedAs(const std::u16string& name) const;
    /// Returns the palette that would be listed under a name with a program in brackets if other
    /// lists had the preceding names, or null. This finds lists whose names were noted before other
    /// lists were removed. The pointer is valid until `rebuild`.
    [[nodiscard]] const Entry* entryOnceListedAs(const std::u16string& name) const;

private:
    void listUnderOtherNames(const std::vector<Entry*>& entries);

    std::deque<Entry> _entries;
    std::map<std::u16string, const Entry*> _listed;
};

}  // namespace vantorel
