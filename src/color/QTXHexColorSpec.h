#pragma once

#include "color/ComponentDisplay.h"
#include "color/EntryForm.h"
#include "host/HostColor.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// A colour as three 8-bit web components, plus what the 8-bit grid cannot hold: a remainder for
/// each channel (channel minus component/255, on the 0..1 scale) and the alpha (0..1). The
/// remainders only record whether the colour received from the desktop lies on the grid.
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

    /// Sets the components. Remainders and alpha are unchanged.
    void setHexRed(std::uint64_t red, std::uint64_t green, std::uint64_t blue);
    /// Returns 0 if the index is out of range.
    [[nodiscard]] std::uint64_t componentWithIndex(std::int64_t componentIndex) const;
    /// Has no effect if the index is out of range.
    void setComponent(std::uint64_t component, std::int64_t componentIndex);

    /// Returns one hex digit of a component, 0..15. Every digit index other than 1 means the low
    /// digit.
    [[nodiscard]] std::uint64_t colorSubComponentWithComponentIndex(std::int64_t componentIndex,
                                                                    std::int64_t digitIndex) const;
    /// Replaces one hex digit by the low four bits of `value`. Every digit index other than 0 means
    /// the high digit.
    void setColorSubComponent(std::uint64_t value, std::int64_t componentIndex,
                              std::int64_t digitIndex);
    /// Like the overload above. If the modifier flags contain Shift, setting the high digit also
    /// sets the low one.
    void setColorSubComponent(std::uint64_t value, std::int64_t componentIndex,
                              std::int64_t digitIndex, std::uint64_t modifierFlags);

    /// Sets components and remainders from a colour; the alpha is unchanged. A channel slightly
    /// below a step of the grid, as single precision can leave it, is assigned to that step with a
    /// small negative remainder. `std::nullopt` and patterns set the components to 0 and leave the
    /// rest unchanged.
    void setColorHexColorSpec(const std::optional<HostColor>& color);
    /// Returns the colour of the components, always opaque.
    [[nodiscard]] HostColor colorHexColorSpec() const;
    /// Copies another spec. Null sets opaque black.
    void loadWithHexColorSpec(const QTXHexColorSpec* other);
    void clearRemainders();

    /// Returns whether all remainders are below 0.00002. Negative remainders always pass.
    [[nodiscard]] bool isExact() const;
    /// Returns whether each component equals the truncated 8-bit value of the colour's channel.
    [[nodiscard]] bool isEqualToColor(const std::optional<HostColor>& color) const;
    /// Returns whether each component is within 16 of that value.
    [[nodiscard]] bool isCloseToColor(const std::optional<HostColor>& color) const;
    /// Returns whether every component differs by less than `limit`.
    [[nodiscard]] bool isMatchToColorSpec(const QTXHexColorSpec& other, std::int64_t limit) const;

    /// Returns 0xRRGGBB. Components are not masked: one above 255 overflows into its neighbour.
    [[nodiscard]] std::uint64_t javaRGBInt() const;
    /// Returns 0xAARRGGBB, with the alpha truncated to 8 bits.
    [[nodiscard]] std::uint64_t javaRGBAInt() const;
    /// Returns a text for debugging that ends in a line feed.
    [[nodiscard]] std::u16string description() const;

    // Text forms (CSS Color 4 hex notation and rgb(); see also ColorTexts.h). The setters leave
    // remainders and alpha unchanged.

    /// Reads up to six hex digits, with or without a leading "#". Missing digits count as 0. Three
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
    /// Returns six hex digits without "#".
    [[nodiscard]] std::u16string fullStringHexColorSpecWithEntryForm(EntryForm entryForm) const;
    /// Returns the three pairs of hex digits, separated by spaces.
    [[nodiscard]] std::u16string fullSpacedStringHexColorSpecWithEntryForm(
        EntryForm entryForm) const;
    /// Returns a text such as "rgb(255, 128, 0);". With the upper-case entry form, the function
    /// name is in upper case.
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
