#include "picker/QTXHexColorPicker.h"

#include "color/ColorMeasures.h"
#include "color/ColorTexts.h"
#include "colorlists/QTXHexColorLists.h"
#include "picker/ControlWriting.h"
#include "picker/PickerInterface.h"
#include "settings/SettingsFile.h"

#include <array>

namespace vantorel {
namespace {

constexpr const char* interfaceFileName = "QTXHexPick";
constexpr const char* buttonImageName = "picker.svg";
/// The x coordinate of the hidden read-out. In a wide page that is inside, so it is parked, too.
constexpr double readoutOutOfSight = 500;

}  // namespace

QTXHexColorPicker::QTXHexColorPicker(std::uint32_t pickerMask, HostColorPanel& colorPanel,
                                     const HostBundle& bundle)
    : HostColorPicker(pickerMask, colorPanel),
      _bundle(bundle),
      _hexColorsView(*this),
      _noMatchString(noMatchTitle)
{
}

QTXHexColorPicker::~QTXHexColorPicker()
{
    // The contents outlive their native views, but must not use them while these are destroyed.
    _hexColorsView.stopTracking();
    _hexColorsView.attachToView(nullptr);
    _hexSettingsView.attachToView(nullptr);
}

HostView* QTXHexColorPicker::provideNewView(bool initialRequest)
{
    if (initialRequest && !_interface) {
        if (loadInterface()) {
            awakeFromNib();
        } else {
            colorPanel().desktop().log(u"ERROR: couldn't load MyColorPicker nib");
        }
    }
    return _hexPickerView;
}

bool QTXHexColorPicker::loadInterface()
{
    const auto file = _bundle.resource(interfaceFileName);
    if (!file) return false;
    auto interface = PickerInterface::build(
        *file, {.factory = colorPanel().desktop().interfaceFactory(),
                .bundle = _bundle,
                .colorsView = _hexColorsView,
                .settingsView = _hexSettingsView,
                .actionNamed = [this](const std::string& name) { return actionFunction(name); },
                .localized =
                    [this](const std::u16string& text) {
                        return colorPanel().desktop().localizedString(text);
                    }});
    if (!interface || !connectOutlets(*interface)) return false;
    _interface = std::move(interface);
    _hexColorsView.attachToView(_hexColorsViewOutlet);
    _hexColorsViewOutlet->setAccessibleDescription([this] { return colorsDescription(); });
    _hexSettingsView.attachToView(_hexSettingsViewOutlet);
    EnterTextFieldDelegate& delegate = *this;
    _hexEnterTextField = std::make_unique<QTXHexEnterTextField>(*_fullHexText, delegate);
    _rgbDecimalEnterTextField =
        std::make_unique<QTXRGBDecimalEnterTextField>(*_rgbDecimalText, delegate);
    connectEntryFields();
    return true;
}

void QTXHexColorPicker::awakeFromNib()
{
    HostDesktop& desktop = colorPanel().desktop();
    __holdOffDefaultsStore = true;
    // The settings file has not been read yet, so this is always true here: the built-in lists are
    // looked up at every start, whatever the file contains.
    if (_hexSettings.createColorLists()) checkAndInstallColorLists(desktop.colorLists());
    _isSettingsFileLoaded = initializeDefaults(desktop.files(), _hexSettings, _settingsMerge);
    buildColorListsPopup();
    syncListColorNames();
    syncPanel();
    fillSettingsPopUps();
    hideCursorReadout();
}

void QTXHexColorPicker::fillSettingsPopUps()
{
    if (_hexSettings.codeSnippets().empty()) {
        const auto& snippets = QTXCodeSnippet::buildDefaultCodeSnippets();
        _hexSettings.setCodeSnippets(snippets);
        _hexSettings.setCodeSnippetName(snippets.front().nameSnippet());
    }
    setItems(cCodeEntryFormPopUp, _hexSettings.codeSnippetNames());
    setWords(codeDragTypePopUp, QTXHexSettings::codeDragTypeNames());
    __holdOffDefaultsStore = false;
    setWords(componentDisplayPopUp, QTXHexSettings::componentDisplayNames());
    setWords(entryFormPopUp, QTXHexSettings::entryFormNames());
}

bool QTXHexColorPicker::supportsMode(int mode) const
{
    return mode == hexColorPickerMode;
}

int QTXHexColorPicker::currentMode() const
{
    return hexColorPickerMode;
}

std::u16string QTXHexColorPicker::buttonToolTip() const
{
    return colorPanel().desktop().localizedString(u"Vantorel");
}

std::string QTXHexColorPicker::buttonImage() const
{
    return _bundle.resource(buttonImageName).value_or("");
}

HostSize QTXHexColorPicker::minContentSize() const
{
    return {175, 190};
}

HostSize QTXHexColorPicker::preferredContentSize() const
{
    return {260, 300};
}

HostSize QTXHexColorPicker::minContentSizeWitSettings() const
{
    return {212, 220};
}

void QTXHexColorPicker::setColor(const std::optional<HostColor>& color)
{
    if (__holdOffSync) return;
    _exactHexColorMatch = vantorel::exactHexColor(color);
    _hexColorSpec.setColorHexColorSpec(color);
    syncPanel();
}

void QTXHexColorPicker::pageDidAppear()
{
    if (!_interface) return;
    _isHidden = false;
    takeInDefaults();
    if (_mustSync) syncPanel();
    checkTrackingStatus();
}

void QTXHexColorPicker::pageDidDisappear()
{
    if (!_interface) return;
    _hexColorsView.stopTracking();
    _hexColorsView.clearMessage();
    _isHidden = true;
}

void QTXHexColorPicker::colorChanged(HostControl*)
{
    const auto color = colorRespectingAlpha(_hexColorSpec.colorHexColorSpec());
    if (color) colorPanel().setColor(*color);
    syncPanel();
}

std::optional<HostColor> QTXHexColorPicker::colorRespectingAlpha(
    const std::optional<HostColor>& color) const
{
    if (!color) return std::nullopt;
    const auto panelColor = colorPanel().color();
    const double alpha = panelColor ? panelColor->alphaComponent() : 1.0;
    return 1.0 - alpha > 0.01 ? color->colorWithAlphaComponent(alpha) : *color;
}

std::u16string QTXHexColorPicker::colorsDescription() const
{
    std::u16string text;
    if (const auto cell = _hexColorsView.keyCell()) text = keyCellDescription(*cell) + u"; ";
    text += dragStringWithDragType(CodeDragType::hexCode).value_or(u"");
    if (const auto name = selectedTitle(hexColorNamePopUp)) text += u", " + *name;
    return text + u", " + stringFromPickViewMode(_hexSettings.pickViewMode());
}

std::u16string QTXHexColorPicker::keyCellDescription(const QTXHexColorsView::KeyCell& cell) const
{
    static constexpr std::array components{u"Red", u"Green", u"Blue"};
    HostDesktop& desktop = colorPanel().desktop();
    if (cell.digit) {
        const auto index = static_cast<std::size_t>(cell.digit->component);
        return desktop.localizedString(components[index]) + u", " +
               (cell.digit->digit == 1 ? desktop.localizedString(u"left digit")
                                       : desktop.localizedString(u"right digit")) +
               u": " + hexFromInt(cell.digit->value, _hexSettings.entryForm());
    }
    QTXHexColorSpec spec;
    spec.setColorHexColorSpec(cell.color);
    const std::u16string code =
        u"#" + spec.fullStringHexColorSpecWithEntryForm(_hexSettings.entryForm());
    return cell.name.empty() ? code : cell.name + u", " + code;
}

void QTXHexColorPicker::loadFullHex()
{
    // Written without "#"; the next `syncPanel` adds it.
    setText(_fullHexText,
            _hexColorSpec.fullStringHexColorSpecWithEntryForm(_hexSettings.entryForm()));
}

void QTXHexColorPicker::showCursorReadout()
{
    if (_hexColorsViewOutlet == nullptr || _hexColorsViewOutlet->superview() == nullptr) return;
    const HostRect view = _hexColorsViewOutlet->frame();
    moveTo(_cursorReadoutText, {view.x, view.maxY()});
    _cursorReadoutText->setParked(false);
}

void QTXHexColorPicker::hideCursorReadout()
{
    if (_cursorReadoutText == nullptr) return;
    _cursorReadoutText->setParked(true);
    moveTo(_cursorReadoutText, {readoutOutOfSight, _cursorReadoutText->frame().y});
}

void QTXHexColorPicker::postCursorReadout(const QTXHexColorSpec* spec)
{
    setText(_cursorReadoutText, spec != nullptr ? spec->fullSpacedStringHexColorSpecWithEntryForm(
                                                      _hexSettings.entryForm())
                                                : u"-- -- --");
}

}  // namespace vantorel
