#include "FuzzTexts.h"
#include "colorlists/PaletteFile.h"
#include "listformats/ColorSwatches.h"
#include "listformats/DesignTokens.h"
#include "listformats/KritaPalette.h"
#include "listformats/ListReader.h"
#include "listformats/ListTexts.h"
#include "listformats/OfficeColorTable.h"
#include "listformats/SwatchExchange.h"

#include <array>

namespace {

using namespace vantorel;

struct Form {
    std::string (*write)(const HostColorList& list);
    const char* fileName;
};
constexpr std::array<Form, 10> forms{{
    {paletteText, "list.gpl"},
    {cssText, "list.css"},
    {scssText, "list.scss"},
    {jsonText, "list.json"},
    {plainText, "list.txt"},
    {swatchExchangeBytes, "list.ase"},
    {colorSwatchesBytes, "list.aco"},
    {kritaPaletteBytes, "list.kpl"},
    {officeColorTable, "list.soc"},
    {designTokenListText, "list.tokens.json"},
}};

/// The colours come back in their order. Names may lose what a form cannot hold.
void requireRoundTrip(const HostColorList& list, const Form& form)
{
    const Result<ListFile> again = readColorList(form.write(list), form.fileName);
    require(again && again->skipped == 0);
    const std::size_t count = list.allKeys().size();
    require(again->list->allKeys().size() == count);
    for (std::size_t i = 0; i < count; ++i)
        require(again->list->colorAtIndex(i) == list.colorAtIndex(i));
}

}  // namespace

/// The first byte chooses the ending of the file's name, which tells some of the forms, and the
/// form that it goes through then.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0) return 0;
    const Form& form = forms[data[0] % forms.size()];
    const Result<ListFile> file = readColorList(bytesFrom(data + 1, size - 1), form.fileName);
    if (!file) {
        require(!english(file.error()).empty());
        return 0;
    }
    require(!file->list->allKeys().empty());
    requireRoundTrip(*file->list, forms[data[0] / forms.size() % forms.size()]);
    return 0;
}
