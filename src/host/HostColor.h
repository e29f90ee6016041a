#pragma once

#include <optional>

namespace vantorel {

/// A colour as exchanged with the desktop: either calibrated RGB (sRGB) fractions with alpha, or a
/// pattern, which cannot be converted to RGB. Fractions are normally 0..1. Values outside that
/// range, infinities and NaN are stored unchanged, since a host may pass them on. "No colour" is an
/// empty `std::optional<HostColor>`.
class HostColor {
public:
    struct Components {
        double red = 0;
        double green = 0;
        double blue = 0;
        double alpha = 1;

        bool operator==(const Components&) const = default;
    };

    [[nodiscard]] static constexpr HostColor colorWithCalibratedRed(double red, double green,
                                                                    double blue, double alpha)
    {
        return HostColor({red, green, blue, alpha}, false);
    }
    [[nodiscard]] static constexpr HostColor blackColor()
    {
        return colorWithCalibratedRed(0, 0, 0, 1);
    }
    [[nodiscard]] static constexpr HostColor whiteColor()
    {
        return colorWithCalibratedRed(1, 1, 1, 1);
    }
    [[nodiscard]] static constexpr HostColor patternColor() { return HostColor({}, true); }

    [[nodiscard]] bool isPattern() const { return _pattern; }

    /// Returns the colour in calibrated RGB, or `std::nullopt` for a pattern.
    [[nodiscard]] std::optional<Components> calibratedRGB() const
    {
        if (_pattern) return std::nullopt;
        return _components;
    }

    [[nodiscard]] double alphaComponent() const { return _components.alpha; }

    [[nodiscard]] HostColor colorWithAlphaComponent(double alpha) const
    {
        HostColor result = *this;
        result._components.alpha = alpha;
        return result;
    }

    bool operator==(const HostColor&) const = default;

private:
    constexpr HostColor(Components components, bool pattern)
        : _components(components), _pattern(pattern)
    {
    }

    Components _components;
    bool _pattern;
};

}  // namespace vantorel
