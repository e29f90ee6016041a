#pragma once

#include "host/HostFiles.h"
#include "testing/headless/HeadlessJournal.h"

#include <memory>

namespace vantorel {

/// Forwards all calls to another `HostFiles`, and records in a journal when the settings file is
/// written.
class JournalingFiles final : public HostFiles {
public:
    /// Takes ownership of `files`. `journal` must outlive this object.
    JournalingFiles(std::unique_ptr<HostFiles> files, HeadlessJournal& journal)
        : _files(std::move(files)), _journal(journal)
    {
    }

    [[nodiscard]] std::optional<std::string> applicationSupportDirectory() const override
    {
        return _files->applicationSupportDirectory();
    }
    [[nodiscard]] HostBaseDirectories baseDirectories() const override
    {
        return _files->baseDirectories();
    }
    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override
    {
        return _files->kindAtPath(path);
    }
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override
    {
        return _files->versionAtPath(path);
    }
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override
    {
        return _files->identityAtPath(path);
    }
    bool createDirectory(const std::string& path) override { return _files->createDirectory(path); }
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override
    {
        return _files->contentsOfDirectory(path);
    }
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override
    {
        return _files->contentsAtPath(path);
    }
    bool writeAtomically(const std::string& path, const std::string& bytes) override
    {
        const bool written = _files->writeAtomically(path, bytes);
        if (written && path.ends_with("/Settings.plist")) _journal.emplace_back(SettingsWritten{});
        return written;
    }
    HostFileCreation createAtomically(const std::string& path, const std::string& bytes) override
    {
        return _files->createAtomically(path, bytes);
    }
    bool writeForOthers(const std::string& path, const std::string& bytes) override
    {
        return _files->writeForOthers(path, bytes);
    }
    [[nodiscard]] std::shared_ptr<HostFolderLock> lockFolder(const std::string& folder) override
    {
        return _files->lockFolder(folder);
    }

private:
    std::unique_ptr<HostFiles> _files;
    HeadlessJournal& _journal;
};

}  // namespace vantorel
