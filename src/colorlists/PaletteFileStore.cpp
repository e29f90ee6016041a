#include "colorlists/PaletteFileStore.h"

#include "colorlists/PaletteFile.h"
#include "host/HostText.h"

#include <algorithm>
#include <set>

namespace vantorel {
namespace {

constexpr const char* settingsFolder = "/Vantorel";
constexpr const char* palettesFolder = "/Palettes";
constexpr std::string_view fileEnding = ".gpl";
/// File systems take 255 bytes a name; the rest is for the ending and a temporary file's.
constexpr std::size_t longestBaseName = 200;

bool isSafe(unsigned char c)
{
    return c > 0x20 && c != 0x7F && c != '/' && c != '%' && c != '\\' && c != ':';
}

/// FNV-1a, to tell names apart that are cut to the same length.
std::string hashText(std::string_view text)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4)
        digits += "0123456789abcdef"[(hash >> shift) & 15];
    return digits;
}

std::u16string baseName(const std::string& fileName)
{
    return utf16FromUtf8(std::string_view(fileName).substr(0, fileName.size() - fileEnding.size()));
}

}  // namespace

PaletteFileStore::PaletteFileStore(HostFiles& files, Log log)
    : _hostFiles(files), _log(std::move(log))
{
}

std::string PaletteFileStore::fileNameOfList(const std::u16string& name)
{
    const std::string utf8 = utf8FromUtf16(name);
    std::string base;
    for (std::size_t i = 0; i < utf8.size(); ++i) {
        const auto c = static_cast<unsigned char>(utf8[i]);
        const bool innerBlank = c == ' ' && i > 0 && i + 1 < utf8.size();
        const bool leadingDot = c == '.' && i == 0;
        if ((isSafe(c) || innerBlank) && !leadingDot) {
            base += utf8[i];
        } else {
            base += '%';
            base += "0123456789ABCDEF"[c >> 4];
            base += "0123456789ABCDEF"[c & 15];
        }
    }
    if (base.empty()) base = "%";
    if (base.size() > longestBaseName) {
        base.resize(longestBaseName);
        base += '%' + hashText(utf8);
    }
    return base.append(fileEnding);
}

std::optional<std::string> PaletteFileStore::folder() const
{
    auto path = _hostFiles.applicationSupportDirectory();
    if (path) path->append(settingsFolder).append(palettesFolder);
    return path;
}

void PaletteFileStore::load(const std::string& fileName, File& file)
{
    const auto bytes = _hostFiles.contentsAtPath(*folder() + "/" + fileName);
    auto reading = bytes ? readPalette(*bytes, baseName(fileName)) : std::nullopt;
    if (!reading) return;
    file.list = reading->list;
    if (!_log) return;
    for (const auto& [number, reason] : reading->skipped) {
        std::string line = fileName;
        line.append(": line ").append(std::to_string(number)).append(" left out: ").append(reason);
        _log(utf16FromUtf8(line));
    }
    if (reading->furtherSkippedLines > 0) {
        std::string line = fileName;
        line.append(": ").append(std::to_string(reading->furtherSkippedLines));
        _log(utf16FromUtf8(line.append(" more lines left out")));
    }
}

void PaletteFileStore::refresh(const std::string& fileName, File& file)
{
    const std::string path = *folder() + "/" + fileName;
    const std::uint64_t version = _hostFiles.versionAtPath(path);
    if (version == file.version) return;
    file = {};
    file.version = version;
    const auto bytes = _hostFiles.contentsAtPath(path);
    auto name = bytes ? paletteName(*bytes, baseName(fileName)) : std::nullopt;
    if (!name) return;
    file.isPalette = true;
    file.listName = std::move(*name);
}

