#pragma once

#include "settings/KnownSnippets.h"
#include "snippets/SnippetReaders.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vantorel {

/// The user's snippets and those of the program, read from their files when they are needed, and
/// again when a file has changed. While an object exists, texts that the panel reads are looked
/// through for lines of its snippets (see ColorClipboard.h). A program has one at a time.
class PanelSnippets {
public:
    /// `files` must outlive the object.
    explicit PanelSnippets(const HostFiles& files);
    ~PanelSnippets();
    PanelSnippets(const PanelSnippets&) = delete;
    PanelSnippets& operator=(const PanelSnippets&) = delete;

    /// Those of the user's file and of the program, which pages do not offer. The result is valid
    /// until the next call.
    [[nodiscard]] std::span<const QTXCodeSnippet> others();
    [[nodiscard]] const SnippetReaders& readers();
    /// Returns what is wrong in the user's file, once for each state of the file.
    [[nodiscard]] std::vector<Message> takeProblems();

    /// Returns the readers of the object that exists, or those of the built-in snippets.
    [[nodiscard]] static const SnippetReaders& readersInUse();

private:
    void refresh();

    const HostFiles& _files;
    /// The versions of the settings and of the two files of snippets.
    std::optional<std::array<std::uint64_t, 3>> _versions;
    std::size_t _countOfSettings = 0;
    std::optional<SnippetReaders> _readers;
    std::vector<Message> _problems;
};

}  // namespace vantorel
