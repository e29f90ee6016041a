#pragma once

#include "host/HostColorList.h"
#include "settings/QTXHexSettings.h"
#include "snippets/QTXCodeSnippet.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vantorel {

/// What the server needs of its user: settings, snippets and lists, which can change while it runs,
/// and the panel.
class ServerUser {
public:
    virtual ~ServerUser() = default;

    /// Returns the current settings. Valid until the next call.
    [[nodiscard]] virtual const QTXHexSettings& settings() = 0;
    /// Returns the snippets whose lines are found in documents.
    [[nodiscard]] virtual std::vector<QTXCodeSnippet> knownSnippets() = 0;
    /// Returns the snippets that the user has chosen or written, in which colours are offered.
    [[nodiscard]] virtual std::vector<QTXCodeSnippet> ownSnippets() = 0;
    /// Returns the lists by which colours are named: that of the settings first, then the other
    /// active ones.
    [[nodiscard]] virtual std::vector<std::shared_ptr<HostColorList>> lists() = 0;

    /// A panel in which the user is choosing a colour. When it ends, it writes the colour to its
    /// output, which the caller must close; and the process must be waited for.
    struct Panel {
        int process = 0;
        int output = -1;
    };
    /// Starts a panel with a colour. Returns `std::nullopt` if it is not installed or cannot be
    /// started.
    [[nodiscard]] virtual std::optional<Panel> startPanel(const std::string& hexColor) = 0;
};

}  // namespace vantorel
