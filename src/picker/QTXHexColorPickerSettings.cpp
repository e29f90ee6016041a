#include "picker/ControlWriting.h"
#include "picker/QTXHexColorPicker.h"
#include "settings/SettingsFile.h"

/// The actions of the controls that change a setting.
namespace vantorel {
namespace {

constexpr std::int64_t fewestCubeRings = 4;
constexpr std::int64_t mostCubeRings = 17;

}  // namespace

void QTXHexColorPicker::storeDefaults()
{
    if (__holdOffDefaultsStore) return;
    HostFiles& files = colorPanel().desktop().files();
    if (!_isSettingsFileLoaded && !keepDefaultsFile(files)) return;
    _isSettingsFileLoaded = true;
    writeDefaults(files, _hexSettings, _settingsMerge);
}

void QTXHexColorPicker::takeInDefaults()
{
    const ComponentDisplay display = _hexSettings.componentDisplay();
    const PickViewMode mode = _hexSettings.pickViewMode();
    if (!vantorel::takeInDefaults(colorPanel().desktop().files(), _hexSettings, _settingsMerge)) {
        return;
    }
    buildColorListsPopup();
    setItems(cCodeEntryFormPopUp, _hexSettings.codeSnippetNames());
    syncPanel();
    if (_hexSettings.componentDisplay() != display) viewSizeChanged(nullptr);
    if (_hexSettings.pickViewMode() != mode) hideCursorReadout();
}

void QTXHexColorPicker::entryFormAction(HostControl* sender)
{
    if (__holdOffSync) return;
    const EntryForm form =
        QTXHexSettings::entryFormFromName(selectedTitle(entryFormPopUp).value_or(u""));
    if (form == _hexSettings.entryForm()) return;
    _hexSettings.setEntryForm(form);
    colorChanged(sender);
    storeDefaults();
}

void QTXHexColorPicker::poundSignAction(HostControl* sender)
{
    if (__holdOffSync) return;
    _hexSettings.setUsePoundSign(poundSignCheckbox != nullptr && poundSignCheckbox->state() == 1);
    colorChanged(sender);
    storeDefaults();
}

void QTXHexColorPicker::componentDisplayAction(HostControl* sender)
{
    colorPanel().desktop().log(u"hit componentDisplayAction");
    if (__holdOffSync) return;
    const auto* popUp = dynamic_cast<HostPopUpButton*>(sender);
    const ComponentDisplay display =
        QTXHexSettings::componentDisplayFromName(selectedTitle(popUp).value_or(u""));
    if (display == _hexSettings.componentDisplay()) return;
    _hexSettings.setComponentDisplay(display);
    colorChanged(sender);
    viewSizeChanged(nullptr);
    if (_hexPickerView != nullptr) _hexPickerView->setNeedsDisplay(true);
    storeDefaults();
}

void QTXHexColorPicker::cCodeEntryFormAction(HostControl* sender)
{
    if (__holdOffSync) return;
    _hexSettings.setCodeSnippetName(selectedTitle(cCodeEntryFormPopUp));
    colorChanged(sender);
    storeDefaults();
}

void QTXHexColorPicker::codeDragTypePopupAction(HostControl*)
{
    if (__holdOffSync) return;
    _hexSettings.setCodeDragType(
        QTXHexSettings::codeDragTypeFromName(selectedTitle(codeDragTypePopUp).value_or(u"")));
    storeDefaults();
}

void QTXHexColorPicker::increaseCubeRingsAction(HostControl*)
{
    const std::int64_t rings = _hexSettings.nColorCubeRings();
    if (__holdOffSync || rings >= mostCubeRings) return;
    _hexSettings.setNColorCubeRings(rings + 1);
    syncPanel();
    storeDefaults();
}

void QTXHexColorPicker::decreaseCubeRingsAction(HostControl*)
{
    const std::int64_t rings = _hexSettings.nColorCubeRings();
    if (__holdOffSync || rings <= fewestCubeRings) return;
    _hexSettings.setNColorCubeRings(rings - 1);
    syncPanel();
    storeDefaults();
}

void QTXHexColorPicker::sliderViewModeAction(HostControl*)
{
    setPickViewMode(PickViewMode::slider);
}

void QTXHexColorPicker::paletteViewModeAction(HostControl*)
{
    setPickViewMode(PickViewMode::palette);
}

void QTXHexColorPicker::cubeViewModeAction(HostControl*)
{
    setPickViewMode(PickViewMode::wheel);
}

void QTXHexColorPicker::setPickViewMode(PickViewMode mode)
{
    if (__holdOffSync) return;
    if (_hexSettings.pickViewMode() == mode) {
        // A toggle switches itself off when the user chooses the active mode again.
        syncViewModeButtons();
        return;
    }
    _hexSettings.setPickViewMode(mode);
    syncPanel();
    storeDefaults();
    checkTrackingStatus();
    hideCursorReadout();
}

}  // namespace vantorel
