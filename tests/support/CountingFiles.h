#pragma once

#include "testing/headless/MemoryFiles.h"

namespace vantorel {

/// In-memory files of a user that count how often something on the disk is looked at.
class CountingFiles final : public MemoryFiles {
public:
    /// Returns the number of calls since the last one of this function.
    [[nodiscard]] std::size_t takeCalls() const { return std::exchange(_calls, 0); }

    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override
    {
        ++_calls;
        return MemoryFiles::kindAtPath(path);
    }
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override
    {
        ++_calls;
        return MemoryFiles::versionAtPath(path);
    }
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override
    {
        ++_calls;
        return MemoryFiles::identityAtPath(path);
    }
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override
    {
        ++_calls;
        return MemoryFiles::contentsAtPath(path);
    }

private:
    mutable std::size_t _calls = 0;
};

}  // namespace vantorel
