#pragma once

#include "testing/headless/MemoryFiles.h"

#include <set>
#include <stdexcept>

namespace vantorel {

/// In-memory files of a user on a machine with other programs; counts the calls made on them.
class ForeignFiles final : public MemoryFiles {
public:
    static constexpr const char* ours = "/home/user/.local/share/Vantorel/Palettes/";

    enum class Home { isThere, isMissing };

    explicit ForeignFiles(Home home = Home::isThere) : _home(home)
    {
        HostBaseDirectories directories;
        if (home == Home::isThere) {
            directories.configHome = "/home/user/.config";
            directories.dataHome = "/home/user/.local/share";
        }
        directories.configDirectories = {"/home/machine/etc/xdg"};
        directories.dataDirectories = {"/home/machine/usr/local/share", "/home/machine/usr/share"};
        directories.programData = "/home/machine/opt/vantorel/share";
        setBaseDirectories(std::move(directories));
    }

    /// Writes a file and creates the folders it needs.
    void put(const std::string& path, const std::string& text)
    {
        for (std::size_t end = path.find('/', 1); end != std::string::npos;
             end = path.find('/', end + 1)) {
            createDirectory(path.substr(0, end));
        }
        if (!writeAtomically(path, text)) throw std::runtime_error("cannot write " + path);
    }
    /// A palette of one colour, identified by its name and shade.
    void putPalette(const std::string& path, const std::string& name, int shade)
    {
        const std::string number = std::to_string(shade);
        put(path, "GIMP Palette\nName: " + name + "\n" + number + " 0 0\tcolour " + number + "\n");
    }
    /// Makes a file or folder unreadable from now on; it still exists.
    void makeUnreadable(const std::string& path) { _unreadable.insert(path); }
    /// Makes a file unreadable after it has been read once more.
    void letReadOnce(const std::string& path) { _readableOnce.insert(path); }

    [[nodiscard]] std::optional<std::string> applicationSupportDirectory() const override
    {
        ++others;
        return _home == Home::isThere ? MemoryFiles::applicationSupportDirectory() : std::nullopt;
    }
    [[nodiscard]] HostBaseDirectories baseDirectories() const override
    {
        ++others;
        return MemoryFiles::baseDirectories();
    }
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override
    {
        ++versions;
        return MemoryFiles::versionAtPath(path);
    }
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override
    {
        ++listings;
        if (_unreadable.contains(path)) return {};
        return MemoryFiles::contentsOfDirectory(path);
    }
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override
    {
        readPaths.push_back(path);
        if (_unreadable.contains(path)) return std::nullopt;
        if (_readableOnce.erase(path) > 0) _unreadable.insert(path);
        return MemoryFiles::contentsAtPath(path);
    }

    void resetCounts()
    {
        versions = listings = others = 0;
        readPaths.clear();
    }
    mutable int versions = 0;
    mutable int listings = 0;
    mutable int others = 0;
    mutable std::vector<std::string> readPaths;

private:
    Home _home;
    // Mutable, because reading is const.
    mutable std::set<std::string> _unreadable;
    mutable std::set<std::string> _readableOnce;
};

}  // namespace vantorel
