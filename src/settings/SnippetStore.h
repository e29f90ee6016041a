#pragma once

#include "host/HostFiles.h"
#include "result/Result.h"
#include "settings/SnippetMerge.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// Edits the user's file of snippets. Every step is written at once, under the lock of the folder,
/// and merged with what other programs have written meanwhile.
class SnippetStore {
public:
    /// `files` must outlive the object. Nothing is written until the first step.
    explicit SnippetStore(HostFiles& files);

    /// Reads the files again if they have changed. Returns whether there is anything new.
    bool refresh();
    /// The user's snippets, then those of the program that the user has not replaced or removed.
    [[nodiscard]] const SnippetList& snippets() const { return _snippets; }
    /// Those of the program, as they ship.
    [[nodiscard]] const SnippetList& shipped() const { return _shipped; }
    /// The names of the snippets in the settings. A snippet of such a name is not offered.
    [[nodiscard]] const std::vector<std::u16string>& takenNames() const { return _takenNames; }
    /// What is wrong in the user's file.
    [[nodiscard]] const std::vector<Message>& problems() const { return _problems; }

    /// Makes a list that was made from `snippets` the one that is kept. If it cannot be written,
    /// the list stays as it was. A file with errors in it is first copied to one with "~" appended
    /// to its name.
    Status change(const SnippetList& edited);

    [[nodiscard]] bool canUndo() const { return _done > 0; }
    [[nodiscard]] bool canRedo() const { return _done < _steps.size(); }
    // Without a step to undo or redo they have no effect.
    Status undo();
    Status redo();

private:
    struct Step {
        SnippetList before;
        SnippetList after;
    };

    void read();
    Status write(const SnippetList& base, const SnippetList& edited);

    HostFiles& _files;
    std::optional<std::string> _path;
    SnippetList _shipped;
    SnippetList _snippets;
    std::vector<std::u16string> _takenNames;
    std::vector<Message> _problems;
    /// Whether the user's file exists but cannot be read.
    bool _isUnreadable = false;
    /// Of the settings, the user's file and that of the program.
    std::optional<std::array<std::uint64_t, 3>> _versions;
    std::vector<Step> _steps;
    std::size_t _done = 0;
};

}  // namespace vantorel
