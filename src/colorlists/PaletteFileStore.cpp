#include "colorlists/PaletteFileStore.h"

#include "colorlists/PaletteFile.h"
#include "text/HexDigits.h"
#include "text/Unicode.h"

#include <algorithm>

namespace vantorel {
namespace {

constexpr const char* settingsFolder = "/Vantorel";
constexpr const char* palettesFolder = "/Palettes";
constexpr std::string_view fileEnding = ".gpl";
/// File systems allow 255 bytes a name. The rest is reserved for the extension and for the suffix
/// of a temporary file.
constexpr std::size_t longestBaseName = 200;
/// The maximum number of file names to try. If all are taken, something is wrong with the disk.
constexpr int mostFilesOfAName = 10000;

bool isSafe(unsigned char c)
{
    return c > 0x20 && c != 0x7F && c != '/' && c != '%' && c != '\\' && c != ':';
}

/// Computes the FNV-1a hash, which distinguishes names that are cut to the same length.
std::string hashText(std::string_view text)
{
    std::uint64_t hash = 0xcbf29ce484222325U;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    std::string digits;
    appendHexDigits(digits, hash, 16, HexCase::lower);
    return digits;
}

}  // namespace

PaletteFileStore::PaletteFileStore(HostFiles& files, Log log)
    : _hostFiles(files), _log(std::move(log)), _places(files, _log)
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
            appendHexByte(base, c, HexCase::upper);
        }
    }
    if (base.empty()) base += '%';
    if (base.size() > longestBaseName) {
        base.resize(longestBaseName);
        base += '%' + hashText(utf8);
    }
    return base.append(fileEnding);
}

PaletteFolder* PaletteFileStore::ownFolder()
{
    // `applicationSupportDirectory` creates the user's data folder, so it is called only when
    // needed.
    if (!_ownFolder) {
        const auto support = _hostFiles.applicationSupportDirectory();
        if (!support) return nullptr;
        _ownFolder.emplace(_hostFiles, *support + settingsFolder + palettesFolder,
                           PaletteFolder::Takes::gplFiles, PaletteFolder::Owner::ourselves, _log);
    }
    return &*_ownFolder;
}

bool PaletteFileStore::mustLookAgain()
{
    if (!_isCatalogueCurrent || _places.haveChanged()) return true;
    const PaletteFolder* own = ownFolder();
    return own != nullptr && own->hasChanged();
}

void PaletteFileStore::lookAgain()
{
    beginListing();
    continueListing(_progress.allFiles);
    endListing();
}

void PaletteFileStore::beginListing()
{
    _isCatalogueCurrent = false;
    _places.refreshFolders();
    _foldersAhead.clear();
    for (const auto& folder : _places.folders())
        _foldersAhead.push_back(&folder->palettes);
    std::ranges::reverse(_foldersAhead);
    if (PaletteFolder* own = ownFolder()) _foldersAhead.push_back(own);
    _progress = {};
    for (PaletteFolder* folder : _foldersAhead) {
        folder->beginLooking();
        _progress.allFiles += folder->files().size();
    }
}

bool PaletteFileStore::continueListing(std::size_t count)
{
    std::size_t allowance = count;
    while (!_foldersAhead.empty() && _foldersAhead.back()->continueLooking(allowance))
        _foldersAhead.pop_back();
    _progress.files = std::min(_progress.files + count - allowance, _progress.allFiles);
    return _foldersAhead.empty();
}

void PaletteFileStore::rebuildCatalogue()
{
    _onceListed.clear();
    std::vector<PaletteCatalogue::Source> sources;
    if (PaletteFolder* own = ownFolder()) sources.push_back({own, {}});
    for (const auto& folder : _places.folders())
        sources.push_back({&folder->palettes, folder->program});
    _catalogue.rebuild(sources);
}

const PaletteCatalogue::Entry* PaletteFileStore::rememberedEntry(const std::u16string& name) const
{
    if (!_isCatalogueCurrent) return nullptr;
    if (const auto* entry = _catalogue.entryListedAs(name)) return entry;
    const auto found = _onceListed.find(name);
    return found != _onceListed.end() ? found->second : nullptr;
}

