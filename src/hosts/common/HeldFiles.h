#pragma once

#include "host/HostFiles.h"

#include <map>
#include <string>

namespace vantorel {

/// Files for pages in programs of others: a page that is only looked at leaves no file behind.
///
/// What is written while a `Hold` exists, as a page does when it is created for the first time, is
/// kept in memory and can be read as if it were on the disk. The first later write, which a user
/// has caused, writes all of that to the disk first, except what exists there by then.
class HeldFiles final : public HostFiles {
public:
    /// `files` must outlive this object.
    explicit HeldFiles(HostFiles& files) : _files(files) {}

    /// Holds back writes as long as it exists. Holds can be nested.
    class Hold {
    public:
        explicit Hold(HeldFiles& files) : _files(files) { ++_files._holds; }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
        ~Hold() { --_files._holds; }

    private:
        HeldFiles& _files;
    };

    [[nodiscard]] std::optional<std::string> applicationSupportDirectory() const override;
    [[nodiscard]] HostBaseDirectories baseDirectories() const override;
    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override;
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override;
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override;
    bool createDirectory(const std::string& path) override;
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override;
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override;
    [[nodiscard]] std::optional<HostFileHead> headAtPath(const std::string& path,
                                                         std::size_t count) const override;
    bool writeAtomically(const std::string& path, const std::string& bytes) override;
    HostFileCreation createAtomically(const std::string& path, const std::string& bytes) override;
    bool writeForOthers(const std::string& path, const std::string& bytes) override;
    [[nodiscard]] std::shared_ptr<HostFolderLock> lockFolder(const std::string& folder) override;

private:
    /// A file, or a folder if it has no bytes.
    struct Held {
        std::optional<std::string> bytes;
        std::uint64_t version = 0;
    };

    /// Returns what is held for a path; null if nothing is, or if the disk has the path by now.
    [[nodiscard]] const Held* heldAt(const std::string& path) const;
    bool hold(const std::string& path, std::optional<std::string> bytes);
    [[nodiscard]] bool isHeldBack(const std::string& path) const;
    /// Writes what is held to the disk.
    void releaseUnlessHolding();

    HostFiles& _files;
    int _holds = 0;
    std::uint64_t _lastVersion = 0;
    /// By path, so that folders come before what is in them.
    std::map<std::string, Held> _held;
};

}  // namespace vantorel
