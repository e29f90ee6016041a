#include "picker/ManualAddress.h"
#include "picker/PickerLayout.h"
#include "picker/QTXHexColorPicker.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

/// The two faces of the page, colours and settings, and their layout. Only one of them is in the
/// view hierarchy at a time, in the same position.
namespace vantorel {
namespace {

/// The page size at which every row of the settings face fits.
constexpr HostSize roomySettingsSize{240, 300};

bool isShown(const HostView& view)
{
    return view.superview() != nullptr;
}

bool isSmaller(HostSize size, HostSize limit)
{
    return size.width < limit.width || size.height < limit.height;
}

}  // namespace

void QTXHexColorPicker::checkTrackingStatus()
{
    _hexColorsView.startTracking();
}

void QTXHexColorPicker::settingsButtonAction(HostControl*)
{
    if (!__holdOffSync) toggleSettingsView();
}

void QTXHexColorPicker::settingsDoneButtonAction(HostControl*)
{
    if (!__holdOffSync) toggleSettingsView();
}

void QTXHexColorPicker::helpHexColorAction(HostControl*)
{
    if (__holdOffSync) return;
    HostDesktop& desktop = colorPanel().desktop();
    // The page is translated like a text: translators name theirs.
    const std::string page = utf8FromUtf16(desktop.localizedString(u"supportManual.htm"));
    desktop.openURL(manualURL(VANTOREL_MANUAL_URL, desktop.files(), _bundle, page));
}

void QTXHexColorPicker::moreIndicatorAction(HostControl*)
{
    if (__holdOffSync || _hexPickerView == nullptr) return;
    const HostSize page = _hexPickerView->frame().size();
    if (!isSmaller(page, roomySettingsSize)) return;
    colorPanel().growPage(growthTo(roomySettingsSize, page));
    fixSettingsView();
}

void QTXHexColorPicker::makeRoomForSettings()
{
    _leastSettingsPage = minContentSizeWitSettings();
    const HostSize page = _hexPickerView->frame().size();
    if (!isSmaller(page, _leastSettingsPage)) return;
    const HostSize growth = growthTo(_leastSettingsPage, page);
    if (!isSmaller(colorPanel().growPage(growth), growth)) return;
    // The panel has no more room to give. The settings must not close at once because of that.
    const HostSize grown = _hexPickerView->frame().size();
    _leastSettingsPage = {std::min(_leastSettingsPage.width, grown.width),
                          std::min(_leastSettingsPage.height, grown.height)};
}

void QTXHexColorPicker::toggleSettingsView()
{
    if (_hexPickerView == nullptr) return;
    HostCustomView& settings = *_hexSettingsViewOutlet;
    HostCustomView& colors = *_hexColorsViewOutlet;
    if (isShown(settings)) {
        const HostRect frame = settings.frame();
        HostView* place = settings.superview();
        settings.removeFromSuperview();
        colors.setFrameOf(settings);
        colors.setBounds({0, 0, frame.width, frame.height});
        place->addSubview(colors);
        checkTrackingStatus();
    } else {
        _hexColorsView.stopTracking();
        makeRoomForSettings();
        const HostRect frame = colors.frame();
        HostView* place = colors.superview();
        colors.removeFromSuperview();
        settings.setFrameOf(colors);
        // The settings face is laid out in its superview's coordinates, so its bounds start at the
        // frame's origin.
        settings.setBounds(frame);
        place->addSubview(settings);
        fixSettingsView();
    }
}

void QTXHexColorPicker::viewSizeChanged(HostView*)
{
    if (_hexPickerView == nullptr) return;
    const bool settingsShown = isShown(*_hexSettingsViewOutlet);
    MainFaceInput input{
        .current = {_redHexText->frame(), _greenHexText->frame(), _blueHexText->frame(),
                    _objCCodeText->frame(), hexColorNamePopUp->frame(), _rgbDecimalText->frame()},
        .reference = _hexColorsViewOutlet->frame(),
        .colorsListPopUp = hexColorsListPopUp->frame(),
        .fullHex = _fullHexText->frame(),
        .pageWidth = _hexPickerView->frame().width,
        .panelHeight = colorPanel().size().height,
        .showsCodeSnippet = _hexSettings.componentDisplay() == ComponentDisplay::codeSnippet,
    };
    if (settingsShown && isSmaller(_hexPickerView->frame().size(), _leastSettingsPage)) {
        toggleSettingsView();
    }
    if (isShown(*_hexSettingsViewOutlet)) {
        const HostRect settings = _hexSettingsViewOutlet->frame();
        input.reference.x = settings.x;
        input.reference.y = settings.y;
        input.reference.width = settings.width;
    }
    fixSettingsView();

    const MainFaceFrames frames = mainFaceLayout(input);
    _redHexText->setFrame(frames.red);
    _greenHexText->setFrame(frames.green);
    _blueHexText->setFrame(frames.blue);
    _objCCodeText->setFrame(frames.snippet);
    hexColorNamePopUp->setFrame(frames.colorName);
    _rgbDecimalText->setFrame(frames.rgbDecimal);
    for (HostTextField* component : {_redHexText, _greenHexText, _blueHexText})
        component->setParked(frames.componentsParked);
    _objCCodeText->setParked(frames.snippetParked);
    hexColorNamePopUp->setParked(frames.colorNameParked);
    _rgbDecimalText->setParked(frames.rgbDecimalParked);

    if (!settingsShown) {
        _hexColorsView.stopTracking();
        checkTrackingStatus();
    }
}

void QTXHexColorPicker::fixSettingsView()
{
    if (_hexPickerView == nullptr) return;
    const std::initializer_list<std::pair<HostView*, HostRect SettingsFaceFrames::*>> controls{
        {settingsDoneButton, &SettingsFaceFrames::doneButton},
        {poundSignCheckbox, &SettingsFaceFrames::poundSign},
        {entryFormPopUp, &SettingsFaceFrames::entryForm},
        {componentDisplayPopUp, &SettingsFaceFrames::componentDisplay},
        {componentDisplayLabel, &SettingsFaceFrames::componentDisplayLabel},
        {cCodeEntryFormPopUp, &SettingsFaceFrames::codeSnippet},
        {codeCodeLabel, &SettingsFaceFrames::codeSnippetLabel},
        {codeDragTypePopUp, &SettingsFaceFrames::dragType},
        {codeDragTypeLabel, &SettingsFaceFrames::dragTypeLabel},
        {moreIndicatorButton, &SettingsFaceFrames::moreIndicator},
        {helpButton, &SettingsFaceFrames::help},
        {_versionLabelText, &SettingsFaceFrames::versionLabel},
    };
    SettingsFaceFrames frames;
    for (const auto& [view, frame] : controls)
        frames.*frame = view->frame();
    const HostRect bounds = isShown(*_hexColorsViewOutlet) ? _hexColorsViewOutlet->bounds()
                                                           : _hexSettingsViewOutlet->bounds();
    frames = settingsFaceLayout(frames, bounds);
    for (const auto& [view, frame] : controls)
        view->setFrame(frames.*frame);
    for (HostView* view : std::initializer_list<HostView*>{
             cCodeEntryFormPopUp, codeCodeLabel, componentDisplayPopUp, componentDisplayLabel}) {
        view->setParked(frames.codeSnippetParked);
    }
    codeDragTypePopUp->setParked(frames.dragTypeParked);
    codeDragTypeLabel->setParked(frames.dragTypeParked);
    moreIndicatorButton->setParked(frames.moreIndicatorParked);
}

}  // namespace vantorel