const PaletteCatalogue::Entry* PaletteFileStore::entryNamed(const std::u16string& name)
{
    const auto* entry = _catalogue.entryListedAs(name);
    if (entry != nullptr) return entry;
    entry = _catalogue.entryOnceListedAs(name);
    if (entry != nullptr) _onceListed[name] = entry;
    return entry;
}

std::shared_ptr<HostColorList> PaletteFileStore::listOf(const PaletteCatalogue::Entry* entry,
                                                        const std::u16string& name)
{
    return entry != nullptr ? entry->folder->listInFile(entry->fileName, name) : nullptr;
}

bool PaletteFileStore::isInUsualFile(PaletteFolder& own, const std::u16string& name)
{
    const PaletteFolder::File* file = own.lookAtFile(fileNameOfList(name));
    return file != nullptr && file->isPalette && file->listName == name;
}

std::optional<std::string> PaletteFileStore::pathOfOwnList(const std::u16string& name)
{
    PaletteFolder* own = ownFolder();
    if (own == nullptr) return std::nullopt;
    if (isInUsualFile(*own, name)) return own->pathOfFile(fileNameOfList(name));
    own->lookAgain();
    for (const auto& [fileName, file] : own->files()) {
        if (file.isPalette && file.listName == name) return own->pathOfFile(fileName);
    }
    return std::nullopt;
}

std::optional<std::shared_ptr<HostColorList>> PaletteFileStore::knownList(
    const std::u16string& name)
{
    // The usual case first: a list in the file named by `fileNameOfList`. No other file is read.
    if (PaletteFolder* own = ownFolder()) {
        if (isInUsualFile(*own, name)) return own->listInFile(fileNameOfList(name));
    }
    const auto* entry = rememberedEntry(name);
    const bool isUpToDate = entry != nullptr
                                ? _hostFiles.versionAtPath(entry->path()) == entry->version
                                : !mustLookAgain();
    if (!isUpToDate) return std::nullopt;
    return listOf(entry != nullptr ? entry : entryNamed(name), name);
}

std::shared_ptr<HostColorList> PaletteFileStore::colorListNamed(const std::u16string& name)
{
    if (const auto known = knownList(name)) return *known;
    lookAgain();
    return listOf(entryNamed(name), name);
}

std::vector<std::u16string> PaletteFileStore::availableColorLists()
{
    lookAgain();
    return _catalogue.names();
}

std::optional<std::string> PaletteFileStore::fileNameOfSaved(PaletteFolder& own,
                                                             const std::u16string& name)
{
    own.lookAgain();
    const std::string usual = fileNameOfList(name);
    // A palette file cannot store every name unchanged, so compare with the name as it would be
    // read back.
    const auto nameInFile = [&](const std::string& fileName) {
        return paletteName(paletteText(HostColorList(name)),
                           PaletteFolder::fallbackListName(fileName));
    };
    const auto holdsTheList = [&](const auto& entry) {
        return entry.second.isPalette &&
               (entry.second.listName == name || entry.second.listName == nameInFile(entry.first));
    };
    const auto atUsual = own.files().find(usual);
    if (atUsual != own.files().end() && holdsTheList(*atUsual)) return usual;
    const auto elsewhere = std::find_if(
        own.files().begin(), own.files().end(),
        [&](const auto& entry) { return entry.second.isPalette && entry.second.listName == name; });
    if (elsewhere != own.files().end()) return elsewhere->first;
    return std::nullopt;
}

std::string PaletteFileStore::numberedFileName(const std::string& usual, int number)
{
    if (number == 1) return usual;
    std::string fileName = usual.substr(0, usual.size() - fileEnding.size());
    return fileName.append(" ").append(std::to_string(number)).append(fileEnding);
}

std::vector<ListedPalette> PaletteFileStore::listedPalettes()
{
    lookAgain();
    return palettesInCatalogue();
}

void PaletteFileStore::endListing()
{
    rebuildCatalogue();
    _isCatalogueCurrent = _foldersAhead.empty();
}

std::vector<ListedPalette> PaletteFileStore::listedSoFar()
{
    endListing();
    return palettesInCatalogue();
}

