#include "cli/Publishing.h"

#include "cli/ReadOnlyFiles.h"
#include "colorlists/PaletteFile.h"
#include "colorlists/PaletteFileStore.h"
#include "colorlists/PalettePlaces.h"
#include "hosts/posix/FileRemoval.h"
#include "plist/PropertyListReader.h"
#include "plist/PropertyListWriter.h"
#include "text/Unicode.h"

#include <unistd.h>

#include <algorithm>

namespace vantorel {
namespace {

constexpr const char16_t* publishesKey = u"Publishes";
constexpr const char16_t* pathKey = u"Path";
constexpr const char16_t* writtenKey = u"Written";
constexpr const char16_t* beforeKey = u"Before";

std::optional<std::string> bytesForKey(const PropertyList& dictionary, const char16_t* key)
{
    const PropertyList* value = dictionary.valueForKey(key);
    if (value == nullptr || value->data() == nullptr) return std::nullopt;
    return *value->data();
}

PropertyList propertyListOf(const PublishedFile& file)
{
    PropertyList dictionary(PropertyList::Dictionary{});
    dictionary.setValue(PropertyList::data(file.path), pathKey);
    dictionary.setValue(PropertyList::data(file.written), writtenKey);
    if (file.before) dictionary.setValue(PropertyList::data(*file.before), beforeKey);
    return dictionary;
}

std::optional<PublishedFile> publishedFileOf(const PropertyList& dictionary)
{
    auto path = bytesForKey(dictionary, pathKey);
    auto written = bytesForKey(dictionary, writtenKey);
    if (!path || !written) return std::nullopt;
    return PublishedFile{*path, *written, bytesForKey(dictionary, beforeKey)};
}

/// Whether a path is a symbolic link, which `HostFiles` would follow.
bool isLink(const std::string& path)
{
    char byte = 0;
    return ::readlink(path.c_str(), &byte, 1) >= 0;
}

}  // namespace

PublishPlan planPublish(const HostFiles& files, const HostColorList& list)
{
    // Lists are not published to system-wide folders, nor to a user's folder that is only a
    // substitute for one.
    ReadOnlyFiles own(files, ReadOnlyFiles::Places::usersOwn);
    PalettePlaces places(own, {});
    places.refreshFolders();
    const std::string bytes = paletteText(list);
    PublishPlan plan;
    std::vector<std::string> seenFolders;
    for (const auto& folder : places.folders()) {
        const std::string& folderPath = folder->palettes.path();
        if (files.kindAtPath(folderPath) != HostFileKind::folder) continue;
        // Versions of a program can share a folder through a symbolic link.
        const std::string identity = files.identityAtPath(folderPath);
        if (std::find(seenFolders.begin(), seenFolders.end(), identity) != seenFolders.end())
            continue;
        seenFolders.push_back(identity);
        PublishPlan::Target target;
        target.program = folder->program;
        target.file.path =
            folder->palettes.pathOfFile(PaletteFileStore::fileNameOfList(list.name()));
        target.file.written = bytes;
        const std::string& path = target.file.path;
        if (files.kindAtPath(path) != HostFileKind::none) {
            target.file.before = files.contentsAtPath(path);
            target.isBlocked = !target.file.before;
        } else {
            // Writing through a dangling link would create a file in an unexpected place.
            target.isBlocked = isLink(path);
        }
        target.isAsWanted = target.file.before == bytes;
        plan.targets.push_back(std::move(target));
    }
    return plan;
}

PublishRecords::PublishRecords(HostFiles& files, const std::u16string& listName) : _files(files)
{
    const auto dataHome = files.baseDirectories().dataHome;
    if (!dataHome) return;
    _path =
        *dataHome + "/Vantorel/Published/" + PaletteFileStore::fileNameOfList(listName) + ".plist";
    // The folder of the records is made with the first of them.
    _lock = files.lockFolder(*dataHome + "/Vantorel");
    const auto bytes = _lock ? files.contentsAtPath(*_path) : std::nullopt;
    if (bytes) {
        read(*bytes);
    } else {
        _isReadable = _lock && files.kindAtPath(*_path) == HostFileKind::none;
    }
}

void PublishRecords::read(const std::string& bytes)
{
    const auto record = parsePropertyList(utf16FromUtf8(bytes));
    const PropertyList* publishes = record ? record->valueForKey(publishesKey) : nullptr;
    bool isWhole = publishes != nullptr && publishes->array() != nullptr;
    static const PropertyList::Array none;
    for (const PropertyList& element : isWhole ? *publishes->array() : none) {
        Publish publish;
        for (const PropertyList& file : element.array() != nullptr ? *element.array() : none) {
            auto published = publishedFileOf(file);
            isWhole = isWhole && published.has_value();
            if (published) publish.push_back(std::move(*published));
        }
        isWhole = isWhole && !publish.empty();
        if (!publish.empty()) _publishes.push_back(std::move(publish));
    }
    if (!isWhole) _damaged = bytes;
}

std::optional<PublishRecords::Publish> PublishRecords::latest() const
{
    if (_publishes.empty()) return std::nullopt;
    return _publishes.back();
}

bool PublishRecords::add(const Publish& publish)
{
    _publishes.push_back(publish);
    if (_publishes.size() > mostKept) _publishes.erase(_publishes.begin());
    return save();
}

bool PublishRecords::replaceLatest(const Publish& publish)
{
    if (_publishes.empty()) return false;
    if (publish.empty()) {
        _publishes.pop_back();
    } else {
        _publishes.back() = publish;
    }
    return save();
}

bool PublishRecords::save() const
{
    const auto support = _files.applicationSupportDirectory();
    // The record may contain the only copies of replaced files.
    if (!_path || !support || !_isReadable) return false;
    if (_damaged && !_files.writeAtomically(*_path + "~", *_damaged)) return false;
    if (_publishes.empty()) return removeFile(*_path);
    for (const std::string& folder : {*support + "/Vantorel", *support + "/Vantorel/Published"}) {
        if (_files.kindAtPath(folder) == HostFileKind::none) _files.createDirectory(folder);
    }
    PropertyList::Array publishes;
    for (const Publish& publish : _publishes) {
        PropertyList::Array entries;
        for (const PublishedFile& file : publish)
            entries.push_back(propertyListOf(file));
        publishes.emplace_back(std::move(entries));
    }
    PropertyList record(PropertyList::Dictionary{});
    record.setValue(PropertyList(std::move(publishes)), publishesKey);
    return _files.writeAtomically(*_path, utf8FromUtf16(propertyListText(record)));
}

UndoResult undoPublish(HostFiles& files, const PublishedFile& file)
{
    if (files.kindAtPath(file.path) == HostFileKind::none) {
        return file.before ? UndoResult::changedSince : UndoResult::nothingToDo;
    }
    const auto now = files.contentsAtPath(file.path);
    if (now && now == file.before) return UndoResult::nothingToDo;
    if (now != file.written) return UndoResult::changedSince;
    if (file.before) {
        return files.writeAtomically(file.path, *file.before) ? UndoResult::restored
                                                              : UndoResult::failed;
    }
    return removeFile(file.path) ? UndoResult::removed : UndoResult::failed;
}

}  // namespace vantorel
