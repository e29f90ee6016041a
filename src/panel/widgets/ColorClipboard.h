#pragma once

#include "host/HostColor.h"
#include "result/Message.h"

#include <QByteArray>
#include <QMimeData>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

/// Colours on the clipboard and in drops.
namespace vantorel {

/// Returns the colour as `application/x-color`, mapped into sRGB, and the text as UTF-8 if one is
/// given.
[[nodiscard]] std::unique_ptr<QMimeData> mimeDataFromColor(const HostColor& color,
                                                           const QString& text = {});

/// One form of a copied colour, for clipboards that Qt does not serve.
struct ColorForm {
    const char* type;
    QByteArray bytes;
};

/// Returns the forms that Qt offers for `mimeDataFromColor`. Unlike those of Qt under Wayland,
/// `application/x-color` has the form that other programs read.
[[nodiscard]] std::vector<ColorForm> formsFromColor(const HostColor& color, const QString& text);

/// The colour that the clipboard or a drop contains, if any.
struct ColorOffer {
    /// May be outside sRGB.
    std::optional<HostColor> color;
    /// Why there is no colour, or what pages that do not take it show instead; may be empty.
    Message message;
};

/// Whether the data may contain a colour. Quick enough for a drag that moves.
[[nodiscard]] bool mayHoldColor(const QMimeData& data);

/// Reads every text form of CSS Color 5, also as the value of a declaration, lines of the
/// snippets, and other lines of code with a colour.
[[nodiscard]] ColorOffer colorFromText(const QString& text);
/// Returns a text that `colorFromText` reads as the same colour: the hex code, in 8 bits, or for a
/// colour outside sRGB one in Display P3. Empty for a pattern.
[[nodiscard]] QString exactColorText(const HostColor& color);
/// Reads `application/x-color` (four native 16-bit words) or a text.
[[nodiscard]] ColorOffer colorFromMimeData(const QMimeData& data);

}  // namespace vantorel
