#include "colorlists/QTXHexColorLists.h"

#include "color/ColorTexts.h"
#include "color/QTXHexColorSpec.h"
#include "colorlists/BuiltInListData.h"

#include <array>

namespace vantorel {
namespace {

enum Token : int {
    browserSafeToken = 12,
    cssKeywordToken = 13,
    svgKeywordToken = 14,
    cssKeywordSecondToken = 15,
};

struct NamedToken {
    int token;
    const char16_t* name;
};

constexpr std::array namedTokens{
    NamedToken{browserSafeToken, u"Browser Safe"},
    NamedToken{cssKeywordToken, u"CSS Keyword"},
    NamedToken{svgKeywordToken, u"SVG Keyword"},
};

using ListReference = std::shared_ptr<HostColorList>;

/// The lists of this process; each is set once and then kept for good.
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

/// Finds or builds one list. `fill` adds the entries to a new one.
template <class Fill>
void buildList(ListReference& reference, int token, HostColorListStore& store, Fill&& fill)
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

std::shared_ptr<HostColorList> hexColorListWithToken(int token)
{
    switch (token) {
        case browserSafeToken:
            return listReferences().webSafeColorListS;
        case cssKeywordToken:
        case cssKeywordSecondToken:
            return listReferences().cssKeywordListS;
        case svgKeywordToken:
            return listReferences().svgKeywordListS;
        default:
            return nullptr;
    }
}

std::optional<std::u16string> nameFromHexColorList(int token)
{
    if (token == cssKeywordSecondToken) token = cssKeywordToken;
    for (const NamedToken& row : namedTokens) {
        if (row.token == token) return row.name;
    }
    return std::nullopt;
}

int hexColorListFromString(std::u16string_view name)
{
    for (const NamedToken& row : namedTokens) {
        if (row.name == name) return row.token;
    }
    return cssKeywordToken;
}

const std::vector<std::u16string>& allHexColorListNames()
{
    static const std::vector<std::u16string> names = [] {
        std::vector<std::u16string> result;
        result.reserve(namedTokens.size());
        for (const NamedToken& row : namedTokens)
            result.emplace_back(row.name);
        return result;
    }();
    return names;
}

void buildCSSKeywordList(HostColorListStore& store)
{
    buildList(listReferences().cssKeywordListS, cssKeywordToken, store,
              [](HostColorList& list) { addColors(list, cssKeywordColors()); });
}

void buildWebSafeList(HostColorListStore& store)
{
    buildList(listReferences().webSafeColorListS, browserSafeToken, store, [](HostColorList& list) {
        for (const char16_t* key : browserSafeKeys()) {
            list.setColor(webSafeColorFromName(key), key);
        }
    });
}

void buildSVGKeywordList(HostColorListStore& store)
{
    buildList(listReferences().svgKeywordListS, svgKeywordToken, store,
              [](HostColorList& list) { addColors(list, svgKeywordColors()); });
}

void checkAndInstallColorLists(HostColorListStore& store)
{
    buildCSSKeywordList(store);
    buildWebSafeList(store);
    buildSVGKeywordList(store);
}

}  // namespace vantorel
