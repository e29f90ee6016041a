#pragma once

#include "host/HostFiles.h"

#include <map>

namespace vantorel {

/// A user's files in memory. As on a disk, a folder must exist before a file can be created in
/// it.
class MemoryFiles : public HostFiles {
public:
    /// Creates the given folder. Pass `std::nullopt` for a user without one.
    explicit MemoryFiles(
        std::optional<std::string> applicationSupportDirectory = "/home/user/.local/share");

    [[nodiscard]] std::optional<std::string> applicationSupportDirectory() const override;
    [[nodiscard]] HostBaseDirectories baseDirectories() const override { return _baseDirectories; }
    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override;
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override;
    /// Returns the path itself, because there are no links.
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override;
    bool createDirectory(const std::string& path) override;
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override;
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override;
    bool writeAtomically(const std::string& path, const std::string& bytes) override;
    HostFileCreation createAtomically(const std::string& path, const std::string& bytes) override;
    /// The same as `writeAtomically`, because there are no permissions.
    bool writeForOthers(const std::string& path, const std::string& bytes) override
    {
        return writeAtomically(path, bytes);
    }

    void setBaseDirectories(HostBaseDirectories directories)
    {
        _baseDirectories = std::move(directories);
    }
    /// Removes a file, or a folder with its contents.
    void remove(const std::string& path);
    /// If true, every attempt to create or write a file or folder fails from now on.
    void failWrites(bool fail) { _failWrites = fail; }
    /// Returns the paths of all files and folders, sorted.
    [[nodiscard]] std::vector<std::string> allPaths() const;

private:
    struct Entry {
        HostFileKind kind = HostFileKind::none;
        std::string bytes;
        std::uint64_t version = 0;
    };

    bool put(const std::string& path, HostFileKind kind, const std::string& bytes);

    std::optional<std::string> _applicationSupportDirectory;
    HostBaseDirectories _baseDirectories;
    std::map<std::string, Entry> _entries;
    std::uint64_t _lastVersion = 0;
    bool _failWrites = false;
};

}  // namespace vantorel
