#pragma once

#include "colorlists/ColorListIndex.h"
#include "colorlists/ColorNamesPopUp.h"
#include "colorlists/PaletteFileStore.h"
#include "colorlists/PaletteScan.h"
#include "host/HostColorList.h"
#include "host/HostFiles.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// The list of the names that browsers know. The panel finds it as an installed palette file.
inline constexpr std::u16string_view cssColor4ListName = u"CSS Color 4";

/// The colour lists that the picker offers. The built-in lists are available even before the picker
/// has saved them, and so is "CSS Color 4". This class never saves a list.
class UserLists {
public:
    /// `files` must outlive this object.
    explicit UserLists(HostFiles& files) : _files(files), _store(files) {}

    /// Returns the list of a name, or null if there is none. For the name of a built-in list, the
    /// files of other lists are not read.
    [[nodiscard]] std::shared_ptr<HostColorList> listNamed(const std::u16string& name);
    /// Like `listNamed`, but throws a `Failure` if there is none.
    [[nodiscard]] std::shared_ptr<HostColorList> requiredList(const std::string& utf8Name);
    /// Returns the bytes of the user's palette file that contains a list; `std::nullopt` if there
    /// is none, as for a built-in list that has not been saved.
    [[nodiscard]] std::optional<std::string> fileOfList(const std::u16string& name);
    struct Entry {
        std::u16string name;
        /// The list's file; `std::nullopt` for a built-in list that has not been saved.
        std::optional<std::string> path;
    };
    /// Returns all lists, sorted by name. The folders are looked at once, however many there are.
    [[nodiscard]] std::vector<Entry> all();

private:
    [[nodiscard]] bool isSaved(const std::u16string& name);

    HostFiles& _files;
    PaletteFileStore _store;
};

/// Returns the exact name, or the title of the picker's name pop-up, such as "* navy, teal" or "No
/// Match".
[[nodiscard]] std::u16string titleOf(const PaletteNameMatch& match);

/// Finds the names of colours in a list, as the picker does.
class ColorNamer {
public:
    /// `list` must not be null.
    explicit ColorNamer(std::shared_ptr<HostColorList> list) : _list(std::move(list))
    {
        _index.update(_list);
    }

    [[nodiscard]] const HostColorList& list() const { return *_list; }
    /// Returns the names that match a colour.
    [[nodiscard]] PaletteNameMatch names(const QTXHexColorSpec& color) const;
    [[nodiscard]] ColorNameMatch match(const QTXHexColorSpec& color) const
    {
        return matchColorName(color, *_list, _index);
    }
    /// Returns the title of a match.
    [[nodiscard]] std::u16string title(const ColorNameMatch& match) const
    {
        return titleOf(names(match));
    }

private:
    [[nodiscard]] PaletteNameMatch names(const ColorNameMatch& match) const;

    std::shared_ptr<HostColorList> _list;
    ColorListIndex _index;
};

}  // namespace vantorel
