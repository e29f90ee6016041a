#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// The freedesktop base directories: absolute paths without a trailing "/", most important first.
/// They need not exist.
struct HostBaseDirectories {
    std::optional<std::string> configHome;
    std::optional<std::string> dataHome;
    std::vector<std::string> configDirectories;
    std::vector<std::string> dataDirectories;
    /// Where our own shared data is installed, which need not be among `dataDirectories`.
    std::optional<std::string> programData = std::nullopt;
};

enum class HostFileKind { none, file, folder };

enum class HostFileCreation { made, pathIsTaken, failed };

/// The beginning of a file.
struct HostFileHead {
    std::string bytes;
    bool isWholeFile = false;
    /// Of the file before it was read, as `HostFiles::versionAtPath` and `identityAtPath` return
    /// them.
    std::uint64_t version = 0;
    std::string identity;
};

/// Keeps other programs of ours out of a folder, until it is destroyed.
class HostFolderLock {
public:
    HostFolderLock() = default;
    HostFolderLock(const HostFolderLock&) = delete;
    HostFolderLock& operator=(const HostFolderLock&) = delete;
    virtual ~HostFolderLock() = default;
};

/// The user's files. Paths are absolute, in the file system's own bytes, with "/" as separator. No
/// function throws because of a disk error; failures are reported in the return value.
class HostFiles {
public:
    virtual ~HostFiles() = default;

    /// Returns the folder for the user's data of all programs, without a trailing "/"
    /// (`$XDG_DATA_HOME`, else `~/.local/share`), or `std::nullopt` if there is none.
    [[nodiscard]] virtual std::optional<std::string> applicationSupportDirectory() const = 0;

    /// The folders where other programs keep shared data. Empty unless the host serves a real user,
    /// because their contents differ between machines.
    [[nodiscard]] virtual HostBaseDirectories baseDirectories() const { return {}; }

    /// Returns what exists at a path, following links. `none` is reliable: if the kind cannot be
    /// determined, `file` is returned, so that callers do not create another file there.
    [[nodiscard]] virtual HostFileKind kindAtPath(const std::string& path) const = 0;
    /// Returns a number that changes when the file at a path, or the list of names in the folder
    /// there, changes; 0 if the path does not exist. Use it only to decide whether to read again.
    [[nodiscard]] virtual std::uint64_t versionAtPath(const std::string& path) const = 0;
    /// Returns a text that is equal for two paths to the same file or folder, with or without
    /// links; empty if the path does not exist.
    [[nodiscard]] virtual std::string identityAtPath(const std::string& path) const = 0;
    /// Creates a folder that only the user can read. Its parent must exist.
    virtual bool createDirectory(const std::string& path) = 0;
    /// Returns the names in a folder, sorted by their bytes; empty if the folder cannot be read.
    [[nodiscard]] virtual std::vector<std::string> contentsOfDirectory(
        const std::string& path) const = 0;

    /// Returns the bytes of a file, or `std::nullopt` if it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> contentsAtPath(
        const std::string& path) const = 0;
    /// Returns the beginning of a file, usually at most `count` bytes, or `std::nullopt` if it
    /// cannot be read. For programs that look at many files.
    [[nodiscard]] virtual std::optional<HostFileHead> headAtPath(const std::string& path,
                                                                 std::size_t count) const
    {
        static_cast<void>(count);
        HostFileHead head;
        head.version = versionAtPath(path);
        head.identity = identityAtPath(path);
        auto bytes = contentsAtPath(path);
        if (!bytes) return std::nullopt;
        head.bytes = std::move(*bytes);
        head.isWholeFile = true;
        return head;
    }
    /// Replaces the whole file atomically: readers see, and a crash leaves, either the old bytes or
    /// the new ones. A new file is readable by the user only; an existing one keeps its
    /// permissions.
    virtual bool writeAtomically(const std::string& path, const std::string& bytes) = 0;
    /// Like `writeAtomically`, but only if nothing exists at the path, not even a link. If several
    /// programs create the same file at the same time, exactly one succeeds. An existing file is
    /// never replaced.
    virtual HostFileCreation createAtomically(const std::string& path,
                                              const std::string& bytes) = 0;
    /// Like `writeAtomically`, for a file that the user names or that another program reads: a new
    /// file gets the permissions that the user's files usually get.
    virtual bool writeForOthers(const std::string& path, const std::string& bytes) = 0;

    /// Locks the files directly in a folder, so that a file can be read, merged and replaced
    /// without losing what another program writes at the same time. All our programs lock a folder
    /// before they change a file of the user's data in it; reading needs no lock.
    ///
    /// Waits for a lock held by another program, but not forever: returns null if the lock cannot
    /// be had, and the file must then not be written. A folder that does not exist or cannot be
    /// locked at all yields a lock that excludes nobody. A program may lock a folder again while it
    /// holds the lock. The default is for hosts whose files nobody else can see.
    [[nodiscard]] virtual std::shared_ptr<HostFolderLock> lockFolder(const std::string& folder)
    {
        static_cast<void>(folder);
        return std::make_shared<HostFolderLock>();
    }
};

/// The resources of a plug-in, by name.
class HostBundle {
public:
    virtual ~HostBundle() = default;
    /// Returns the bytes of a resource, or `std::nullopt` if there is no resource of that name.
    [[nodiscard]] virtual std::optional<std::string> resource(const std::string& name) const = 0;
    /// Returns the absolute path of a resource, for interfaces that accept only files. Returns
    /// `std::nullopt` if there is no resource of that name or it is not a separate file.
    [[nodiscard]] virtual std::optional<std::string> pathOfResource(
        const std::string& name) const = 0;
};

}  // namespace vantorel
