#pragma once

#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): mkdtemp is POSIX

#include <filesystem>
#include <stdexcept>
#include <string>

namespace vantorel {

/// A new, empty folder that is removed with everything in it at the end of the scope.
class ScratchFolder {
public:
    ScratchFolder()
    {
        std::string path =
            (std::filesystem::temp_directory_path() / "vantorel-test-XXXXXX").string();
        if (::mkdtemp(path.data()) == nullptr)
            throw std::runtime_error("no folder could be made as " + path);
        _path = path;
    }
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(_path, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return _path; }
    [[nodiscard]] std::string pathOf(const std::string& name) const
    {
        return (_path / name).string();
    }

private:
    std::filesystem::path _path;
};

}  // namespace vantorel
