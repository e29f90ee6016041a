#include "testing/driver/DriverRequests.h"
#include "testing/driver/JsonValues.h"
#include "text/Unicode.h"

#include <map>

namespace vantorel {
namespace {

using Spec = QTXHexColorSpec;

/// The arguments of a call `[METHOD, ARG...]`, counted from 1.
std::uint64_t word(const Json& call, std::size_t i)
{
    return unsignedFrom(argumentAt(call, i), "argument " + std::to_string(i));
}

std::int64_t integer(const Json& call, std::size_t i)
{
    return integerFrom(argumentAt(call, i), "argument " + std::to_string(i));
}

double number(const Json& call, std::size_t i)
{
    return numberFrom(argumentAt(call, i), "argument " + std::to_string(i));
}

std::u16string text(const Json& call, std::size_t i)
{
    return optionalTextFrom(argumentAt(call, i), "argument " + std::to_string(i)).value_or(u"");
}

std::optional<HostColor> color(const Json& call, std::size_t i)
{
    return optionalColorFrom(argumentAt(call, i), "argument " + std::to_string(i));
}

std::optional<Spec> spec(const Json& call, std::size_t i)
{
    return optionalSpecFrom(argumentAt(call, i), "argument " + std::to_string(i));
}

EntryForm form(const Json& call, std::size_t i)
{
    return enumerationFrom<EntryForm>(argumentAt(call, i), "argument " + std::to_string(i));
}

ComponentDisplay display(const Json& call, std::size_t i)
{
    return enumerationFrom<ComponentDisplay>(argumentAt(call, i), "argument " + std::to_string(i));
}

using Method = Json (*)(Spec&, const Json& call);

void setColorSubComponent(Spec& s, const Json& call)
{
    const std::uint64_t value = static_cast<std::uint64_t>(integer(call, 1));
    if (call.size() > 4) {
        s.setColorSubComponent(value, integer(call, 2), integer(call, 3), word(call, 4));
    } else {
        s.setColorSubComponent(value, integer(call, 2), integer(call, 3));
    }
}

Json isMatch(Spec& s, const Json& call)
{
    // If there is no other colour, a new one takes its place.
    const Spec other = spec(call, 1).value_or(Spec());
    return s.isMatchToColorSpec(other, integer(call, 2));
}

const std::map<std::string, Method>& methods()
{
    // clang-format off
    static const std::map<std::string, Method> table{
        {"redHexComp", [](Spec& s, const Json&) -> Json { return s.redHexComp(); }},
        {"setRedHexComp", [](Spec& s, const Json& c) -> Json { s.setRedHexComp(word(c, 1)); return {}; }},
        {"greenHexComp", [](Spec& s, const Json&) -> Json { return s.greenHexComp(); }},
        {"setGreenHexComp", [](Spec& s, const Json& c) -> Json { s.setGreenHexComp(word(c, 1)); return {}; }},
        {"blueHexComp", [](Spec& s, const Json&) -> Json { return s.blueHexComp(); }},
        {"setBlueHexComp", [](Spec& s, const Json& c) -> Json { s.setBlueHexComp(word(c, 1)); return {}; }},
        {"redRemainder", [](Spec& s, const Json&) -> Json { return s.redRemainder(); }},
        {"setRedRemainder", [](Spec& s, const Json& c) -> Json { s.setRedRemainder(number(c, 1)); return {}; }},
        {"greenRemainder", [](Spec& s, const Json&) -> Json { return s.greenRemainder(); }},
        {"setGreenRemainder", [](Spec& s, const Json& c) -> Json { s.setGreenRemainder(number(c, 1)); return {}; }},
        {"blueRemainder", [](Spec& s, const Json&) -> Json { return s.blueRemainder(); }},
        {"setBlueRemainder", [](Spec& s, const Json& c) -> Json { s.setBlueRemainder(number(c, 1)); return {}; }},
        {"alphaComp", [](Spec& s, const Json&) -> Json { return s.alphaComp(); }},
        {"setAlphaComp", [](Spec& s, const Json& c) -> Json { s.setAlphaComp(number(c, 1)); return {}; }},
        {"setHexRed", [](Spec& s, const Json& c) -> Json { s.setHexRed(word(c, 1), word(c, 2), word(c, 3)); return {}; }},
        {"componentWithIndex", [](Spec& s, const Json& c) -> Json { return s.componentWithIndex(integer(c, 1)); }},
        {"setComponent", [](Spec& s, const Json& c) -> Json { s.setComponent(word(c, 1), integer(c, 2)); return {}; }},
        {"colorSubComponentWithComponentIndex", [](Spec& s, const Json& c) -> Json { return s.colorSubComponentWithComponentIndex(integer(c, 1), integer(c, 2)); }},
        {"setColorSubComponent", [](Spec& s, const Json& c) -> Json { setColorSubComponent(s, c); return {}; }},
        {"setColorHexColorSpec", [](Spec& s, const Json& c) -> Json { s.setColorHexColorSpec(color(c, 1)); return {}; }},
        {"colorHexColorSpec", [](Spec& s, const Json&) -> Json { return jsonFromColor(s.colorHexColorSpec()); }},
        {"loadWithHexColorSpec", [](Spec& s, const Json& c) -> Json { const auto other = spec(c, 1); s.loadWithHexColorSpec(other ? &*other : nullptr); return {}; }},
        {"copyWithZone", [](Spec& s, const Json&) -> Json { return jsonFromSpec(s); }},
        {"clearRemainders", [](Spec& s, const Json&) -> Json { s.clearRemainders(); return {}; }},
        {"isExact", [](Spec& s, const Json&) -> Json { return s.isExact(); }},
        {"isEqualToColor", [](Spec& s, const Json& c) -> Json { return s.isEqualToColor(color(c, 1)); }},
        {"isCloseToColor", [](Spec& s, const Json& c) -> Json { return s.isCloseToColor(color(c, 1)); }},
        {"isMatchToColorSpec", [](Spec& s, const Json& c) { return isMatch(s, c); }},
        {"javaRGBInt", [](Spec& s, const Json&) -> Json { return s.javaRGBInt(); }},
        {"javaRGBAInt", [](Spec& s, const Json&) -> Json { return s.javaRGBAInt(); }},
        {"description", [](Spec& s, const Json&) { return jsonFromText(s.description()); }},
        {"setWithString", [](Spec& s, const Json& c) -> Json { s.setWithString(text(c, 1)); return {}; }},
        {"setRedHexCompWithString", [](Spec& s, const Json& c) -> Json { s.setRedHexCompWithString(text(c, 1), display(c, 2)); return {}; }},
        {"setGreenHexCompWithString", [](Spec& s, const Json& c) -> Json { s.setGreenHexCompWithString(text(c, 1), display(c, 2)); return {}; }},
        {"setBlueHexCompWithString", [](Spec& s, const Json& c) -> Json { s.setBlueHexCompWithString(text(c, 1), display(c, 2)); return {}; }},
        {"redStringHexColorSpecWithEntryForm", [](Spec& s, const Json& c) { return jsonFromText(s.redStringHexColorSpecWithEntryForm(form(c, 1), display(c, 2))); }},
        {"greenStringHexColorSpecWithEntryForm", [](Spec& s, const Json& c) { return jsonFromText(s.greenStringHexColorSpecWithEntryForm(form(c, 1), display(c, 2))); }},
        {"blueStringHexColorSpecWithEntryForm", [](Spec& s, const Json& c) { return jsonFromText(s.blueStringHexColorSpecWithEntryForm(form(c, 1), display(c, 2))); }},
        {"fullStringHexColorSpecWithEntryForm", [](Spec& s, const Json& c) { return jsonFromText(s.fullStringHexColorSpecWithEntryForm(form(c, 1))); }},
        {"fullSpacedStringHexColorSpecWithEntryForm", [](Spec& s, const Json& c) { return jsonFromText(s.fullSpacedStringHexColorSpecWithEntryForm(form(c, 1))); }},
        {"rgbDecimalStringWithEntryForm", [](Spec& s, const Json& c) { return jsonFromText(s.rgbDecimalStringWithEntryForm(form(c, 1))); }},
    };
    // clang-format on
    return table;
}

}  // namespace

Json replyToSpec(const Json& request)
{
    Spec target;
    Json results = Json::array();
    for (const Json& call : listFrom(requiredMember(request, "calls"), "calls")) {
        const std::string name =
            utf8FromUtf16(textFrom(argumentAt(listFrom(call, "a call"), 0), "a method's name"));
        const auto found = methods().find(name);
        if (found == methods().end()) throw DriverError("no method is called \"" + name + "\"");
        results.push_back(found->second(target, call));
    }
    return {{"results", results}, {"spec", jsonFromSpec(target)}};
}

}  // namespace vantorel
