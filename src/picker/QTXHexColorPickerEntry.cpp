#include "color/ColorTexts.h"
#include "color/RgbTriple.h"
#include "picker/ControlWriting.h"
#include "picker/LiveHexReadout.h"
#include "picker/NameCompletion.h"
#include "picker/QTXHexColorPicker.h"

#include <algorithm>
#include <array>

/// Text entry: reactions to each keystroke and to the end of an entry, and steps by keys.
namespace vantorel {
namespace {

constexpr int componentDigits = 2;
constexpr int fullDigits = 6;
constexpr std::int64_t largestComponent = 255;
/// A step with Shift changes the left hex digit.
constexpr int largeStep = 16;

/// Returns the field whose entry has ended: the sender, or the action's own field if the sender is
/// not a text field.
HostTextField* fieldThatEnded(HostControl* sender, HostTextField* own)
{
    auto* const field = dynamic_cast<HostTextField*>(sender);
    return field != nullptr ? field : own;
}

HostEntryFit fitOfHexCode(const std::u16string& text, int digits)
{
    return validHexString(text, digits) ? HostEntryFit::fits : HostEntryFit::doesNotFit;
}

HostEntryFit fitOfComponent(const std::u16string& text, ComponentDisplay display)
{
    if (display == ComponentDisplay::hex) return fitOfHexCode(text, componentDigits);
    // The readers of numbers read something into every text.
    const bool isNumber = std::all_of(text.begin(), text.end(), [](char16_t c) {
        return (c >= u'0' && c <= u'9') || c == u'.' || c == u'+' || c == u'-' || c == u' ';
    });
    return isNumber ? HostEntryFit::fits : HostEntryFit::doesNotFit;
}

HostEntryFit fitOfRgbTriple(const std::u16string& text)
{
    const RgbTripleReading reading = readRgbTriple(text);
    if (!reading.found) return HostEntryFit::isIgnored;
    return reading.components ? HostEntryFit::fits : HostEntryFit::doesNotFit;
}

}  // namespace

void QTXHexColorPicker::connectEntryFields()
{
    const std::array components{_redHexText, _greenHexText, _blueHexText};
    for (std::size_t i = 0; i < components.size(); ++i) {
        HostTextField* field = components[i];
        field->setEntryFit([this](const std::u16string& text) {
            return fitOfComponent(text, _hexSettings.componentDisplay());
        });
        field->setStep(
            [this, field, index = static_cast<int>(i)](int steps, std::uint64_t modifierFlags) {
                const bool isLarge = (modifierFlags & shiftModifierFlag) != 0;
                stepComponent(*field, index, isLarge ? steps * largeStep : steps);
            });
    }
    _fullHexText->setEntryFit(
        [](const std::u16string& text) { return fitOfHexCode(text, fullDigits); });
    _rgbDecimalText->setEntryFit(fitOfRgbTriple);
}

void QTXHexColorPicker::stepComponent(HostTextField& field, int componentIndex, int amount)
{
    if (__holdOffSync) return;
    const auto before = static_cast<std::int64_t>(_hexColorSpec.componentWithIndex(componentIndex));
    const std::int64_t after = std::clamp<std::int64_t>(before + amount, 0, largestComponent);
    if (after == before) return;
    _hexColorsView.clearMessage();
    _hexColorSpec.setComponent(static_cast<std::uint64_t>(after), componentIndex);
    colorChanged(&field);
}

void QTXHexColorPicker::hexEntryTextChange(HostTextField& field)
{
    if (__holdOffSync) return;
    const std::u16string error = colorPanel().desktop().localizedString(u"Error");
    const std::u16string readout = liveHexReadout(field.stringValue(), error);
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

void QTXHexColorPicker::redHexAction(HostControl* sender)
{
    enterComponent(fieldThatEnded(sender, _redHexText), 0);
}

void QTXHexColorPicker::greenHexAction(HostControl* sender)
{
    enterComponent(fieldThatEnded(sender, _greenHexText), 1);
}

void QTXHexColorPicker::blueHexAction(HostControl* sender)
{
    enterComponent(fieldThatEnded(sender, _blueHexText), 2);
}

void QTXHexColorPicker::fullHexAction(HostControl* sender)
{
    const HostTextField* field = fieldThatEnded(sender, _fullHexText);
    if (__holdOffSync || field == nullptr) return;
    const std::u16string typed = field->stringValue();
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
    const HostTextField* field = fieldThatEnded(sender, _rgbDecimalText);
    if (__holdOffSync || field == nullptr) return;
    const RgbTripleReading reading = readRgbTriple(field->stringValue());
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
