#pragma once

#include "color/ComponentDisplay.h"
#include "color/EntryForm.h"
#include "color/HexForm.h"
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

/// The user's settings. Setters store any value unchecked. Menus and the settings file use display
/// names, not numbers.
class QTXHexSettings {
public:
    QTXHexSettings();

    /// Copies the settings, with two historical quirks: the active lists are appended to the three
    /// default lists, and the naming list and the snippets are not copied.
    [[nodiscard]] QTXHexSettings copyWithZone() const;

    /// Letter case of hex texts.
    [[nodiscard]] EntryForm entryForm() const { return _entryForm; }
    void setEntryForm(EntryForm form) { _entryForm = form; }
    /// Whether hex codes start with "#".
    [[nodiscard]] bool usePoundSign() const { return _usePoundSign; }
    void setUsePoundSign(bool use) { _usePoundSign = use; }
    /// Both of these, for texts that are written elsewhere.
    [[nodiscard]] HexForm hexForm() const { return {_entryForm, _usePoundSign}; }
    /// The naming list: names the current colour and is shown in the palette.
    [[nodiscard]] const std::optional<std::u16string>& hexColorList() const
    {
        return _hexColorList;
    }
    void setHexColorList(std::optional<std::u16string> name) { _hexColorList = std::move(name); }
    /// The lists in the list pop-up, in the user's order. Modify them through the reference.
    [[nodiscard]] std::vector<std::u16string>& activeColorLists() { return _activeColorLists; }
    [[nodiscard]] const std::vector<std::u16string>& activeColorLists() const
    {
        return _activeColorLists;
    }
    [[nodiscard]] PickViewMode pickViewMode() const { return _pickViewMode; }
    void setPickViewMode(PickViewMode mode) { _pickViewMode = mode; }
    /// The number of rings of the wheel. A settings file can contain any number, even a negative
    /// one.
    [[nodiscard]] std::int64_t nColorCubeRings() const { return _nColorCubeRings; }
    void setNColorCubeRings(std::int64_t rings) { _nColorCubeRings = rings; }
    /// The form of the component fields.
    [[nodiscard]] ComponentDisplay componentDisplay() const { return _componentDisplay; }
    void setComponentDisplay(ComponentDisplay display) { _componentDisplay = display; }
    /// The user's snippets; empty until the settings file or the start-up code supplies some.
    [[nodiscard]] const std::vector<QTXCodeSnippet>& codeSnippets() const;
    /// Whether a snippet array is set, even if it is empty.
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
    /// Whether the built-in lists are installed at start-up.
    [[nodiscard]] bool createColorLists() const { return _createColorLists; }
    void setCreateColorLists(bool create) { _createColorLists = create; }
    [[nodiscard]] CodeDragType codeDragType() const { return _codeDragType; }
    void setCodeDragType(CodeDragType type) { _codeDragType = type; }

    /// Returns the first snippet with the chosen name, or the first built-in one if there is none.
    [[nodiscard]] const QTXCodeSnippet& codeSnippet() const;
    /// Returns the names of the snippets, in order. If there are no snippets, the built-in ones are
    /// set first. The first result in the process is returned by every later call, since snippets
    /// do not change while the picker runs.
    [[nodiscard]] const std::vector<std::u16string>& codeSnippetNames();

    // Display names. A value without a name returns `std::nullopt`. An unknown name returns the
    // value documented at each function. Names are compared exactly.

    [[nodiscard]] static std::optional<std::u16string> nameEntryForm(EntryForm form);
    /// Returns uppercase unless the name is "Lowercase".
    [[nodiscard]] static EntryForm entryFormFromName(std::u16string_view name);
    [[nodiscard]] static const std::vector<std::u16string>& entryFormNames();
    [[nodiscard]] static std::optional<std::u16string> nameComponentDisplay(
        ComponentDisplay display);
    /// Returns hex for an unknown name.
    [[nodiscard]] static ComponentDisplay componentDisplayFromName(std::u16string_view name);
    [[nodiscard]] static const std::vector<std::u16string>& componentDisplayNames();
    [[nodiscard]] static std::optional<std::u16string> nameCodeDragType(CodeDragType type);
    /// Returns hex code for an unknown name.
    [[nodiscard]] static CodeDragType codeDragTypeFromName(std::u16string_view name);
    [[nodiscard]] static const std::vector<std::u16string>& codeDragTypeNames();

    // Property-list form (QTXHexSettingsPropertyList.cpp).

    /// Returns the settings as a dictionary of strings, with lists and snippets as arrays.
    [[nodiscard]] PropertyList propertyListRepresentation() const;
    /// Loads the settings from a dictionary. A key that is missing or has a value of the wrong kind
    /// leaves its setting unchanged. Afterwards there are always snippets and a chosen snippet
    /// name.
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
