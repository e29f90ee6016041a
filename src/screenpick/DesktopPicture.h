#pragma once

#include <QColor>
#include <QImage>
#include <QPointer>
#include <QRect>
#include <QScreen>

#include <optional>
#include <vector>

namespace vantorel {

/// A picture of all screens at one moment, pixel by pixel.
///
/// Its coordinates are pixels of the desktop, whatever the scale factors of the screens.
class DesktopPicture {
public:
    struct Screen {
        /// Null in a picture that was not taken from a screen, and after the screen was unplugged.
        QPointer<QScreen> screen;
        /// The position of its first pixel on the desktop.
        QPoint origin;
        /// Its device pixel ratio is 1.
        QImage image;

        [[nodiscard]] QRect frame() const { return {origin, image.size()}; }
    };

    explicit DesktopPicture(std::vector<Screen> screens) : _screens(std::move(screens)) {}

    /// Takes a picture of each screen. Returns an empty picture if a screen cannot be captured.
    [[nodiscard]] static std::optional<DesktopPicture> take();

    [[nodiscard]] const std::vector<Screen>& screens() const { return _screens; }
    [[nodiscard]] std::vector<QRect> frames() const;
    /// Returns `std::nullopt` if there is no screen at this position.
    [[nodiscard]] std::optional<QColor> colorAt(QPoint pixel) const;
    /// Returns the average light of the pixels that are on a screen, with 8 bits a channel, or
    /// `std::nullopt` if none is.
    [[nodiscard]] std::optional<QColor> averageOf(const QRect& pixels) const;

private:
    std::vector<Screen> _screens;
};

}  // namespace vantorel
