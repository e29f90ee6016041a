#include "settings/QTXHexSettings.h"
#include "settings/SettingsKeys.h"
#include "text/ASCII.h"
#include "text/Decimals.h"

#include <limits>

namespace vantorel {
namespace {

constexpr const char16_t* yes = u"YES";
constexpr const char16_t* no = u"NO";

/// Formats a number like printf's "%d": the low 32 bits, signed.
std::u16string integerText(std::int64_t value)
{
    return decimalText(static_cast<std::int32_t>(value));
}

/// Parses the number at the start of a text, after optional spaces and a sign. Returns 0 if there
/// is none. Saturates.
std::int64_t integerValue(std::u16string_view text)
{
    std::size_t place = 0;
    while (place < text.size() &&
           (text[place] == u' ' || (text[place] >= 9 && text[place] <= 13))) {
        ++place;
    }
    bool negative = false;
    if (place < text.size() && (text[place] == u'-' || text[place] == u'+')) {
        negative = text[place++] == u'-';
    }
    constexpr auto largest = std::numeric_limits<std::int64_t>::max();
    std::int64_t value = 0;
    for (; place < text.size() && isDigit(text[place]); ++place) {
        const std::int64_t digit = text[place] - u'0';
        if (value > (largest - digit) / 10) {
            return negative ? std::numeric_limits<std::int64_t>::min() : largest;
        }
        value = value * 10 + digit;
    }
    return negative ? -value : value;
}

}  // namespace

PropertyList QTXHexSettings::propertyListRepresentation() const
{
    PropertyList dictionary(PropertyList::Dictionary{});
    const auto set = [&](const char16_t* key, PropertyList value) {
        dictionary.setValue(std::move(value), key);
    };
    // A value without a name is omitted. When the file is read, the missing key then gives the
    // default.
    const auto setName = [&](const char16_t* key, const std::optional<std::u16string>& name) {
        if (name) set(key, *name);
    };
    setName(ComponentDisplayKey, nameComponentDisplay(_componentDisplay));
    setName(CodeSnippetNameKey, _codeSnippetName);
    setName(CodeDragTypeKey, nameCodeDragType(_codeDragType));
    set(PickModeColorListsKey, stringFromPickViewMode(_pickViewMode));
    set(AddedColorListsKey,
        PropertyList::Array(_activeColorLists.begin(), _activeColorLists.end()));
    setName(HexColorLlstKey, _hexColorList);
    setName(EntryFormKey, nameEntryForm(_entryForm));
    set(NColorCubeRingsKey, integerText(_nColorCubeRings));
    set(UsePoundSignKey, _usePoundSign ? yes : no);
    set(CreateColorListsKey, _createColorLists ? yes : no);
    if (!codeSnippets().empty()) {
        PropertyList::Array snippets;
        for (const QTXCodeSnippet& snippet : codeSnippets()) {
            snippets.push_back(snippet.propertyListRepresentation());
        }
        set(CodeSnippetsKey, std::move(snippets));
    }
    return dictionary;
}

void QTXHexSettings::loadPropertyListRepresentation(const PropertyList& dictionary)
{
    const auto string = [&](const char16_t* key) { return dictionary.stringForKey(key); };

    if (const auto* name = string(ComponentDisplayKey)) {
        setComponentDisplay(componentDisplayFromName(*name));
    }
    loadCodeSnippets(dictionary.valueForKey(CodeSnippetsKey));
    const auto* snippetName = string(CodeSnippetNameKey);
    setCodeSnippetName(snippetName != nullptr ? *snippetName
                                              : codeSnippets().front().nameSnippet());
    if (const auto* name = string(CodeDragTypeKey)) setCodeDragType(codeDragTypeFromName(*name));
    if (const auto* text = string(CreateColorListsKey)) setCreateColorLists(*text == yes);
    if (const auto* name = string(PickModeColorListsKey)) {
        setPickViewMode(pickViewModeFromString(*name));
    }
    const PropertyList* lists = dictionary.valueForKey(AddedColorListsKey);
    if (lists != nullptr && lists->array() != nullptr) {
        _activeColorLists.clear();
        for (const PropertyList& name : *lists->array()) {
            if (name.string() != nullptr) _activeColorLists.push_back(*name.string());
        }
    }
    if (const auto* name = string(HexColorLlstKey)) setHexColorList(*name);
    if (const auto* name = string(EntryFormKey)) setEntryForm(entryFormFromName(*name));
    if (const auto* text = string(UsePoundSignKey)) setUsePoundSign(*text == yes);
    if (const auto* text = string(NColorCubeRingsKey)) setNColorCubeRings(integerValue(*text));
}

void QTXHexSettings::loadCodeSnippets(const PropertyList* snippets)
{
    std::vector<QTXCodeSnippet> loaded;
    if (snippets != nullptr && snippets->array() != nullptr) {
        for (const PropertyList& element : *snippets->array()) {
            if (element.dictionary() == nullptr) {
                // A single invalid element invalidates the whole array.
                loaded.clear();
                break;
            }
            loaded.emplace_back().loadPropertyListRepresentation(element);
        }
    }
    if (loaded.empty()) loaded = QTXCodeSnippet::buildDefaultCodeSnippets();
    setCodeSnippets(std::move(loaded));
}

}  // namespace vantorel
