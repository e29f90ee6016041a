#pragma once

#include "host/HostFiles.h"
#include "hosts/posix/AtomicWrite.h"

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

    enum class Trouble { reading, writing };
    /// `complaint` is told of each file or folder that stands there and could not be read, or that
    /// could not be written or made, with the system's reason in English; of what cannot be read
    /// only once. Pages do not tell of all that fails, so that a host should.
    using Complaint =
        std::function<void(const std::string& path, Trouble trouble, const std::string& reason)>;
    void setComplaint(Complaint complaint) { _complaint = std::move(complaint); }
    /// The two as a sentence's end: "cannot be read".
    [[nodiscard]] static std::string textOf(Trouble trouble);

private:
    int write(const std::string& path, const std::string& bytes, AtomicWrite manner);
    void complain(const std::string& path, Trouble trouble, int error) const;

    HostBaseDirectories _baseDirectories;
    std::optional<std::string> _applicationSupportDirectory;
    Complaint _complaint;
    mutable std::set<std::string> _toldUnreadable;
    AtomicWriter _writer;
};

}  // namespace vantorel
