#include "mix/MixMemory.h"

#include "mix/MixChannels.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr const char16_t* spaceKey = u"Space";
/// We never write files that big.
constexpr std::size_t largestFile = 4096;

std::optional<std::string> folderName(const HostFiles& files)
{
    auto folder = files.applicationSupportDirectory();
    if (folder) *folder += "/Vantorel";
    return folder;
}

}  // namespace

MixSpace readMixSpace(const HostFiles& files)
{
    const auto folder = folderName(files);
    const auto bytes = folder ? files.contentsAtPath(*folder + "/Mix.plist") : std::nullopt;
    if (!bytes || bytes->size() > largestFile) return MixSpace::oklch;
    const auto list = parsePropertyList(utf16FromUtf8(*bytes));
    const std::u16string* name = list ? list->stringForKey(spaceKey) : nullptr;
    if (name == nullptr) return MixSpace::oklch;
    const auto* const found = std::ranges::find(mixSpaces, *name, nameOf);
    return found != mixSpaces.end() ? *found : MixSpace::oklch;
}

void writeMixSpace(HostFiles& files, MixSpace space)
{
    const auto folder = folderName(files);
    if (!folder) return;
    if (files.kindAtPath(*folder) == HostFileKind::none && !files.createDirectory(*folder)) return;
    const auto lock = files.lockFolder(*folder);
    if (!lock) return;
    const PropertyList list(PropertyList::Dictionary{{spaceKey, PropertyList(nameOf(space))}});
    files.writeAtomically(*folder + "/Mix.plist", utf8FromUtf16(propertyListText(list)));
}

}  // namespace vantorel