void PaletteFileStore::lookAgain()
{
    const auto path = folder();
    if (!path) {
        _files.clear();
        return;
    }
    const std::uint64_t version = _hostFiles.versionAtPath(*path);
    if (version != _folderVersion) {
        _folderVersion = version;
        std::map<std::string, File> found;
        for (const std::string& name : _hostFiles.contentsOfDirectory(*path)) {
            if (!name.ends_with(fileEnding) || name.starts_with('.')) continue;
            // Files that stay keep what has been read of them.
            auto known = _files.extract(name);
            found[name] = known ? std::move(known.mapped()) : File{};
        }
        _files = std::move(found);
    }
    for (auto entry = _files.begin(); entry != _files.end();) {
        refresh(entry->first, entry->second);
        entry = entry->second.version != 0 ? std::next(entry) : _files.erase(entry);
    }
}

std::shared_ptr<HostColorList> PaletteFileStore::colorListNamed(const std::u16string& name)
{
    const auto path = folder();
    if (!path) return nullptr;
    // The usual case first: a list in the file that its name says, of which nothing else need be
    // known.
    const std::string fileName = fileNameOfList(name);
    auto found = _files.find(fileName);
    if (found == _files.end() && _hostFiles.versionAtPath(*path + "/" + fileName) != 0) {
        found = _files.try_emplace(fileName).first;
        _folderVersion = 0;  // the other files have not been looked at
    }
    const auto isTheList = [&](const auto& entry) {
        return entry.second.isPalette && entry.second.listName == name;
    };
    if (found != _files.end()) refresh(found->first, found->second);
    if (found == _files.end() || !isTheList(*found)) {
        lookAgain();
        found = std::find_if(_files.begin(), _files.end(), isTheList);
        if (found == _files.end()) return nullptr;
    }
    if (!found->second.list) load(found->first, found->second);
    return found->second.list;
}

std::vector<std::u16string> PaletteFileStore::availableColorLists()
{
    lookAgain();
    std::set<std::u16string> names;
    for (const auto& [fileName, file] : _files) {
        if (file.isPalette) names.insert(file.listName);
    }
    return {names.begin(), names.end()};
}

std::string PaletteFileStore::fileNameForSaving(const std::u16string& name)
{
    lookAgain();
    const std::string usual = fileNameOfList(name);
    // A name can hold more than a file tells; what counts is how it would be read there.
    const auto nameInFile = [&](const std::string& fileName) {
        return paletteName(paletteText(HostColorList(name)), baseName(fileName));
    };
    const auto holdsTheList = [&](const auto& entry) {
        return entry.second.isPalette &&
               (entry.second.listName == name || entry.second.listName == nameInFile(entry.first));
    };
    const auto atUsual = _files.find(usual);
    if (atUsual != _files.end() && holdsTheList(*atUsual)) return usual;
    const auto elsewhere = std::find_if(_files.begin(), _files.end(), [&](const auto& entry) {
        return entry.second.isPalette && entry.second.listName == name;
    });
    if (elsewhere != _files.end()) return elsewhere->first;

    std::string fileName = usual;
    for (int number = 2; _hostFiles.kindAtPath(*folder() + "/" + fileName) != HostFileKind::none;
         ++number) {
        fileName = usual.substr(0, usual.size() - fileEnding.size());
        fileName.append(" ").append(std::to_string(number)).append(fileEnding);
    }
    return fileName;
}

bool PaletteFileStore::writeColorList(const std::shared_ptr<HostColorList>& list)
{
    const auto support = _hostFiles.applicationSupportDirectory();
    const auto path = folder();
    if (!list || !support || !path) return false;
    for (const std::string& needed : {*support + settingsFolder, *path}) {
        if (_hostFiles.kindAtPath(needed) == HostFileKind::none) _hostFiles.createDirectory(needed);
    }
    const std::string fileName = fileNameForSaving(list->name());
    if (!_hostFiles.writeAtomically(*path + "/" + fileName, paletteText(*list))) return false;
    // The list in hand goes on being the installed one: it may hold more than the file can.
    File& file = _files[fileName];
    file.version = _hostFiles.versionAtPath(*path + "/" + fileName);
    file.isPalette = true;
    file.listName = list->name();
    file.list = list;
    return true;
}

}  // namespace vantorel
