#include "picker/NameCompletion.h"

#include "color/QTXHexColorSpec.h"

#include <algorithm>
#include <vector>

namespace vantorel {
namespace {

constexpr std::u16string_view rgbOpening = u"rgb(";
constexpr std::size_t mostCandidates = 7;

/// Folds the case of the Latin, Greek and Cyrillic letters used in colour names.
char16_t caseFolded(char16_t c)
{
    const bool capital = (c >= u'A' && c <= u'Z') ||
                         (c >= u'\u00C0' && c <= u'\u00DE' && c != u'\u00D7') ||
                         (c >= u'\u0391' && c <= u'\u03A9') || (c >= u'\u0410' && c <= u'\u042F');
    return capital ? static_cast<char16_t>(c + 32) : c;
}

bool startsWithIgnoringCase(std::u16string_view text, std::u16string_view prefix)
{
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(),
                      [](char16_t a, char16_t b) { return caseFolded(a) == caseFolded(b); });
}

/// Returns a name with the rgb text of a colour, in the form that the field shows and accepts.
std::u16string completedText(const std::u16string& name, const HostColor& color,
                             EntryForm entryForm)
{
    QTXHexColorSpec spec;
    spec.setColorHexColorSpec(color);
    return name + u": " + spec.rgbDecimalStringWithEntryForm(entryForm);
}

}  // namespace

NameCompletion completeColorName(std::u16string_view typed, std::size_t insertionPoint,
                                 const HostColorList& list, EntryForm entryForm)
{
    if (typed.empty() || startsWithIgnoringCase(typed, rgbOpening)) return {};
    const std::u16string prefix(typed.substr(0, insertionPoint));

    std::vector<std::size_t> candidates;
    const auto& keys = list.allKeys();
    for (std::size_t i = 0; i < keys.size() && candidates.size() <= mostCandidates; ++i) {
        if (startsWithIgnoringCase(keys[i], prefix)) candidates.push_back(i);
    }
    if (candidates.empty() || candidates.size() > mostCandidates) return {};

    const std::size_t first = candidates.front();
    NameCompletion completion;
    if (candidates.size() == 1) {
        completion.text = completedText(keys[first], list.colorAtIndex(first), entryForm);
        return completion;
    }
    for (const std::size_t i : candidates)
        completion.message += keys[i] + u"\n";
    completion.text = prefix;
    completion.insertionPoint = prefix.size();
    const auto whole = std::find_if(candidates.begin(), candidates.end(),
                                    [&](std::size_t i) { return keys[i].size() == typed.size(); });
    if (whole != candidates.end()) {
        // Show the name that is as long as the text, but the colour of the first candidate: the
        // read-out must not change before the list of candidates does.
        completion.text = completedText(keys[*whole], list.colorAtIndex(first), entryForm);
    }
    return completion;
}

}  // namespace vantorel
