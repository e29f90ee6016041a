#include "FuzzTexts.h"
#include "colorlists/PaletteFile.h"
#include "picker/NameCompletion.h"

/// The first two bytes are the insertion point and the length of what is typed; what follows is
/// typed, and the names of the list, one a line.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    if (size < 2) return 0;
    const std::u16string text = unitsFrom(bytesFrom(data + 2, size - 2));
    const std::u16string typed = text.substr(0, data[1]);
    HostColorList list(u"list");
    std::size_t start = typed.size();
    while (start < text.size()) {
        const std::size_t end = std::min(text.find(u'\n', start), text.size());
        list.setColor(HostColor::blackColor(), text.substr(start, end - start));
        start = end + 1;
    }
    const std::size_t insertionPoint = data[0];
    const auto completion = completeColorName(typed, insertionPoint, list, EntryForm::lowercase);
    require(!completion.insertionPoint ||
            *completion.insertionPoint <= std::min(insertionPoint, typed.size()));
    require(completion.message.empty() || completion.text.has_value());
    return 0;
}
