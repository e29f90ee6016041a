#pragma once

#include "color/ComponentDisplay.h"
#include "color/EntryForm.h"
#include "host/HostColor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// A colour as three 8-bit web components, with what the 8-bit grid cannot hold beside them: for
/// each channel a remainder (channel minus component/255, on the 0..1 scale) and the alpha (0..1).
/// The remainders only tell whether the colour that came from the desktop lies on the grid.
///
/// Components are 0..255 by convention, but nothing is clamped. A new spec is black with alpha 0.
/// Component index: 0 red, 1 green, 2 blue. Digit index: 1 the high hex digit, 0 the low one.
class QTXHexColorSpec {
public:
    [[nodiscard]] std::uint64_t redHexComp() const { return _redHexComp; }
    void setRedHexComp(std::uint64_t component) { _redHexComp = component; }
    [[nodiscard]] std::uint64_t greenHexComp() const { return _greenHexComp; }
    void setGreenHexComp(std::uint64_t component) { _greenHexComp = component; }
    [[nodiscard]] std::uint64_t blueHexComp() const { return _blueHexComp; }
    void setBlueHexComp(std::uint64_t component) { _blueHexComp = component; }
    [[nodiscard]] double redRemainder() const { return _redRemainder; }
    void setRedRemainder(double remainder) { _redRemainder = remainder; }
    [[nodiscard]] double greenRemainder() const { return _greenRemainder; }
    void setGreenRemainder(double remainder) { _greenRemainder = remainder; }
    [[nodiscard]] double blueRemainder() const { return _blueRemainder; }
    void setBlueRemainder(double remainder) { _blueRemainder = remainder; }
    [[nodiscard]] double alphaComp() const { return _alphaComp; }
    void setAlphaComp(double alpha) { _alphaComp = alpha; }

    /// Sets the components alone.
    void setHexRed(std::uint64_t red, std::uint64_t green, std::uint64_t blue);
    /// 0 for an index out of range.
    [[nodiscard]] std::uint64_t componentWithIndex(std::int64_t componentIndex) const;
    /// Nothing happens for an index out of range.
    void setComponent(std::uint64_t component, std::int64_t componentIndex);

    /// One hex digit of a component, 0..15. Every digit index but 1 means the low one.
    [[nodiscard]] std::uint64_t colorSubComponentWithComponentIndex(std::int64_t componentIndex,
                                                                    std::int64_t digitIndex) const;
    /// Replaces one hex digit by the low four bits of `value`. Every digit index but 0 means the
    /// high one.
    void setColorSubComponent(std::uint64_t value, std::int64_t componentIndex,
                              std::int64_t digitIndex);
    /// As above, but with Shift among the modifier flags a high digit is set in both places.
    void setColorSubComponent(std::uint64_t value, std::int64_t componentIndex,
                              std::int64_t digitIndex, std::uint64_t modifierFlags);

    /// Takes components and remainders from a colour; the alpha stays. What falls a hair short of a
    /// step of the grid, as single precision leaves it, lands on that step with a small negative
    /// remainder. No colour, or one without RGB form, sets the components to 0 and keeps the rest.
    void setColorHexColorSpec(const std::optional<HostColor>& color);
    /// The grid colour of the components, always opaque.
    [[nodiscard]] HostColor colorHexColorSpec() const;
    /// Copies another spec; null sets opaque black.
    void loadWithHexColorSpec(const QTXHexColorSpec* other);
    void clearRemainders();

    /// Whether no remainder is 0.00002 or more; negative ones always pass.
    [[nodiscard]] bool isExact() const;
    /// Whether each component is the truncated 8-bit value of the colour's channel.
    [[nodiscard]] bool isEqualToColor(const std::optional<HostColor>& color) const;
    /// Whether each component is within 16 of it.
    [[nodiscard]] bool isCloseToColor(const std::optional<HostColor>& color) const;
    /// Whether every component differs by less than `limit`.
    [[nodiscard]] bool isMatchToColorSpec(const QTXHexColorSpec& other, std::int64_t limit) const;

    /// 0xRRGGBB. Components are not masked: a larger one spills into its neighbour.
    [[nodiscard]] std::uint64_t javaRGBInt() const;
    /// 0xAARRGGBB, alpha truncated to 8 bits.
    [[nodiscard]] std::uint64_t javaRGBAInt() const;
    /// A text for debugging, ending in a line feed.
    [[nodiscard]] std::u16string description() const;

    // Texts (CSS Color 4 hex notation and rgb(); see also ColorTexts.h). None of the setters
    // touches remainders or alpha.

    /// Reads up to six hex digits, after a "#" or without one. Missing digits count as 0; three
    /// digits are not expanded.
    void setWithString(std::u16string_view text);
    void setRedHexCompWithString(std::u16string_view text, ComponentDisplay withComponentDisplay);
    void setGreenHexCompWithString(std::u16string_view text, ComponentDisplay withComponentDisplay);
    void setBlueHexCompWithString(std::u16string_view text, ComponentDisplay withComponentDisplay);
    [[nodiscard]] std::optional<std::u16string> redStringHexColorSpecWithEntryForm(
        EntryForm entryForm, ComponentDisplay componentDisplay) const;
    [[nodiscard]] std::optional<std::u16string> greenStringHexColorSpecWithEntryForm(
        EntryForm entryForm, ComponentDisplay componentDisplay) const;
    [[nodiscard]] std::optional<std::u16string> blueStringHexColorSpecWithEntryForm(
        EntryForm entryForm, ComponentDisplay componentDisplay) const;
    /// Six hex digits without "#".
    [[nodiscard]] std::u16string fullStringHexColorSpecWithEntryForm(EntryForm entryForm) const;
    /// The three pairs with blanks between them.
    [[nodiscard]] std::u16string fullSpacedStringHexColorSpecWithEntryForm(
        EntryForm entryForm) const;
    /// "rgb(255, 128, 0);", the function's name in upper case with the upper-case entry form.
    [[nodiscard]] std::u16string rgbDecimalStringWithEntryForm(EntryForm entryForm) const;

    bool operator==(const QTXHexColorSpec&) const = default;

private:
    std::uint64_t _redHexComp = 0;
    std::uint64_t _greenHexComp = 0;
    std::uint64_t _blueHexComp = 0;
    double _redRemainder = 0;
    double _greenRemainder = 0;
    double _blueRemainder = 0;
    double _alphaComp = 0;
};

}  // namespace vantorel
