#pragma once

#include "colorlists/PaletteFolder.h"

#include <deque>
#include <vector>

namespace vantorel {

/// The names under which the palettes of several folders are listed.
///
/// The first folder that holds a name gives it to its list. Another list of that name gets the name
/// of its program behind it, "Reds (GIMP)", and where that is taken a number, "Reds (GIMP 2)". The
/// same entries under the same name, and a file that was reached before, are listed once.
class PaletteCatalogue {
public:
    struct Source {
        PaletteFolder* folder;
        /// Empty for our own folder, whose lists are never renamed: of two with one name the first
        /// is listed.
        std::u16string program;
    };
    struct Entry {
        PaletteFolder* folder;
        std::string fileName;
        /// Of the file, when the catalogue was built.
        std::uint64_t version;
        /// The name in the file.
        std::u16string listName;
        std::u16string program;
        bool isListed;

        [[nodiscard]] std::string path() const { return folder->pathOfFile(fileName); }
    };

    /// `sources`, the most important first, have been looked at; they must outlive the entries.
    /// Lists that share a name are loaded to be compared.
    void rebuild(const std::vector<Source>& sources);

    [[nodiscard]] std::vector<std::u16string> names() const;
    /// The palette that is listed under a name; null when there is none. Valid until `rebuild`.
    [[nodiscard]] const Entry* entryListedAs(const std::u16string& name) const;
    /// The palette that would be listed under a name with a program in brackets if other lists held
    /// the names before it, as they may have done when somebody noted that name; null when there is
    /// none. Valid until `rebuild`.
    [[nodiscard]] const Entry* entryOnceListedAs(const std::u16string& name) const;

private:
    void listUnderOtherNames(const std::vector<Entry*>& entries);

    std::deque<Entry> _entries;
    std::map<std::u16string, const Entry*> _listed;
};

}  // namespace vantorel
