#pragma once

#include "documents/DocumentColors.h"
#include "lsp/ServerUser.h"

#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// The panels in which the user is choosing colours, and what each colour will replace.
class PanelChoices {
public:
    PanelChoices() = default;
    PanelChoices(const PanelChoices&) = delete;
    PanelChoices& operator=(const PanelChoices&) = delete;
    /// Ends the panels that are still open.
    ~PanelChoices();

    void add(ServerUser::Panel panel, std::string uri, TextRange range);

    /// Follows an edit of a document. A range that the edit touches is given up.
    void replace(const std::string& uri, TextRange range, std::size_t length);
    /// Gives up all ranges of a document.
    void forget(const std::string& uri);

    /// The outputs to wait for.
    [[nodiscard]] std::vector<int> outputs() const;

    struct Choice {
        std::string uri;
        TextRange range;
        /// What the panel has printed: a colour, or nothing if the user cancelled.
        std::string text;
    };
    /// Reads from an output that is ready. Returns the choice when the panel has ended, unless its
    /// range was given up.
    [[nodiscard]] std::optional<Choice> read(int output);

private:
    struct Open {
        ServerUser::Panel panel;
        Choice choice;
        bool isGivenUp = false;
    };
    std::vector<Open> _open;
};

}  // namespace vantorel
