#pragma once

#include "host/HostFiles.h"
#include "hosts/posix/AtomicWrite.h"
#include "result/Message.h"

#include <functional>
#include <map>
#include <set>

namespace vantorel {

/// Files on a real disk. New folders and files are readable by the user only.
class PosixFiles final : public HostFiles {
public:
    /// The size limit for reading, in bytes. Our files are much smaller; a larger file must be
    /// damaged and must not exhaust the memory.
    static constexpr std::uint64_t largestFile = std::uint64_t{64} << 20;

    /// Uses the directories of the user who runs the program, from the environment (see
    /// `userBaseDirectories`).
    PosixFiles();
    /// Uses the given folder for the user's data and no base directories. Ignores the environment.
    explicit PosixFiles(std::string applicationSupportDirectory);

    /// Creates the folder if it is missing.
    [[nodiscard]] std::optional<std::string> applicationSupportDirectory() const override;
    [[nodiscard]] HostBaseDirectories baseDirectories() const override { return _baseDirectories; }
    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override;
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override;
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override;
    bool createDirectory(const std::string& path) override;
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override;
    /// Reads only regular files, so that a pipe cannot block it, of at most `largestFile` bytes.
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override;
    [[nodiscard]] std::optional<HostFileHead> headAtPath(const std::string& path,
                                                         std::size_t count) const override;
    /// Uses an `AtomicWriter`, as do the two functions below.
    bool writeAtomically(const std::string& path, const std::string& bytes) override;
    HostFileCreation createAtomically(const std::string& path, const std::string& bytes) override;
    bool writeForOthers(const std::string& path, const std::string& bytes) override;
    /// By a `FolderLock`.
    [[nodiscard]] std::shared_ptr<HostFolderLock> lockFolder(const std::string& folder) override;

    enum class Access { reading, writing };
    /// Called when a file or folder exists but cannot be read, once for each path, and whenever one
    /// cannot be written or created. Hosts should report the message, because pages do not report
    /// every failure.
    using FailureHandler = std::function<void(Access access, const Message& message)>;
    void setFailureHandler(FailureHandler handler) { _handleFailure = std::move(handler); }

private:
    struct OpenFile;

    int write(const std::string& path, const std::string& bytes, AtomicWrite manner);
    /// Opens a regular file that is not too large. Reports why it cannot be, unless it is missing.
    [[nodiscard]] std::optional<OpenFile> openToRead(const std::string& path) const;
    /// Reads at most `most` bytes of a file and appends them. Returns false, and reports it, if
    /// that fails.
    bool readSome(const OpenFile& file, const std::string& path, std::string& bytes,
                  std::size_t most) const;
    /// A pipe, a socket or a device.
    void reportSpecialFile(const std::string& path) const;
    void reportFailure(const std::string& path, Access access, int error) const;

    HostBaseDirectories _baseDirectories;
    std::optional<std::string> _applicationSupportDirectory;
    FailureHandler _handleFailure;
    mutable std::set<std::string> _reportedUnreadable;
    AtomicWriter _writer;
    /// The locks that are held. They exclude each other even within a process, so a folder that is
    /// locked again shares the first lock.
    std::map<std::string, std::weak_ptr<HostFolderLock>> _locks;
};

}  // namespace vantorel
