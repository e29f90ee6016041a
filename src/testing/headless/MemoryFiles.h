#pragma once

#include "host/HostFiles.h"

#include <map>

namespace vantorel {

/// A user's files in memory, with the rules of a disk: a folder must exist before anything is in
/// it.
class MemoryFiles : public HostFiles {
public:
    /// The given folder exists; none at all for nothing.
    explicit MemoryFiles(
        std::optional<std::string> applicationSupportDirectory = "/home/user/.local/share");

    [[nodiscard]] std::optional<std::string> applicationSupportDirectory() const override;
    [[nodiscard]] HostBaseDirectories baseDirectories() const override { return _baseDirectories; }
    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override;
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override;
    /// There are no links here, so the path itself.
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override;
    bool createDirectory(const std::string& path) override;
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override;
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override;
    bool writeAtomically(const std::string& path, const std::string& bytes) override;
    HostFileCreation createAtomically(const std::string& path, const std::string& bytes) override;
    /// There are no permissions here.
    bool writeForOthers(const std::string& path, const std::string& bytes) override
    {
        return writeAtomically(path, bytes);
    }

    void setBaseDirectories(HostBaseDirectories directories)
    {
        _baseDirectories = std::move(directories);
    }
    /// Removes a file, or a folder with all that is in it.
    void remove(const std::string& path);
    /// From now on nothing can be made or written.
    void failWrites(bool fail) { _failWrites = fail; }
    /// Every file and folder, sorted.
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
