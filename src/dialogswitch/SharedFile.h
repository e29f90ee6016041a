#pragma once

#include "dialogswitch/CreatedFolders.h"

#include <functional>
#include <string>
#include <string_view>

namespace vantorel {

/// A file of the user's in which we put an entry beside those of others, and from which we take it
/// again without a trace: if nobody else has changed the file meanwhile, it gets its old bytes
/// back, or is removed if it did not exist.
class SharedFile {
public:
    using Edit = std::function<std::string(std::string_view text)>;

    /// `record` is the beginning of the paths of two files that remember how the file was and how
    /// we have left it. `files` and `folders` must outlive this object.
    SharedFile(PosixFiles& files, CreatedFolders& folders, std::string path, std::string record)
        : _files(files),
          _folders(folders),
          _path(std::move(path)),
          _before(record + ".before"),
          _after(std::move(record) + ".after")
    {
    }

    /// `add` puts our entry into a text without it, `remove` takes it out of any text.
    [[nodiscard]] Status change(const Edit& add, const Edit& remove);
    [[nodiscard]] Status revert(const Edit& remove);

private:
    [[nodiscard]] Status write(const std::string& path, const std::string& bytes);

    PosixFiles& _files;
    CreatedFolders& _folders;
    std::string _path;
    std::string _before;
    std::string _after;
};

}  // namespace vantorel
