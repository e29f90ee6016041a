#pragma once

#include "host/HostFiles.h"

namespace vantorel {

/// Read-only access to the files of a host. Even the user's data folder is not created, so that
/// commands that only print something leave no trace.
class ReadOnlyFiles final : public HostFiles {
public:
    /// Which base directories are available: all, or only those of the user.
    enum class Places { all, usersOwn };

    /// `files` must outlive this object.
    explicit ReadOnlyFiles(const HostFiles& files, Places places = Places::all)
        : _files(files), _places(places)
    {
    }

    [[nodiscard]] std::optional<std::string> applicationSupportDirectory() const override
    {
        return _files.baseDirectories().dataHome;
    }
    [[nodiscard]] HostBaseDirectories baseDirectories() const override
    {
        HostBaseDirectories directories = _files.baseDirectories();
        if (_places == Places::usersOwn) {
            directories.configDirectories.clear();
            directories.dataDirectories.clear();
            directories.programData.reset();
        }
        return directories;
    }
    [[nodiscard]] HostFileKind kindAtPath(const std::string& path) const override
    {
        return _files.kindAtPath(path);
    }
    [[nodiscard]] std::uint64_t versionAtPath(const std::string& path) const override
    {
        return _files.versionAtPath(path);
    }
    [[nodiscard]] std::string identityAtPath(const std::string& path) const override
    {
        return _files.identityAtPath(path);
    }
    bool createDirectory(const std::string&) override { return false; }
    [[nodiscard]] std::vector<std::string> contentsOfDirectory(
        const std::string& path) const override
    {
        return _files.contentsOfDirectory(path);
    }
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override
    {
        return _files.contentsAtPath(path);
    }
    [[nodiscard]] std::optional<HostFileHead> headAtPath(const std::string& path,
                                                         std::size_t count) const override
    {
        return _files.headAtPath(path, count);
    }
    bool writeAtomically(const std::string&, const std::string&) override { return false; }
    HostFileCreation createAtomically(const std::string&, const std::string&) override
    {
        return HostFileCreation::failed;
    }
    bool writeForOthers(const std::string&, const std::string&) override { return false; }

private:
    const HostFiles& _files;
    Places _places;
};

}  // namespace vantorel
