#pragma once

#include "host/HostFiles.h"
#include "result/Message.h"
#include "snippets/QTXCodeSnippet.h"

#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace vantorel {

/// All snippets that a program can offer: those of the settings, which the picker's page offers,
/// then those of the user's own file, then those that ship with the program, without those that the
/// file names as removed. Of snippets with the same name, the first counts.
class KnownSnippets {
public:
    enum class Source : std::uint8_t { settings, own, shipped };

    /// Reads the user's file. `files` must outlive the object. Nothing is written.
    KnownSnippets(const HostFiles& files, std::vector<QTXCodeSnippet> ofSettings);

    /// All snippets. The file that ships with the program is read at the first call.
    [[nodiscard]] const std::vector<QTXCodeSnippet>& all();
    /// Those of the settings and of the user's file, with which `all` begins. The reference is
    /// valid until `all` is called.
    [[nodiscard]] std::span<const QTXCodeSnippet> users() const
    {
        return std::span(_snippets).first(_countOfSettings + _countOfOwn);
    }
    [[nodiscard]] Source sourceOf(std::size_t snippet) const;
    /// What is wrong in the user's file. Its other snippets are there.
    [[nodiscard]] const std::vector<Message>& problems() const { return _problems; }

    /// The user's file, `Vantorel/Snippets.plist` in the folder for data; `std::nullopt` without
    /// such a folder.
    [[nodiscard]] static std::optional<std::string> ownFile(const HostFiles& files);
    /// The file that ships with the program; `std::nullopt` if the program is not in a folder
    /// "bin".
    [[nodiscard]] static std::optional<std::string> shippedFile(const HostFiles& files);

private:
    const HostFiles& _files;
    std::vector<QTXCodeSnippet> _snippets;
    std::set<std::u16string> _names;
    /// Snippets of the program that the user does not want.
    std::set<std::u16string> _removed;
    std::size_t _countOfSettings = 0;
    std::size_t _countOfOwn = 0;
    bool _hasShipped = false;
    std::vector<Message> _problems;
};

}  // namespace vantorel
