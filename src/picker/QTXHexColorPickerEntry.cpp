#include "color/ColorTexts.h"
#include "picker/ControlWriting.h"
#include "picker/LiveHexReadout.h"
#include "picker/NameCompletion.h"
#include "picker/QTXHexColorPicker.h"
#include "picker/RgbTriple.h"

/// What happens when the user types: live, at every keystroke, and when the entry ends.
namespace vantorel {
namespace {

constexpr int componentDigits = 2;
constexpr int fullDigits = 6;

}  // namespace

void QTXHexColorPicker::hexEntryTextChange(HostTextField& field)
{
    if (__holdOffSync) return;
    const std::u16string readout = liveHexReadout(field.stringValue());
    __holdOffSync = true;
    setText(_rgbDecimalText, readout);
    __holdOffSync = false;
}

void QTXHexColorPicker::rgbDecimalEntryTextChange(HostTextField& field)
{
    if (!_hexSettings.hexColorList()) return;
    const auto list =
        colorPanel().desktop().colorLists().colorListNamed(*_hexSettings.hexColorList());
    if (!list) return;
    HostFieldEditor* editor = colorPanel().fieldEditor(field);
    const std::size_t insertionPoint = editor != nullptr ? editor->selectedRange().location : 0;
    const NameCompletion completion =
        completeColorName(field.stringValue(), insertionPoint, *list, _hexSettings.entryForm());
    if (!completion.message.empty()) {
        _hexColorsView.postMessage(completion.message);
        _hexColorsView.setNeedsDisplay(true);
    }
    if (completion.text) field.setStringValue(*completion.text);
    if (completion.insertionPoint && editor != nullptr) {
        editor->setSelectedRange({*completion.insertionPoint, 0});
    }
}

void QTXHexColorPicker::enterComponent(HostTextField* field, int componentIndex)
{
    if (__holdOffSync || field == nullptr) return;
    std::optional<std::u16string> text = field->stringValue();
    _hexColorsView.clearMessage();
    const ComponentDisplay display = _hexSettings.componentDisplay();
    if (display == ComponentDisplay::hex) text = validHexString(*text, componentDigits);
    if (!text) {
        flagInputError();
        return;
    }
    _hexColorSpec.setComponent(readComponent(*text, display), componentIndex);
    loadFullHex();
    colorChanged(field);
}

void QTXHexColorPicker::redHexAction(HostControl*)
{
    enterComponent(_redHexText, 0);
}

void QTXHexColorPicker::greenHexAction(HostControl*)
{
    enterComponent(_greenHexText, 1);
}

void QTXHexColorPicker::blueHexAction(HostControl*)
{
    enterComponent(_blueHexText, 2);
}

void QTXHexColorPicker::fullHexAction(HostControl* sender)
{
    if (__holdOffSync || _fullHexText == nullptr) return;
    const std::u16string typed = _fullHexText->stringValue();
    _hexColorsView.clearMessage();
    const auto text = validHexString(typed, fullDigits);
    if (!text) {
        flagInputError();
        return;
    }
    _hexColorSpec.setWithString(*text);
    colorChanged(sender);
}

void QTXHexColorPicker::rgbDecimalHexAction(HostControl* sender)
{
    if (__holdOffSync || _rgbDecimalText == nullptr) return;
    const RgbTripleReading reading = readRgbTriple(_rgbDecimalText->stringValue());
    if (!reading.found) return;
    if (!reading.components) {
        flagInputError();
        return;
    }
    const auto& [red, green, blue] = *reading.components;
    _hexColorSpec.setHexRed(red, green, blue);
    colorChanged(sender);
}

void QTXHexColorPicker::flagInputError()
{
    _hexColorsView.postWarning(u"Input Error");
    syncPanel();
}

}  // namespace vantorel
