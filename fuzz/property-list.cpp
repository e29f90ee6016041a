#include "FuzzTexts.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"

/// What reads is written as a text that reads as the same value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vantorel;
    const auto value = parsePropertyList(unitsFrom(bytesFrom(data, size)));
    if (!value) return 0;
    const auto again = parsePropertyList(propertyListText(*value));
    require(again.has_value() && *again == *value);
    return 0;
}
