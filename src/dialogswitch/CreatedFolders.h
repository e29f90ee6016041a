#pragma once

#include "hosts/posix/PosixFiles.h"
#include "result/Result.h"

#include <string>

namespace vantorel {

/// The folders that we have made in other programs' folders, which are removed with the last file
/// in them.
class CreatedFolders {
public:
    /// `record` is a file that remembers them; its folder must exist when one is made. `files` must
    /// outlive this object.
    CreatedFolders(PosixFiles& files, std::string record)
        : _files(files), _record(std::move(record))
    {
    }

    /// Makes a folder and those above it that are missing.
    [[nodiscard]] Status create(const std::string& folder);
    /// Removes those that are empty.
    [[nodiscard]] Status removeEmpty();

private:
    [[nodiscard]] Status write(const std::string& lines);

    PosixFiles& _files;
    std::string _record;
};

}  // namespace vantorel
