#pragma once

#include "host/HostColor.h"
#include "result/Message.h"

#include <QMimeData>
#include <QString>

#include <memory>
#include <optional>

/// Colours on the clipboard and in drops.
namespace vantorel {

/// The colour as `application/x-color`; with a text as UTF-8 beside it, if one is given.
[[nodiscard]] std::unique_ptr<QMimeData> mimeDataFromColor(const HostColor& color,
                                                           const QString& text = {});

/// What the clipboard or a drop has brought.
struct ColorOffer {
    std::optional<HostColor> color;
    /// Why there is no colour, or what was changed about it; may be empty.
    Message message;
};

/// Whether there may be a colour, which a drag that hovers wants to know.
[[nodiscard]] bool mayHoldColor(const QMimeData& data);

/// Reads every text form of CSS Color 4.
[[nodiscard]] ColorOffer colorFromText(const QString& text);
/// Takes `application/x-color` (four native 16-bit words) and every text form of CSS Color 4.
[[nodiscard]] ColorOffer colorFromMimeData(const QMimeData& data);

}  // namespace vantorel
