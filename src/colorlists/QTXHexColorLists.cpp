#include "colorlists/QTXHexColorLists.h"

#include "color/ColorTexts.h"
#include "color/QTXHexColorSpec.h"
#include "colorlists/BuiltInListData.h"

#include <array>

namespace vantorel {
namespace {

struct NamedList {
    BuiltInList token;
    const char16_t* name;
};

constexpr std::array namedLists{
    NamedList{BuiltInList::browserSafe, u"Browser Safe"},
    NamedList{BuiltInList::cssKeyword, u"CSS Keyword"},
    NamedList{BuiltInList::svgKeyword, u"SVG Keyword"},
};

using ListReference = std::shared_ptr<HostColorList>;

/// The lists of this process. Each is set once and never reset.
struct ListReferences {
    ListReference cssKeywordListS;
    ListReference webSafeColorListS;
    ListReference svgKeywordListS;
};

ListReferences& listReferences()
{
    static ListReferences references;
    return references;
}

/// Finds a list in the store, or builds and saves it. `fill` adds the entries to a new list.
template <class Fill>
void buildList(ListReference& reference, BuiltInList token, HostColorListStore& store, Fill&& fill)
{
    if (reference) return;
    const std::u16string name = *nameFromHexColorList(token);
    reference = store.colorListNamed(name);
    if (reference) return;
    reference = std::make_shared<HostColorList>(name);
    fill(*reference);
    store.writeColorList(reference);
}

void addColors(HostColorList& list, std::span<const BuiltInColor> colors)
{
    QTXHexColorSpec spec;
    for (const auto& [key, rgb] : colors) {
        spec.setHexRed(rgb >> 16, (rgb >> 8) & 0xFF, rgb & 0xFF);
        list.setColor(spec.colorHexColorSpec(), key);
    }
}

}  // namespace

std::shared_ptr<HostColorList> hexColorListWithToken(BuiltInList token)
{
    switch (token) {
        case BuiltInList::browserSafe:
            return listReferences().webSafeColorListS;
        case BuiltInList::cssKeyword:
        case BuiltInList::cssKeywordAgain:
            return listReferences().cssKeywordListS;
        case BuiltInList::svgKeyword:
            return listReferences().svgKeywordListS;
    }
    return nullptr;
}

std::optional<std::u16string> nameFromHexColorList(BuiltInList token)
{
    if (token == BuiltInList::cssKeywordAgain) token = BuiltInList::cssKeyword;
    for (const NamedList& row : namedLists) {
        if (row.token == token) return row.name;
    }
    return std::nullopt;
}

BuiltInList hexColorListFromString(std::u16string_view name)
{
    for (const NamedList& row : namedLists) {
        if (row.name == name) return row.token;
    }
    return BuiltInList::cssKeyword;
}

const std::vector<std::u16string>& allHexColorListNames()
{
    static const std::vector<std::u16string> names = [] {
        std::vector<std::u16string> result;
        result.reserve(namedLists.size());
        for (const NamedList& row : namedLists)
            result.emplace_back(row.name);
        return result;
    }();
    return names;
}

void buildCSSKeywordList(HostColorListStore& store)
{
    buildList(listReferences().cssKeywordListS, BuiltInList::cssKeyword, store,
              [](HostColorList& list) { addColors(list, cssKeywordColors()); });
}

void buildWebSafeList(HostColorListStore& store)
{
    buildList(listReferences().webSafeColorListS, BuiltInList::browserSafe, store,
              [](HostColorList& list) {
                  for (const char16_t* key : browserSafeKeys()) {
                      list.setColor(webSafeColorFromName(key), key);
                  }
              });
}

void buildSVGKeywordList(HostColorListStore& store)
{
    buildList(listReferences().svgKeywordListS, BuiltInList::svgKeyword, store,
              [](HostColorList& list) { addColors(list, svgKeywordColors()); });
}

void checkAndInstallColorLists(HostColorListStore& store)
{
    buildCSSKeywordList(store);
    buildWebSafeList(store);
    buildSVGKeywordList(store);
}

}  // namespace vantorel
