#include "color/ColorTexts.h"
#include "colorlists/QTXHexColorLists.h"
#include "picker/ControlWriting.h"
#include "picker/QTXHexColorPicker.h"
#include "snippets/FormatString.h"

#include <array>

namespace vantorel {
namespace {

// The misspelt name is fixed.
constexpr HostColor exactMatchTextdColorS = HostColor::blackColor();
constexpr HostColor notExactMatchTextColorS =
    HostColor::colorWithCalibratedRed(200 / 255.0, 30 / 255.0, 30 / 255.0, 1.0);
constexpr const char16_t* addStr = u"Add";

}  // namespace

void QTXHexColorPicker::syncPanel()
{
    _mustSync = _isHidden;
    if (_isHidden) return;
    const EntryForm entryForm = _hexSettings.entryForm();
    const ComponentDisplay display = _hexSettings.componentDisplay();
    const auto red =
        _hexColorSpec.redStringHexColorSpecWithEntryForm(entryForm, display).value_or(u"");
    const auto green =
        _hexColorSpec.greenStringHexColorSpecWithEntryForm(entryForm, display).value_or(u"");
    const auto blue =
        _hexColorSpec.blueStringHexColorSpecWithEntryForm(entryForm, display).value_or(u"");
    std::u16string full = _hexColorSpec.fullStringHexColorSpecWithEntryForm(entryForm);

    __holdOffSync = true;
    setText(_rgbDecimalText, _hexColorSpec.rgbDecimalStringWithEntryForm(entryForm));
    syncListColorNames();
    syncListColor();
    syncNamingList();
    syncExactness(red, green, blue);
    setText(_redHexText, red);
    setText(_greenHexText, green);
    setText(_blueHexText, blue);
    if (_hexSettings.usePoundSign()) full.insert(0, u"#");
    if (poundSignCheckbox != nullptr) poundSignCheckbox->setState(_hexSettings.usePoundSign());
    setText(_fullHexText, full);
    selectTitle(componentDisplayPopUp,
                QTXHexSettings::nameComponentDisplay(_hexSettings.componentDisplay()));
    syncCodeSnippet();
    selectTitle(cCodeEntryFormPopUp, _hexSettings.codeSnippetName());
    selectTitle(codeDragTypePopUp, QTXHexSettings::nameCodeDragType(_hexSettings.codeDragType()));
    _hexColorsView.setNeedsDisplay(true);
    selectTitle(entryFormPopUp, QTXHexSettings::nameEntryForm(_hexSettings.entryForm()));
    syncViewModeButtons();
    __holdOffSync = false;
}

void QTXHexColorPicker::syncNamingList()
{
    // A settings file can contain an empty name, which counts as no name.
    if (const auto& name = _hexSettings.hexColorList(); name && !name->empty()) {
        selectTitle(hexColorsListPopUp, _hexSettings.hexColorList());
        return;
    }
    const auto name = nameFromHexColorList(BuiltInList::cssKeyword);
    _hexSettings.setHexColorList(name);
    if (hexColorsListPopUp == nullptr) return;
    const bool offered =
        name && hexColorsListPopUp->indexOfItemWithTitle(*name) != HostPopUpButton::noItem;
    hexColorsListPopUp->selectItemWithTitle(offered ? *name : addStr);
}

void QTXHexColorPicker::syncExactness(const std::u16string& red, const std::u16string& green,
                                      const std::u16string& blue)
{
    struct Row {
        HostTextField* field;
        const std::u16string& text;
        double remainder;
    };
    const std::array rows{
        Row{_redHexText, red, _hexColorSpec.redRemainder()},
        Row{_greenHexText, green, _hexColorSpec.greenRemainder()},
        Row{_blueHexText, blue, _hexColorSpec.blueRemainder()},
    };
    const bool exact = _hexColorSpec.isExact();
    for (const Row& row : rows) {
        if (row.field == nullptr) continue;
        row.field->setTextColor(exact ? exactMatchTextdColorS : notExactMatchTextColorS);
        // The tip reads the text as hex in every display, even if the text is not hex. This is kept
        // for compatibility.
        const std::uint64_t value = readComponent(row.text, ComponentDisplay::hex);
        const std::array arguments{FormatArgument{value}, FormatArgument{row.remainder * 255.0}};
        row.field->setToolTip(formatted(exact ? u"%3.0d" : u"%3.0d + %0.3f", arguments));
    }
}

void QTXHexColorPicker::syncCodeSnippet()
{
    // In the other displays, the snippet field keeps its last text.
    if (_hexSettings.componentDisplay() != ComponentDisplay::codeSnippet) return;
    const auto panelColor = colorPanel().color();
    _hexColorSpec.setAlphaComp(panelColor ? panelColor->alphaComponent() : 0.0);
    setText(_objCCodeText, _hexSettings.codeSnippet().codeSnippetWithColorSpec(_hexColorSpec));
}

void QTXHexColorPicker::syncViewModeButtons()
{
    const PickViewMode mode = _hexSettings.pickViewMode();
    const auto show = [](HostButton* button, bool active) {
        if (button != nullptr) button->setState(active ? 1 : 0);
    };
    show(pickViewModeButton, mode == PickViewMode::slider);
    show(paletteViewModeButton, mode == PickViewMode::palette);
    show(wheelViewModeButton, mode == PickViewMode::wheel);
}

}  // namespace vantorel
