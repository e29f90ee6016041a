#include "FuzzTexts.h"
#include "color/ColorTexts.h"
#include "color/QTXHexColorSpec.h"
#include "color/RgbTriple.h"
#include "picker/LiveHexReadout.h"

/// No text makes a component that is no byte.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    const std::u16string text = unitsFrom(bytesFrom(data, size));
    for (const auto display : {ComponentDisplay::hex, ComponentDisplay::integer,
                               ComponentDisplay::fraction, ComponentDisplay::codeSnippet}) {
        require(readComponent(text, display) <= 255);
    }
    for (const int digits : {2, 6}) {
        const auto valid = validHexString(text, digits);
        require(!valid || valid->size() <= static_cast<std::size_t>(digits) + 1);
    }
    QTXHexColorSpec spec;
    spec.setWithString(text);
    require((spec.redHexComp() | spec.greenHexComp() | spec.blueHexComp()) <= 255);
    static_cast<void>(webSafeColorFromName(text));
    require(!liveHexReadout(text, u"Error").empty());
    const RgbTripleReading triple = readRgbTriple(text);
    require(!triple.components || triple.found);
    if (triple.components) {
        spec.setHexRed((*triple.components)[0], (*triple.components)[1], (*triple.components)[2]);
        const auto again = readRgbTriple(spec.rgbDecimalStringWithEntryForm(EntryForm::uppercase));
        require(again.components == triple.components);
    }
    return 0;
}
