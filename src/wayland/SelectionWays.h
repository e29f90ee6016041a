#pragma once

#include "wayland/WaylandConnection.h"
#include "wayland/WaylandSelection.h"

namespace vantorel {

/// A way to own the clipboard. It must be destroyed before its connection.
class SelectionWay {
public:
    virtual ~SelectionWay() = default;

    /// Returns whether the compositor has confirmed the selection before the deadline.
    virtual bool take(WaylandConnection::Clock::time_point deadline) = 0;
    /// True when another program has replaced the selection.
    [[nodiscard]] virtual bool isLost() const = 0;
};

/// Returns null if the compositor does not offer what the way needs. `connection` and `forms` must
/// outlive the way.
[[nodiscard]] std::unique_ptr<SelectionWay> dataControlWay(WaylandConnection& connection,
                                                           const std::vector<OfferedForm>& forms);
/// Like `dataControlWay`. A window takes the keyboard, because the serial of that event permits to
/// copy.
[[nodiscard]] std::unique_ptr<SelectionWay> focusWay(WaylandConnection& connection,
                                                     const std::vector<OfferedForm>& forms,
                                                     const std::string& activationToken);

/// Writes the form of this type into the file, and closes it. A reader that takes nothing for two
/// seconds is given up.
void serve(const std::vector<OfferedForm>& forms, const std::string& type, int file);

}  // namespace vantorel
