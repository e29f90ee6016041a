#pragma once

#include "host/HostFiles.h"
#include "hosts/posix/AtomicWrite.h"
#include "result/Message.h"

#include <functional>
#include <set>

namespace vantorel {

/// The files of the real disk. Folders and files that it makes are readable by the user alone.
class PosixFiles final : public HostFiles {
public:
    /// In bytes. What a program reads whole at its start is small; a file beyond this is damaged,
    /// and its size alone must not end the program.
    static constexpr std::uint64_t largestFile = std::uint64_t{64} << 20;

    /// The files of the user who runs the program, by the environment (see `userBaseDirectories`).
    PosixFiles();
    /// The user's data in a given folder, and no base directories, whatever the environment says.
    explicit PosixFiles(std::string applicationSupportDirectory);

    /// Makes the folder when it is missing.
    [[nodiscard]] std::optional<std::string> applicationSupportDirectory() const override;
    [[nodiscard]] HostBaseDirectories baseDirectories() const override { return _baseDirectories; }
    /// A file, too, where the disk does not tell.
    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override;
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override;
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override;
    bool createDirectory(const std::string& path) override;
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override;
    /// Regular files only, so that it never waits for a pipe, and none above `largestFile`.
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override;
    /// By an `AtomicWriter`, as are the two below.
    bool writeAtomically(const std::string& path, const std::string& bytes) override;
    HostFileCreation createAtomically(const std::string& path, const std::string& bytes) override;
    bool writeForOthers(const std::string& path, const std::string& bytes) override;

    enum class Access { reading, writing };
    /// Gets a message for each file or folder that exists and could not be read, once for each, and
    /// for each that could not be written or made. A host should report them, because pages do not
    /// report everything that fails.
    using FailureHandler = std::function<void(Access access, const Message& message)>;
    void setFailureHandler(FailureHandler handler) { _handleFailure = std::move(handler); }

private:
    int write(const std::string& path, const std::string& bytes, AtomicWrite manner);
    void reportFailure(const std::string& path, Access access, int error) const;

    HostBaseDirectories _baseDirectories;
    std::optional<std::string> _applicationSupportDirectory;
    FailureHandler _handleFailure;
    mutable std::set<std::string> _reportedUnreadable;
    AtomicWriter _writer;
};

}  // namespace vantorel
