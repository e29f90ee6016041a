#include "scales/ScalesMemory.h"

#include "csscolor/CSSColorReader.h"
#include "csscolor/CSSColorWriter.h"
#include "csscolor/GamutMapping.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "text/ASCII.h"
#include "text/Decimals.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr const char16_t* sectionKey = u"Section";
constexpr const char16_t* endKey = u"GradientEnd";
constexpr const char16_t* stepsKey = u"GradientSteps";
constexpr const char16_t* spaceKey = u"GradientSpace";
constexpr const char16_t* listKey = u"ContrastList";
/// We never write files that big.
constexpr std::size_t largestFile = 4096;
/// In UTF-16 units, of which a file has at most six bytes each.
constexpr std::size_t longestListName = 400;

std::optional<std::string> folderName(const HostFiles& files)
{
    auto folder = files.applicationSupportDirectory();
    if (folder) *folder += "/Vantorel";
    return folder;
}

}  // namespace

void readScalesMemory(const HostFiles& files, ScalesModel& model,
                      std::span<const std::string_view> sections, std::size_t& chosen)
{
    const auto folder = folderName(files);
    const auto bytes = folder ? files.contentsAtPath(*folder + "/Scales.plist") : std::nullopt;
    if (!bytes || bytes->size() > largestFile) return;
    const auto list = parsePropertyList(utf16FromUtf8(*bytes));
    if (!list) return;
    const auto text = [&](const char16_t* key) {
        const std::u16string* found = list->stringForKey(key);
        return found != nullptr ? utf8FromUtf16(*found) : std::string();
    };
    const auto section = std::ranges::find(sections, text(sectionKey));
    if (section != sections.end()) chosen = static_cast<std::size_t>(section - sections.begin());
    if (const auto end = readCSSColor(text(endKey))) model.setEnd(end->color);
    if (const auto steps = wholeNumber<int>(text(stepsKey))) model.setSteps(*steps);
    const auto& spaces = gradientSpaces();
    const auto space = std::ranges::find(spaces, text(spaceKey), &GradientSpace::key);
    if (space != spaces.end()) model.setSpace(static_cast<std::size_t>(space - spaces.begin()));
    if (const std::u16string* name = list->stringForKey(listKey)) model.setContrastList(*name);
}

void writeScalesMemory(HostFiles& files, const ScalesModel& model, std::string_view section)
{
    const auto folder = folderName(files);
    if (!folder) return;
    if (files.kindAtPath(*folder) == HostFileKind::none && !files.createDirectory(*folder)) return;
    const auto lock = files.lockFolder(*folder);
    if (!lock) return;
    PropertyList::Dictionary values{
        {sectionKey, PropertyList(widened(section))},
        {stepsKey, PropertyList(decimalText(model.steps()))},
        {spaceKey, PropertyList(widened(gradientSpaces()[model.space()].key))}};
    if (const auto& end = model.chosenEnd()) {
        const auto code = hexText(mappedIntoSRGB(*end));
        if (code) values.emplace_back(endKey, PropertyList(*code));
    }
    // A longer one would make a file that is not read.
    if (const auto& name = model.contrastList(); !name.empty() && name.size() <= longestListName)
        values.emplace_back(listKey, PropertyList(name));
    files.writeAtomically(*folder + "/Scales.plist",
                          utf8FromUtf16(propertyListText(PropertyList(std::move(values)))));
}

}  // namespace vantorel
