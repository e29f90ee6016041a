#pragma once

#include "colorlists/ColorListIndex.h"
#include "colorlists/ColorNamesPopUp.h"
#include "colorlists/PaletteFileStore.h"
#include "host/HostColorList.h"
#include "host/HostFiles.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// The colour lists as the picker offers them. The built-in ones are there before the picker has
/// saved them, too; nothing is saved here.
class UserLists {
public:
    /// `files` must outlive this object.
    explicit UserLists(HostFiles& files) : _store(files) {}

    /// Null when there is none of that name. Reads no other list's file when the name is that of a
    /// built-in list.
    [[nodiscard]] std::shared_ptr<HostColorList> listNamed(const std::u16string& name);
    /// The same; a name without a list is a `Failure`.
    [[nodiscard]] std::shared_ptr<HostColorList> requiredList(const std::string& utf8Name);
    /// Sorted.
    [[nodiscard]] std::vector<std::u16string> names();
    /// The file of a list; nothing for one that is built in and has not been saved.
    [[nodiscard]] std::optional<std::string> pathOfList(const std::u16string& name);

private:
    [[nodiscard]] bool isSaved(const std::u16string& name);

    PaletteFileStore _store;
};

/// Names colours by a list, as the picker does.
class ColorNamer {
public:
    /// `list` must not be null.
    explicit ColorNamer(std::shared_ptr<HostColorList> list) : _list(std::move(list))
    {
        _index.update(_list);
    }

    [[nodiscard]] const HostColorList& list() const { return *_list; }
    [[nodiscard]] ColorNameMatch match(const QTXHexColorSpec& color) const
    {
        return matchColorName(color, *_list, _index);
    }
    /// The name, or what the picker's name pop-up says where none is exact: "* navy, teal" or "No
    /// Match".
    [[nodiscard]] std::u16string title(const ColorNameMatch& match) const;

private:
    std::shared_ptr<HostColorList> _list;
    ColorListIndex _index;
};

}  // namespace vantorel
