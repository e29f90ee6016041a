#pragma once

#include "host/HostFiles.h"

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
    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override;
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override;
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override;
    bool createDirectory(const std::string& path) override;
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override;
    /// Regular files only, so that it never waits for a pipe, and none above `largestFile`.
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override;
    /// Through a new file in the same folder, which is synchronised with the disk and then renamed.
    /// A file that is replaced hands its permissions on; a link is followed, and stays. Links that
    /// lead in a circle are a failure.
    bool writeAtomically(const std::string& path, const std::string& bytes) override;

private:
    HostBaseDirectories _baseDirectories;
    std::optional<std::string> _applicationSupportDirectory;
};

}  // namespace vantorel
