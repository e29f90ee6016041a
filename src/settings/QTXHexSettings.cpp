#include "settings/QTXHexSettings.h"

#include "colorlists/QTXHexColorLists.h"
#include "settings/DisplayNames.h"

namespace vantorel {
namespace {

constexpr std::array defaultLists{BuiltInList::browserSafe, BuiltInList::cssKeyword,
                                  BuiltInList::svgKeyword};
constexpr BuiltInList defaultNamingList = BuiltInList::cssKeyword;

constexpr std::array<DisplayName<EntryForm>, 2> entryForms{{
    {EntryForm::uppercase, u"Uppercase"},
    {EntryForm::lowercase, u"Lowercase"},
}};

constexpr std::array<DisplayName<PickViewMode>, 3> pickViewModes{{
    {PickViewMode::slider, u"Slider"},
    {PickViewMode::palette, u"Palette"},
    {PickViewMode::wheel, u"Wheel"},
}};

constexpr std::array<DisplayName<ComponentDisplay>, 4> componentDisplays{{
    {ComponentDisplay::hex, u"Hex"},
    {ComponentDisplay::integer, u"Integer"},
    {ComponentDisplay::fraction, u"Fraction"},
    {ComponentDisplay::codeSnippet, u"Code Snippet"},
}};

constexpr std::array<DisplayName<CodeDragType>, 4> codeDragTypes{{
    {CodeDragType::color, u"Color"},
    {CodeDragType::hexCode, u"Hex Code"},
    {CodeDragType::rgbCSS, u"RGB (CSS)"},
    {CodeDragType::codeSnippet, u"Code Snippet"},
}};

}  // namespace

std::u16string stringFromPickViewMode(PickViewMode mode)
{
    return nameOfValue(pickViewModes, mode).value_or(u"Slider");
}

PickViewMode pickViewModeFromString(std::u16string_view name)
{
    return valueOfName(pickViewModes, name, PickViewMode::slider);
}

QTXHexSettings::QTXHexSettings() : _hexColorList(nameFromHexColorList(defaultNamingList))
{
    for (const BuiltInList token : defaultLists) {
        _activeColorLists.push_back(nameFromHexColorList(token).value_or(u""));
    }
}

QTXHexSettings QTXHexSettings::copyWithZone() const
{
    QTXHexSettings copy;
    for (const std::u16string& name : _activeColorLists)
        copy._activeColorLists.push_back(name);
    copy.setEntryForm(_entryForm);
    copy.setUsePoundSign(_usePoundSign);
    copy.setPickViewMode(_pickViewMode);
    copy.setNColorCubeRings(_nColorCubeRings);
    copy.setCodeDragType(_codeDragType);
    copy.setCodeSnippetName(_codeSnippetName);
    copy.setCreateColorLists(_createColorLists);
    copy.setComponentDisplay(_componentDisplay);
    return copy;
}

const std::vector<QTXCodeSnippet>& QTXHexSettings::codeSnippets() const
{
    static const std::vector<QTXCodeSnippet> none;
    return _codeSnippets ? *_codeSnippets : none;
}

const QTXCodeSnippet& QTXHexSettings::codeSnippet() const
{
    for (const QTXCodeSnippet& snippet : codeSnippets()) {
        if (_codeSnippetName && snippet.nameSnippet() == _codeSnippetName) return snippet;
    }
    return QTXCodeSnippet::buildDefaultCodeSnippets().front();
}

const std::vector<std::u16string>& QTXHexSettings::codeSnippetNames()
{
    if (codeSnippets().empty()) setCodeSnippets(QTXCodeSnippet::buildDefaultCodeSnippets());
    static const std::vector<std::u16string> names = [this] {
        std::vector<std::u16string> result;
        for (const QTXCodeSnippet& snippet : codeSnippets()) {
            result.push_back(snippet.nameSnippet().value_or(u""));
        }
        return result;
    }();
    return names;
}

std::optional<std::u16string> QTXHexSettings::nameEntryForm(EntryForm form)
{
    return nameOfValue(entryForms, form);
}

EntryForm QTXHexSettings::entryFormFromName(std::u16string_view name)
{
    return valueOfName(entryForms, name, EntryForm::uppercase);
}

const std::vector<std::u16string>& QTXHexSettings::entryFormNames()
{
    static const auto names = namesOfValues(entryForms);
    return names;
}

std::optional<std::u16string> QTXHexSettings::nameComponentDisplay(ComponentDisplay display)
{
    return nameOfValue(componentDisplays, display);
}

ComponentDisplay QTXHexSettings::componentDisplayFromName(std::u16string_view name)
{
    return valueOfName(componentDisplays, name, ComponentDisplay::hex);
}

const std::vector<std::u16string>& QTXHexSettings::componentDisplayNames()
{
    static const auto names = namesOfValues(componentDisplays);
    return names;
}

std::optional<std::u16string> QTXHexSettings::nameCodeDragType(CodeDragType type)
{
    return nameOfValue(codeDragTypes, type);
}

CodeDragType QTXHexSettings::codeDragTypeFromName(std::u16string_view name)
{
    return valueOfName(codeDragTypes, name, CodeDragType::hexCode);
}

const std::vector<std::u16string>& QTXHexSettings::codeDragTypeNames()
{
    static const auto names = namesOfValues(codeDragTypes);
    return names;
}

}  // namespace vantorel
