#include "snippets/FormatPlaces.h"

#include "snippets/FormatParts.h"
#include "snippets/SnippetLimits.h"
#include "snippets/SnippetValues.h"

#include <limits>

namespace vantorel {
namespace {

const char* usualConversionOf(const SnippetValue& value)
{
    if (value.isFraction) return "%.3f";
    if (!value.isPacked()) return "%d";
    return value.part == SnippetValue::Part::argb ? "%08x" : "%06x";
}

}  // namespace

std::vector<Message> misfitsOfFormat(const QTXCodeSnippet& snippet)
{
    std::vector<Message> messages;
    const auto values = valuesOfVarForm(snippet.varFormSnippet().value_or(u""));
    if (!values) return messages;
    std::size_t places = 0;
    const std::u16string format = snippet.formatStringSnippet().value_or(u"");
    FormatPartReader reader(format, std::numeric_limits<std::size_t>::max());
    for (FormatPart part; reader.next(part);)
        if (part.isConversion) ++places;
    for (std::size_t i = places; i < values->size(); ++i) {
        const SnippetValue& value = (*values)[i];
        messages.push_back({phrase("%1 has no place in the format", nameOfPart(value.part)),
                            phrase("write %1 where it belongs", usualConversionOf(value))});
    }
    if (places > values->size()) {
        messages.push_back({phrase("the format has %1 places for %2 values, so the last ones are "
                                   "copied unchanged",
                                   places, values->size()),
                            phrase("write %% for a per cent sign")});
    }
    return messages;
}

}  // namespace vantorel
