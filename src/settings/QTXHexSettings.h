#pragma once

#include "color/ComponentDisplay.h"
#include "color/EntryForm.h"
#include "plist/PropertyList.h"
#include "settings/PickViewMode.h"
#include "snippets/CodeDragType.h"
#include "snippets/QTXCodeSnippet.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorel {

/// Every choice of the user. Setters store what they are given, without check; names, not numbers,
/// are what menus show and the settings file holds.
class QTXHexSettings {
public:
    QTXHexSettings();

    /// The odd copy that there has always been: the active lists come behind the three defaults,
    /// and the naming list and the snippets are not copied.
    [[nodiscard]] QTXHexSettings copyWithZone() const;

    /// Letter case of hex texts.
    [[nodiscard]] EntryForm entryForm() const { return _entryForm; }
    void setEntryForm(EntryForm form) { _entryForm = form; }
    /// Whether hex codes are led by "#".
    [[nodiscard]] bool usePoundSign() const { return _usePoundSign; }
    void setUsePoundSign(bool use) { _usePoundSign = use; }
    /// The list that names the current colour and that the palette shows.
    [[nodiscard]] const std::optional<std::u16string>& hexColorList() const
    {
        return _hexColorList;
    }
    void setHexColorList(std::optional<std::u16string> name) { _hexColorList = std::move(name); }
    /// The lists that the list pop-up offers, in the user's order; to be changed in place.
    [[nodiscard]] std::vector<std::u16string>& activeColorLists() { return _activeColorLists; }
    [[nodiscard]] const std::vector<std::u16string>& activeColorLists() const
    {
        return _activeColorLists;
    }
    [[nodiscard]] PickViewMode pickViewMode() const { return _pickViewMode; }
    void setPickViewMode(PickViewMode mode) { _pickViewMode = mode; }
    /// Rings of the wheel. A settings file can bring any number, negative ones included.
    [[nodiscard]] std::int64_t nColorCubeRings() const { return _nColorCubeRings; }
    void setNColorCubeRings(std::int64_t rings) { _nColorCubeRings = rings; }
    /// Form of the component fields.
    [[nodiscard]] ComponentDisplay componentDisplay() const { return _componentDisplay; }
    void setComponentDisplay(ComponentDisplay display) { _componentDisplay = display; }
    /// The user's snippets; empty until a settings file or the start-up supplies some.
    [[nodiscard]] const std::vector<QTXCodeSnippet>& codeSnippets() const;
    /// Whether there is an array of them, be it an empty one.
    [[nodiscard]] bool hasCodeSnippets() const { return _codeSnippets.has_value(); }
    void setCodeSnippets(std::optional<std::vector<QTXCodeSnippet>> snippets)
    {
        _codeSnippets = std::move(snippets);
    }
    /// The name of the chosen snippet.
    [[nodiscard]] const std::optional<std::u16string>& codeSnippetName() const
    {
        return _codeSnippetName;
    }
    void setCodeSnippetName(std::optional<std::u16string> name)
    {
        _codeSnippetName = std::move(name);
    }
    /// Whether the built-in lists are installed at start.
    [[nodiscard]] bool createColorLists() const { return _createColorLists; }
    void setCreateColorLists(bool create) { _createColorLists = create; }
    [[nodiscard]] CodeDragType codeDragType() const { return _codeDragType; }
    void setCodeDragType(CodeDragType type) { _codeDragType = type; }

    /// The first snippet with the chosen name; the first built-in one when there is none.
    [[nodiscard]] const QTXCodeSnippet& codeSnippet() const;
    /// The names of the snippets, in order; takes the built-in snippets first where there are none.
    /// The answer to the first call in the process is the answer to all: the snippets do not change
    /// while the picker runs.
    [[nodiscard]] const std::vector<std::u16string>& codeSnippetNames();

    // Display names. A value that has none gives nothing; an unknown name gives the first value
    // named here. Names are compared exactly.

    [[nodiscard]] static std::optional<std::u16string> nameEntryForm(EntryForm form);
    /// Uppercase, unless the name is "Lowercase".
    [[nodiscard]] static EntryForm entryFormFromName(std::u16string_view name);
    [[nodiscard]] static const std::vector<std::u16string>& entryFormNames();
    [[nodiscard]] static std::optional<std::u16string> nameComponentDisplay(
        ComponentDisplay display);
    /// Hex for an unknown name.
    [[nodiscard]] static ComponentDisplay componentDisplayFromName(std::u16string_view name);
    [[nodiscard]] static const std::vector<std::u16string>& componentDisplayNames();
    [[nodiscard]] static std::optional<std::u16string> nameCodeDragType(CodeDragType type);
    /// Hex Code for an unknown name.
    [[nodiscard]] static CodeDragType codeDragTypeFromName(std::u16string_view name);
    [[nodiscard]] static const std::vector<std::u16string>& codeDragTypeNames();

    // As a property list (QTXHexSettingsPropertyList.cpp).

    /// The settings as a dictionary of strings, with the lists and snippets as arrays.
    [[nodiscard]] PropertyList propertyListRepresentation() const;
    /// Takes what a dictionary holds; a missing key, or a value of the wrong kind, leaves the
    /// setting as it is. Afterwards there are always snippets and a chosen name.
    void loadPropertyListRepresentation(const PropertyList& dictionary);

private:
    void loadCodeSnippets(const PropertyList* snippets);

    EntryForm _entryForm = EntryForm::uppercase;
    bool _usePoundSign = true;
    std::optional<std::u16string> _hexColorList;
    std::vector<std::u16string> _activeColorLists;
    PickViewMode _pickViewMode = PickViewMode::slider;
    std::int64_t _nColorCubeRings = 8;
    ComponentDisplay _componentDisplay = ComponentDisplay::hex;
    std::optional<std::vector<QTXCodeSnippet>> _codeSnippets;
    std::optional<std::u16string> _codeSnippetName;
    bool _createColorLists = true;
    CodeDragType _codeDragType = CodeDragType::hexCode;
};

}  // namespace vantorel
