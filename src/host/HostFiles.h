#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// The base directories of the desktop (freedesktop): absolute paths without a "/" at their
/// end, the most important first. They need not exist.
struct HostBaseDirectories {
    std::optional<std::string> configHome;
    std::optional<std::string> dataHome;
    std::vector<std::string> configDirectories;
    std::vector<std::string> dataDirectories;
};

enum class HostFileKind { none, file, folder };

enum class HostFileCreation { made, pathIsTaken, failed };

/// The files of the user. Paths are absolute, in the file system's own bytes, parts joined by "/".
/// Nothing here throws for what the disk does: failures are in the results.
class HostFiles {
public:
    virtual ~HostFiles() = default;

    /// The folder of the user's data of all programs, without a "/" at its end (freedesktop base
    /// directories: `$XDG_DATA_HOME`, else `~/.local/share`); nothing when there is none.
    [[nodiscard]] virtual std::optional<std::string> applicationSupportDirectory() const = 0;

    /// Where other programs keep what they share. Empty unless a host serves a real user: what it
    /// leads to differs from machine to machine.
    [[nodiscard]] virtual HostBaseDirectories baseDirectories() const { return {}; }

    /// What stands at a path, links followed. `none` is certain: where it cannot be told what
    /// stands there, it counts as a file, so that nobody puts another in its place.
    [[nodiscard]] virtual HostFileKind kindAtPath(const std::string& path) const = 0;
    /// A number that changes when the file, or the list of names in the folder, at a path does; 0
    /// when there is nothing. It tells only whether to look again.
    [[nodiscard]] virtual std::uint64_t versionAtPath(const std::string& path) const = 0;
    /// Equal for two paths that lead to one file or folder, by links or not; empty when there is
    /// nothing.
    [[nodiscard]] virtual std::string identityAtPath(const std::string& path) const = 0;
    /// Makes one folder, readable by the user alone; its parent must exist.
    virtual bool createDirectory(const std::string& path) = 0;
    /// The names in a folder, sorted by their bytes; empty when it cannot be read.
    [[nodiscard]] virtual std::vector<std::string> contentsOfDirectory(
        const std::string& path) const = 0;

    /// The bytes of a file; nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> contentsAtPath(
        const std::string& path) const = 0;
    /// Replaces the whole file at once: a reader, or a crash, sees the old bytes or the new ones. A
    /// new file is readable by the user alone; one that was there keeps its permissions.
    virtual bool writeAtomically(const std::string& path, const std::string& bytes) = 0;
    /// The same where nothing stands, not even a link: of several programs that make one file at
    /// the same time one succeeds, and nothing is replaced.
    virtual HostFileCreation createAtomically(const std::string& path,
                                              const std::string& bytes) = 0;
    /// As `writeAtomically`, for a file that the user names or that another program reads: a new
    /// one gets the permissions that files of the user's programs usually get.
    virtual bool writeForOthers(const std::string& path, const std::string& bytes) = 0;
};

/// The resources that came with a plug-in, by name.
class HostBundle {
public:
    virtual ~HostBundle() = default;
    /// The bytes of a resource; nothing when there is none of that name.
    [[nodiscard]] virtual std::optional<std::string> resource(const std::string& name) const = 0;
    /// The absolute path of a resource, for what only files can be handed to; nothing when there is
    /// none of that name, or it is no file of its own.
    [[nodiscard]] virtual std::optional<std::string> pathOfResource(
        const std::string& name) const = 0;
};

}  // namespace vantorel
