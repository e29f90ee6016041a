#pragma once

#include "hosts/posix/PosixFiles.h"
#include "result/Result.h"

#include <string>
#include <vector>

namespace vantorel {

/// A folder in the user's data that has copies of loaders (see embedding/loader/) and links to the
/// installed libraries that they open. Programs name the copies, so that they find something, and
/// print nothing, after Vantorel has been removed from the machine.
class LoaderFolder {
public:
    /// `installed` is the folder lib/vantorel. The loaders are named by their paths in it, and the
    /// copies have the same paths in `root`. `files` must outlive this object.
    LoaderFolder(PosixFiles& files, std::string root, std::string installed,
                 std::vector<std::string> loaders)
        : _files(files),
          _root(std::move(root)),
          _installed(std::move(installed)),
          _loaders(std::move(loaders))
    {
    }

    [[nodiscard]] const std::string& root() const { return _root; }
    [[nodiscard]] std::string copyOf(const std::string& loader) const
    {
        return _root + '/' + loader;
    }
    /// The loaders that are installed.
    [[nodiscard]] std::vector<std::string> installedLoaders() const;

    /// Whether the copies have a page to load.
    [[nodiscard]] bool isLinked() const;
    /// Whether the copies are those of the installed loaders.
    [[nodiscard]] bool isCurrent() const;
    /// Whether there are copies, with or without a page to load.
    [[nodiscard]] bool hasCopies() const;

    [[nodiscard]] Status install();
    /// Removes the links, so that the page is gone from programs that are started now, and the
    /// copies, unless programs of this session are still going to ask for them.
    [[nodiscard]] Status remove(bool keepsCopies);

private:
    PosixFiles& _files;
    std::string _root;
    std::string _installed;
    std::vector<std::string> _loaders;
};

}  // namespace vantorel
