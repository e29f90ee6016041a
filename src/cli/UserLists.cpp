#include "cli/UserLists.h"

#include "cli/Failure.h"
#include "color/QTXHexColorSpec.h"
#include "colorlists/QTXHexColorLists.h"
#include "csscolor/CSSNamedColors.h"
#include "result/HarmlessLine.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

std::vector<std::u16string> builtInNames()
{
    std::vector<std::u16string> names = allHexColorListNames();
    names.emplace_back(cssColor4ListName);
    return names;
}

bool isBuiltIn(const std::u16string& name)
{
    const auto names = builtInNames();
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::shared_ptr<HostColorList> cssColor4List()
{
    auto list = std::make_shared<HostColorList>(std::u16string(cssColor4ListName));
    QTXHexColorSpec spec;
    for (const auto& [name, value] : cssNamedColors()) {
        spec.setHexRed(value >> 16, value >> 8 & 0xFF, value & 0xFF);
        list->setColor(spec.colorHexColorSpec(), std::u16string(name));
    }
    return list;
}

/// A store without lists that saves none, so that the built-in lists are built in memory.
class EmptyStore final : public HostColorListStore {
public:
    [[nodiscard]] std::shared_ptr<HostColorList> colorListNamed(const std::u16string&) override
    {
        return nullptr;
    }
    [[nodiscard]] std::vector<std::u16string> availableColorLists() override { return {}; }
    bool writeColorList(const std::shared_ptr<HostColorList>&) override { return false; }
};

std::shared_ptr<HostColorList> builtInList(const std::u16string& name)
{
    if (name == cssColor4ListName) return cssColor4List();
    EmptyStore store;
    const BuiltInList token = hexColorListFromString(name);
    switch (token) {
        case BuiltInList::browserSafe:
            buildWebSafeList(store);
            break;
        case BuiltInList::svgKeyword:
            buildSVGKeywordList(store);
            break;
        case BuiltInList::cssKeyword:
        case BuiltInList::cssKeywordAgain:
            buildCSSKeywordList(store);
            break;
    }
    return hexColorListWithToken(token);
}

}  // namespace

/// Whether the user's own folder has a list. Lists of other programs do not count, because they do
/// not replace built-in ones.
bool UserLists::isSaved(const std::u16string& name)
{
    const auto path = _store.pathOfOwnList(name);
    return path.has_value();
}

std::shared_ptr<HostColorList> UserLists::listNamed(const std::u16string& name)
{
    if (isBuiltIn(name) && !isSaved(name)) return builtInList(name);
    return _store.colorListNamed(name);
}

std::shared_ptr<HostColorList> UserLists::requiredList(const std::string& utf8Name)
{
    const std::u16string name = utf16FromUtf8(utf8Name);
    auto list = listNamed(name);
    if (!list) {
        throw Failure{{phrase("there is no colour list \"%1\"", excerpt(utf8Name)),
                       phrase("run \"vantorel lists\" to list them")}};
    }
    return list;
}

std::vector<UserLists::Entry> UserLists::all()
{
    std::vector<Entry> lists;
    for (ListedPalette& listed : _store.listedPalettes()) {
        const bool isHidden = !listed.isOwn() && isBuiltIn(listed.name);
        lists.push_back({std::move(listed.name),
                         isHidden ? std::nullopt : std::optional(std::move(listed.path))});
    }
    for (const std::u16string& name : builtInNames()) {
        const auto place = std::ranges::lower_bound(lists, name, {}, &Entry::name);
        if (place == lists.end() || place->name != name) lists.insert(place, {name, std::nullopt});
    }
    return lists;
}

std::optional<std::string> UserLists::fileOfList(const std::u16string& name)
{
    const auto path = _store.pathOfOwnList(name);
    return path ? _files.contentsAtPath(*path) : std::nullopt;
}

std::u16string titleOf(const PaletteNameMatch& match)
{
    return match.exact ? *match.exact : closeTitle(match.close);
}

PaletteNameMatch ColorNamer::names(const ColorNameMatch& match) const
{
    const auto& keys = _list->allKeys();
    PaletteNameMatch names;
    if (match.exactPlace) names.exact = keys[*match.exactPlace];
    names.close.reserve(match.closePlaces.size());
    for (const std::size_t place : match.closePlaces)
        names.close.push_back(keys[place]);
    return names;
}

PaletteNameMatch ColorNamer::names(const QTXHexColorSpec& color) const
{
    return names(match(color));
}

}  // namespace vantorel