std::vector<ListedPalette> PaletteFileStore::palettesInCatalogue() const
{
    std::vector<ListedPalette> palettes;
    for (const std::u16string& name : _catalogue.names()) {
        const auto* entry = _catalogue.entryListedAs(name);
        palettes.push_back({name, entry->program, entry->path(), entry->version});
    }
    return palettes;
}

std::vector<std::string> PaletteFileStore::folders()
{
    std::vector<std::string> paths;
    if (const PaletteFolder* own = ownFolder()) paths.push_back(own->path());
    for (const auto& folder : _places.folders())
        paths.push_back(folder->palettes.path());
    return paths;
}

PaletteFolder* PaletteFileStore::writableFolder()
{
    PaletteFolder* own = ownFolder();
    // Called again, because it recreates a folder that has been removed.
    const auto support = _hostFiles.applicationSupportDirectory();
    if (own == nullptr || !support) return nullptr;
    for (const std::string& needed : {*support + settingsFolder, own->path()}) {
        if (_hostFiles.kindAtPath(needed) == HostFileKind::none) _hostFiles.createDirectory(needed);
    }
    return own;
}

std::shared_ptr<HostFolderLock> PaletteFileStore::lockOwnFolder()
{
    const PaletteFolder* own = writableFolder();
    // Without a folder there is nothing to lock, and writing fails by itself.
    return own != nullptr ? _hostFiles.lockFolder(own->path()) : std::make_shared<HostFolderLock>();
}

std::optional<std::string> PaletteFileStore::writeNewFile(
    const std::shared_ptr<HostColorList>& list, const std::string& text)
{
    PaletteFolder* own = writableFolder();
    const auto lock = lockOwnFolder();
    if (own == nullptr || !lock) return std::nullopt;
    _isCatalogueCurrent = false;
    const std::string usual = fileNameOfList(list->name());
    for (int number = 1; number <= mostFilesOfAName; ++number) {
        const std::string fileName = numberedFileName(usual, number);
        std::string path = own->pathOfFile(fileName);
        switch (_hostFiles.createAtomically(path, text)) {
            case HostFileCreation::made:
                own->setListInFile(fileName, list);
                return path;
            case HostFileCreation::pathIsTaken:
                break;
            case HostFileCreation::failed:
                return std::nullopt;
        }
    }
    return std::nullopt;
}

bool PaletteFileStore::replaceFile(const std::string& path,
                                   const std::shared_ptr<HostColorList>& list,
                                   const std::string& text)
{
    PaletteFolder* own = ownFolder();
    const std::size_t slash = path.rfind('/');
    if (own == nullptr || slash == std::string::npos || path.substr(0, slash) != own->path()) {
        return false;
    }
    const auto lock = lockOwnFolder();
    if (!lock) return false;
    _isCatalogueCurrent = false;
    if (!_hostFiles.writeAtomically(path, text)) return false;
    own->setListInFile(path.substr(slash + 1), list);
    return true;
}

bool PaletteFileStore::writeColorList(const std::shared_ptr<HostColorList>& list)
{
    PaletteFolder* own = list ? writableFolder() : nullptr;
    const auto lock = own != nullptr ? lockOwnFolder() : nullptr;
    if (!lock) return false;
    _isCatalogueCurrent = false;
    const std::string text = paletteText(*list);
    const std::string usual = fileNameOfList(list->name());
    for (int number = 1; number <= mostFilesOfAName; ++number) {
        // Checked in every iteration, because another program may have saved the same list
        // meanwhile.
        const auto saved = fileNameOfSaved(*own, list->name());
        const std::string fileName = saved.value_or(numberedFileName(usual, number));
        const std::string path = own->pathOfFile(fileName);
        const auto creation =
            saved ? (_hostFiles.writeAtomically(path, text) ? HostFileCreation::made
                                                            : HostFileCreation::failed)
                  : _hostFiles.createAtomically(path, text);
        if (creation == HostFileCreation::failed) return false;
        if (creation == HostFileCreation::pathIsTaken) continue;
        // The caller's list becomes the installed one.
        own->setListInFile(fileName, list);
        return true;
    }
    return false;
}

}  // namespace vantorel
