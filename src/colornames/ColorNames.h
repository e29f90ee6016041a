#pragma once

#include "colorlists/PaletteFileStore.h"
#include "colormath/ListNames.h"
#include "settings/SettingsInFile.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// The name that the panel shows for CSS, in place of that of a colour list.
inline constexpr std::u16string_view cssNamesTitle = u"CSS Color 4";

/// The names of colours in the user's colour lists and in CSS. Settings and lists are read when
/// they are needed, and again when they have changed.
class ColorNames {
public:
    /// All must outlive the object. `lists` finds the lists in the files of `store`.
    ColorNames(const HostFiles& files, HostColorListStore& lists, PaletteFileStore& store);

    struct Name {
        std::u16string name;
        /// The name of the list that the name is from, or `cssNamesTitle`.
        std::u16string list;
        /// Whether the colours are the same in 8 bits, apart from the opacity.
        bool isExact = false;
    };
    /// Returns the name of the nearest colour in the naming list of the settings and in CSS,
    /// measured in Oklab; of equals that in the naming list. The list may be short, as the first
    /// one is that a user gets. Components outside 0..1 are clamped. Returns `std::nullopt` for a
    /// pattern.
    [[nodiscard]] std::optional<Name> nameOf(const HostColor& color);

    /// Sets the function that returns the name of the list that the user is working with, beside
    /// the naming list; empty if there is none.
    void setListInUse(std::function<std::u16string()> name) { _listInUse = std::move(name); }

    /// Which lists are searched: the two that the user has chosen, or all.
    enum class Reach { chosenLists, allLists };
    /// Returns the colour of a name in the naming list, the list in use, CSS, and then the other
    /// lists in the order of their names. In each, letter case counts only if two names differ by
    /// nothing else. Surrounding spaces do not count.
    [[nodiscard]] std::optional<HostColor> colorNamed(std::u16string_view name, Reach reach);

    /// Returns the naming list and the list in use, if they exist, each once.
    [[nodiscard]] std::vector<std::shared_ptr<const HostColorList>> chosenLists();

private:
    [[nodiscard]] std::shared_ptr<const HostColorList> namingList();
    /// Returns the naming list for a search, or null if it is missing or has no colour.
    [[nodiscard]] const ListNames* namingListNames();
    [[nodiscard]] std::optional<HostColor> colorInOtherLists(const std::u16string& name);

    const HostFiles& _files;
    HostColorListStore& _lists;
    PaletteFileStore& _store;
    SettingsInFile _settings;
    std::function<std::u16string()> _listInUse;
    std::optional<ListNames> _naming;
};

}  // namespace vantorel
