#pragma once

#include "panelcalls/SessionBus.h"

#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// What the running panel answered.
struct PanelReply {
    enum class Kind {
        done,
        cancelled,    ///< by the user
        notPossible,  ///< `text` says why
        noAnswer,     ///< the panel has gone, hangs, or refused the call
    };
    Kind kind = Kind::noAnswer;
    /// The picked or copied text, or a sentence in the panel's language.
    std::string text;
};

/// Operates the panel that is running, without a toolkit. A caller that gets no answer starts the
/// panel's program, which knows all other cases.
class PanelCaller {
public:
    /// Returns `std::nullopt` if no panel is running, or if it does not answer.
    [[nodiscard]] static std::optional<PanelCaller> find();

    /// Sets the panel's colour to a CSS text.
    [[nodiscard]] PanelReply setColor(const std::string& color);
    /// Shows the window, with the token that the desktop gave this process for raising one.
    [[nodiscard]] PanelReply show();
    /// Lets the user pick from the screen, however long that takes.
    [[nodiscard]] PanelReply pick();
    /// Copies the panel's colour.
    [[nodiscard]] PanelReply copy();

private:
    explicit PanelCaller(std::unique_ptr<SessionBus> bus) : _bus(std::move(bus)) {}
    [[nodiscard]] PanelReply call(const char* member,
                                  const std::vector<SessionBus::Argument>& arguments,
                                  int milliseconds);

    std::unique_ptr<SessionBus> _bus;
};

}  // namespace vantorel
