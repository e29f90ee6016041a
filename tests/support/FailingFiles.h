#pragma once

#include "testing/headless/MemoryFiles.h"

namespace vantorel {

/// In-memory files of a user on which one call fails as it would on a disk.
class FailingFiles final : public MemoryFiles {
public:
    /// Restarts the count of calls at 1 and makes this call fail; 0 for none.
    void failAt(int number)
    {
        _calls = 0;
        _failing = number;
    }
    [[nodiscard]] int calls() const { return _calls; }

    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override
    {
        return fails() ? HostFileKind::file : MemoryFiles::kindAtPath(path);
    }
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override
    {
        return fails() ? 0 : MemoryFiles::versionAtPath(path);
    }
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override
    {
        return fails() ? std::nullopt : MemoryFiles::contentsAtPath(path);
    }
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override
    {
        return fails() ? std::vector<std::string>() : MemoryFiles::contentsOfDirectory(path);
    }
    bool createDirectory(const std::string& path) override
    {
        return !fails() && MemoryFiles::createDirectory(path);
    }
    bool writeAtomically(const std::string& path, const std::string& bytes) override
    {
        return !fails() && MemoryFiles::writeAtomically(path, bytes);
    }
    HostFileCreation createAtomically(const std::string& path, const std::string& bytes) override
    {
        return fails() ? HostFileCreation::failed : MemoryFiles::createAtomically(path, bytes);
    }
    [[nodiscard]] std::shared_ptr<HostFolderLock> lockFolder(const std::string& folder) override
    {
        return fails() ? nullptr : MemoryFiles::lockFolder(folder);
    }

private:
    bool fails() const { return ++_calls == _failing; }

    mutable int _calls = 0;
    int _failing = 0;
};

}  // namespace vantorel
