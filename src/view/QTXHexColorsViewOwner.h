#pragma once

#include "color/QTXHexColorSpec.h"
#include "host/HostColorPanel.h"
#include "host/HostControls.h"
#include "settings/QTXHexSettings.h"
#include "snippets/CodeDragType.h"

#include <optional>
#include <string>

namespace vantorel {

/// The interface through which the colours view uses the controller that owns it.
class QTXHexColorsViewOwner {
public:
    virtual ~QTXHexColorsViewOwner() = default;

    /// The current colour itself, not a copy.
    virtual QTXHexColorSpec& hexColorSpec() = 0;
    virtual QTXHexSettings& hexSettings() = 0;
    /// Whether the last colour from the panel lies exactly on the 8-bit grid.
    [[nodiscard]] virtual bool exactHexColorMatch() const = 0;

    virtual void setColor(const std::optional<HostColor>& color) = 0;
    /// Returns the colour with the panel's alpha, or `std::nullopt` for `std::nullopt`.
    [[nodiscard]] virtual std::optional<HostColor> colorRespectingAlpha(
        const std::optional<HostColor>& color) const = 0;
    [[nodiscard]] virtual HostColorPanel& hostPanel() const = 0;
    virtual void syncPanel() = 0;

    /// The ring buttons, which the view positions. Null if there is no interface.
    [[nodiscard]] virtual HostButton* incCubeRingsButton() const = 0;
    [[nodiscard]] virtual HostButton* decCubeRingsButton() const = 0;

    virtual void showCursorReadout() = 0;
    virtual void hideCursorReadout() = 0;
    /// Shows the colour under the pointer in the read-out. Null means that there is no colour to
    /// pick there.
    virtual void postCursorReadout(const QTXHexColorSpec* spec) = 0;

    /// The text that a drag carries, or `std::nullopt` if it carries the colour.
    [[nodiscard]] virtual std::optional<std::u16string> dragString() const = 0;
    [[nodiscard]] virtual std::optional<std::u16string> dragStringWithDragType(
        CodeDragType type) const = 0;
};

}  // namespace vantorel
