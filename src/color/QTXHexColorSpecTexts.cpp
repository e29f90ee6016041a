#include "color/ColorTexts.h"
#include "color/QTXHexColorSpec.h"

#include <array>

namespace vantorel {

void QTXHexColorSpec::setWithString(std::u16string_view text)
{
    if (text.starts_with(u'#')) text.remove_prefix(1);
    std::array<std::uint64_t, 6> digits{};
    for (std::size_t i = 0; i < digits.size() && i < text.size(); ++i) {
        digits[i] = static_cast<std::uint64_t>(decodeHex(text[i]));
    }
    setHexRed(digits[0] * 16 + digits[1], digits[2] * 16 + digits[3], digits[4] * 16 + digits[5]);
}

void QTXHexColorSpec::setRedHexCompWithString(std::u16string_view text,
                                              ComponentDisplay withComponentDisplay)
{
    setRedHexComp(readComponent(text, withComponentDisplay));
}

void QTXHexColorSpec::setGreenHexCompWithString(std::u16string_view text,
                                                ComponentDisplay withComponentDisplay)
{
    setGreenHexComp(readComponent(text, withComponentDisplay));
}

void QTXHexColorSpec::setBlueHexCompWithString(std::u16string_view text,
                                               ComponentDisplay withComponentDisplay)
{
    setBlueHexComp(readComponent(text, withComponentDisplay));
}

std::optional<std::u16string> QTXHexColorSpec::redStringHexColorSpecWithEntryForm(
    EntryForm entryForm, ComponentDisplay componentDisplay) const
{
    return compStringHexColorSpec(_redHexComp, entryForm, componentDisplay);
}

std::optional<std::u16string> QTXHexColorSpec::greenStringHexColorSpecWithEntryForm(
    EntryForm entryForm, ComponentDisplay componentDisplay) const
{
    return compStringHexColorSpec(_greenHexComp, entryForm, componentDisplay);
}

std::optional<std::u16string> QTXHexColorSpec::blueStringHexColorSpecWithEntryForm(
    EntryForm entryForm, ComponentDisplay componentDisplay) const
{
    return compStringHexColorSpec(_blueHexComp, entryForm, componentDisplay);
}

std::u16string QTXHexColorSpec::fullStringHexColorSpecWithEntryForm(EntryForm entryForm) const
{
    return hexCompStringHexColorSpec(_redHexComp, entryForm) +
           hexCompStringHexColorSpec(_greenHexComp, entryForm) +
           hexCompStringHexColorSpec(_blueHexComp, entryForm);
}

std::u16string QTXHexColorSpec::fullSpacedStringHexColorSpecWithEntryForm(EntryForm entryForm) const
{
    return hexCompStringHexColorSpec(_redHexComp, entryForm) + u" " +
           hexCompStringHexColorSpec(_greenHexComp, entryForm) + u" " +
           hexCompStringHexColorSpec(_blueHexComp, entryForm);
}

std::u16string QTXHexColorSpec::rgbDecimalStringWithEntryForm(EntryForm entryForm) const
{
    const auto decimal = [&](std::uint64_t component) {
        return *compStringHexColorSpec(component, entryForm, ComponentDisplay::integer);
    };
    return (entryForm == EntryForm::uppercase ? u"RGB(" : u"rgb(") + decimal(_redHexComp) + u", " +
           decimal(_greenHexComp) + u", " + decimal(_blueHexComp) + u");";
}

}  // namespace vantorel
