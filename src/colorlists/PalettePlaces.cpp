#include "colorlists/PalettePlaces.h"

#include "text/ASCII.h"

#include <algorithm>
#include <array>
#include <set>

namespace vantorel {
namespace {

using Takes = PaletteFolder::Takes;

enum class Base { configHome, dataHome, configDirectories, dataDirectories, programData };

struct Place {
    const char16_t* program;
    Base base;
    /// Relative to the base directory. "*" matches the name of a version.
    std::string_view path;
    Takes takes;
};

/// The places, most important first. KDE's palettes, and the swatches that graphics programs share,
/// have no fixed extension.
constexpr std::array places{
    Place{u"GIMP", Base::configHome, "GIMP/*/palettes", Takes::gplFiles},
    Place{u"Inkscape", Base::configHome, "inkscape/palettes", Takes::gplFiles},
    Place{u"Krita", Base::dataHome, "krita/palettes", Takes::gplFiles},
    Place{u"KDE", Base::configHome, "colors", Takes::everyFile},
    Place{u"Vantorel", Base::programData, "vantorel/palettes", Takes::gplFiles},
    Place{u"GIMP", Base::dataDirectories, "gimp/*/palettes", Takes::gplFiles},
    Place{u"Inkscape", Base::dataDirectories, "inkscape/palettes", Takes::gplFiles},
    Place{u"Krita", Base::dataDirectories, "krita/palettes", Takes::gplFiles},
    Place{u"Create", Base::dataDirectories, "create/swatches", Takes::everyFile},
    Place{u"KDE", Base::configDirectories, "colors", Takes::everyFile},
};

constexpr std::string_view versionWildcard = "*/";

std::vector<std::string> pathsOfBase(const HostBaseDirectories& directories, Base base)
{
    const auto one = [](const std::optional<std::string>& path) {
        return path ? std::vector<std::string>{*path} : std::vector<std::string>{};
    };
    switch (base) {
        case Base::configHome:
            return one(directories.configHome);
        case Base::dataHome:
            return one(directories.dataHome);
        case Base::configDirectories:
            return directories.configDirectories;
        case Base::dataDirectories:
            return directories.dataDirectories;
        case Base::programData:
            return one(directories.programData);
    }
    return {};
}

std::string pathIn(const std::string& folder, std::string_view name)
{
    std::string path = folder;
    path += '/';
    path += name;
    return path;
}

bool isVersion(std::string_view name)
{
    return !name.empty() && isDigit(name.front()) &&
           std::all_of(name.begin(), name.end(), [](char c) { return isDigit(c) || c == '.'; });
}

/// Removes the number before the next dot from `version` and returns it without leading zeros. It
/// is returned as text, because it may exceed any integer type.
std::string_view takeNumber(std::string_view& version)
{
    std::string_view number = version.substr(0, version.find('.'));
    version.remove_prefix(std::min(number.size() + 1, version.size()));
    while (number.starts_with('0'))
        number.remove_prefix(1);
    return number;
}

}  // namespace

bool isNewerVersion(std::string_view left, std::string_view right)
{
    const bool isLeftVersion = isVersion(left);
    if (isLeftVersion != isVersion(right)) return isLeftVersion;
    std::string_view leftRest = isLeftVersion ? left : std::string_view();
    std::string_view rightRest = isLeftVersion ? right : std::string_view();
    while (!leftRest.empty() || !rightRest.empty()) {
        const std::string_view leftNumber = takeNumber(leftRest);
        const std::string_view rightNumber = takeNumber(rightRest);
        if (leftNumber.size() != rightNumber.size()) return leftNumber.size() > rightNumber.size();
        if (leftNumber != rightNumber) return leftNumber > rightNumber;
    }
    // Makes the order total.
    return left > right;
}

PalettePlaces::PalettePlaces(HostFiles& files, PaletteFolder::Log log)
    : _hostFiles(files), _log(std::move(log))
{
}

bool PalettePlaces::haveVersionsChanged() const
{
    return std::any_of(_versionsFolders.begin(), _versionsFolders.end(),
                       [this](const VersionsFolder& folder) {
                           return _hostFiles.versionAtPath(folder.path) != folder.version;
                       });
}

bool PalettePlaces::haveChanged() const
{
    return !_hasLooked || haveVersionsChanged() ||
           std::any_of(_folders.begin(), _folders.end(),
                       [](const auto& folder) { return folder->palettes.hasChanged(); });
}

void PalettePlaces::findFolders()
{
    std::map<std::string, std::unique_ptr<Folder>> known;
    for (auto& folder : _folders) {
        const std::string path = folder->palettes.path();
        known[path] = std::move(folder);
    }
    _folders.clear();
    _versionsFolders.clear();
    std::set<std::string> paths;
    const auto add = [&](const Place& place, const std::string& path) {
        if (!paths.insert(path).second) return;
        // Folders that still exist keep what has been read of them.
        if (auto same = known.extract(path)) {
            _folders.push_back(std::move(same.mapped()));
            return;
        }
        _folders.push_back(std::make_unique<Folder>(
            Folder{place.program, PaletteFolder(_hostFiles, path, place.takes,
                                                PaletteFolder::Owner::anotherProgram, _log)}));
    };

    const HostBaseDirectories directories = _hostFiles.baseDirectories();
    for (const Place& place : places) {
        for (const std::string& base : pathsOfBase(directories, place.base)) {
            const std::size_t wildcard = place.path.find(versionWildcard);
            if (wildcard == std::string_view::npos) {
                add(place, pathIn(base, place.path));
                continue;
            }
            const std::string parent = pathIn(base, place.path.substr(0, wildcard - 1));
            const std::string_view rest = place.path.substr(wildcard + versionWildcard.size());
            // Read the version first, so that a later change is noticed at the next refresh.
            _versionsFolders.push_back({parent, _hostFiles.versionAtPath(parent)});
            std::vector<std::string> versions = _hostFiles.contentsOfDirectory(parent);
            std::erase_if(versions, [](const std::string& name) { return name.starts_with('.'); });
            std::sort(versions.begin(), versions.end(), isNewerVersion);
            for (const std::string& version : versions)
                add(place, pathIn(pathIn(parent, version), rest));
        }
    }
}

void PalettePlaces::refreshFolders()
{
    if (!_hasLooked || haveVersionsChanged()) findFolders();
    _hasLooked = true;
}

}  // namespace vantorel
