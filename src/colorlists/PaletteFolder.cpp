#include "colorlists/PaletteFolder.h"

#include "colorlists/PaletteFile.h"
#include "text/ASCII.h"
#include "text/Trimming.h"
#include "text/Unicode.h"

#include <algorithm>
#include <array>

namespace vantorel {
namespace {

constexpr std::string_view gplEnding = ".gpl";
/// Names are in the first lines, unless a comment precedes them.
constexpr std::size_t usualHead = 512;
constexpr std::array endings{gplEnding, std::string_view(".colors")};

bool endsIn(std::string_view fileName, std::string_view ending)
{
    return fileName.size() >= ending.size() &&
           equalIgnoringCase(fileName.substr(fileName.size() - ending.size()), ending);
}

}  // namespace

PaletteFolder::PaletteFolder(HostFiles& files, std::string path, Takes takes, Owner owner, Log log)
    : _hostFiles(files), _path(std::move(path)), _takes(takes), _owner(owner), _log(std::move(log))
{
}

std::string PaletteFolder::pathOfFile(const std::string& fileName) const
{
    return _path + "/" + fileName;
}

std::u16string PaletteFolder::fallbackListName(const std::string& fileName)
{
    std::string_view name = fileName;
    for (const std::string_view ending : endings) {
        if (!endsIn(name, ending)) continue;
        name.remove_suffix(ending.size());
        break;
    }
    return utf16FromUtf8(name);
}

bool PaletteFolder::hasChanged() const
{
    return _hostFiles.versionAtPath(_path) != _version;
}

std::optional<std::u16string> PaletteFolder::listName(std::optional<std::u16string> nameInFile,
                                                      const std::string& fileName) const
{
    if (!nameInFile || _owner == Owner::ourselves) return nameInFile;
    std::u16string name = tidied(std::move(*nameInFile));
    return name.empty() ? fallbackListName(fileName) : name;
}

void PaletteFolder::refresh(const std::string& fileName, File& file)
{
    const std::string path = pathOfFile(fileName);
    if (file.version != 0 && _hostFiles.versionAtPath(path) == file.version) return;
    file = {};
    const auto head = _hostFiles.headAtPath(path, usualHead);
    // Version 0 makes the next refresh try again: a read error may go away without any change on
    // the disk.
    if (!head) return;
    file.version = head->version;
    const std::u16string fallback = fallbackListName(fileName);
    PaletteHead found = head->isWholeFile ? PaletteHead{} : paletteHead(head->bytes, fallback);
    if (head->isWholeFile) {
        found.name = paletteName(head->bytes, fallback);
    } else if (!found.isDecided) {
        const auto bytes = _hostFiles.contentsAtPath(path);
        found.name = bytes ? paletteName(*bytes, fallback) : std::nullopt;
        if (!bytes) file.version = 0;
    }
    auto name = listName(std::move(found.name), fileName);
    if (!name) return;
    file.isPalette = true;
    file.listName = std::move(*name);
    file.identity = head->identity;
}

void PaletteFolder::lookAgain()
{
    beginLooking();
    std::size_t all = _files.size();
    continueLooking(all);
}

void PaletteFolder::beginLooking()
{
    _lastRefreshed.clear();
    const std::uint64_t version = _hostFiles.versionAtPath(_path);
    if (version != _version) {
        _version = version;
        std::map<std::string, File> found;
        for (const std::string& name : _hostFiles.contentsOfDirectory(_path)) {
            if (name.starts_with('.')) continue;
            if (_takes == Takes::gplFiles && !endsIn(name, gplEnding)) continue;
            // Files that still exist keep what has been read of them.
            auto known = _files.extract(name);
            found[name] = known ? std::move(known.mapped()) : File{};
        }
        _files = std::move(found);
    }
}

bool PaletteFolder::continueLooking(std::size_t& allowance)
{
    // By name, because files may be added between two steps.
    auto next = _files.upper_bound(_lastRefreshed);
    for (; allowance > 0 && next != _files.end(); ++next, --allowance) {
        refresh(next->first, next->second);
        _lastRefreshed = next->first;
    }
    return next == _files.end();
}

const PaletteFolder::File* PaletteFolder::lookAtFile(const std::string& fileName)
{
    auto found = _files.find(fileName);
    if (found == _files.end()) {
        if (_hostFiles.versionAtPath(pathOfFile(fileName)) == 0) return nullptr;
        found = _files.try_emplace(fileName).first;
    }
    refresh(fileName, found->second);
    return &found->second;
}

void PaletteFolder::load(const std::string& fileName, File& file)
{
    const auto bytes = _hostFiles.contentsAtPath(pathOfFile(fileName));
    auto reading = bytes ? readPalette(*bytes, fallbackListName(fileName)) : std::nullopt;
    // The file has changed since it was refreshed. The next refresh will notice.
    if (!reading || listName(reading->list->name(), fileName) != file.listName) return;
    file.list = reading->list;
    if (!_log) return;
    const std::string prefix =
        (_owner == Owner::anotherProgram ? pathOfFile(fileName) : fileName) + ": ";
    for (const auto& [number, reason] : reading->skipped) {
        std::string line = prefix;
        line.append("line ").append(std::to_string(number)).append(" left out: ").append(reason);
        _log(utf16FromUtf8(line));
    }
    if (reading->furtherSkippedLines > 0) {
        std::string line = prefix;
        line.append(std::to_string(reading->furtherSkippedLines)).append(" more lines left out");
        _log(utf16FromUtf8(line));
    }
}

std::shared_ptr<HostColorList> PaletteFolder::listInFile(const std::string& fileName)
{
    const auto found = _files.find(fileName);
    if (found == _files.end() || !found->second.isPalette) return nullptr;
    if (!found->second.list) load(fileName, found->second);
    return found->second.list;
}

std::shared_ptr<HostColorList> PaletteFolder::listInFile(const std::string& fileName,
                                                         const std::u16string& name)
{
    auto list = listInFile(fileName);
    if (!list || list->name() == name) return list;
    auto& renamed = _files.at(fileName).renamedLists[name];
    if (renamed) return renamed;
    renamed = std::make_shared<HostColorList>(name);
    for (std::size_t i = 0; i < list->allKeys().size(); ++i)
        renamed->setColor(list->colorAtIndex(i), list->allKeys()[i]);
    return renamed;
}

void PaletteFolder::setListInFile(const std::string& fileName, std::shared_ptr<HostColorList> list)
{
    const std::string path = pathOfFile(fileName);
    File& file = _files[fileName];
    file = {};
    file.version = _hostFiles.versionAtPath(path);
    file.isPalette = true;
    file.listName = list->name();
    file.identity = _hostFiles.identityAtPath(path);
    file.list = std::move(list);
}

}  // namespace vantorel
