#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace vantorel {

/// The numbers of a field and how they are written.
struct HostNumberFormat {
    double minimum = 0;
    double maximum = 100;
    /// What a key or a step of the wheel adds. Shift makes it ten times larger; Ctrl makes it ten
    /// times smaller, but not smaller than the last decimal.
    double step = 1;
    int decimals = 0;
    /// Written after the number as it is, e.g. u" %".
    std::u16string unit;
    /// Whether numbers go on at the other end, as angles do. The maximum is then the minimum.
    bool isCyclic = false;

    /// Returns what one step adds.
    [[nodiscard]] double stepWith(std::uint64_t modifierFlags) const;
    /// Returns the number of this format that is nearest to `value`. NaN stays NaN.
    [[nodiscard]] double fitted(double value) const;
};

/// A field for a number with its unit. The number is typed, stepped by the Up and Down keys and the
/// wheel, or scrubbed by a drag across the field, on every desktop alike.
///
/// The number keeps all its digits; only the text is rounded. Steps begin at the number that is
/// shown. A number out of range becomes the nearest that is in range. NaN means that there is no
/// number: the text is empty, and steps begin at the minimum. A text that is not a number is
/// replaced by the number that was shown, unless the panel can use it in another way
/// (`HostEntryFit::doesNotFit`).
class HostNumberField {
public:
    using Action = std::function<void(HostNumberField& sender)>;
    /// Called with true before the first change of a scrub, and with false after the last.
    using ScrubReaction = std::function<void(bool isUnderWay)>;

    /// `separator` is written before the decimals; "." and "," are always read.
    HostNumberField(std::unique_ptr<HostTextField> field, HostNumberFormat format,
                    std::u16string separator);
    HostNumberField(const HostNumberField&) = delete;
    HostNumberField& operator=(const HostNumberField&) = delete;
    ~HostNumberField() = default;

    /// The view, to be placed in the page. Its text and functions belong to this class.
    [[nodiscard]] HostTextField& textField() const { return *_field; }

    [[nodiscard]] double value() const { return _value; }
    /// Sets and shows a number, in place of what the user has typed. Sends no action.
    void setValue(double value);
    [[nodiscard]] const HostNumberFormat& format() const { return _format; }
    /// The number is fitted to the new format. Sends no action.
    void setFormat(HostNumberFormat format);

    /// Sets the function to call when the user has entered, stepped or scrubbed another number. It
    /// may destroy the field.
    void setAction(Action action) { _action = std::move(action); }
    void setScrubReaction(ScrubReaction reaction) { _scrubReaction = std::move(reaction); }

    /// Reads a number with or without the unit. Returns `std::nullopt` for any other text.
    [[nodiscard]] std::optional<double> numberIn(std::u16string_view text) const;
    /// Writes a number as the field shows it.
    [[nodiscard]] std::u16string textOf(double value) const;

private:
    void enter();
    void step(int steps, std::uint64_t modifierFlags);
    void scrub(const HostTextField::Scrub& part);
    [[nodiscard]] double rounded(double value) const;
    /// Sets a number that the user has chosen.
    void choose(double value);
    void show() { _field->setStringValue(textOf(_value)); }

    std::unique_ptr<HostTextField> _field;
    HostNumberFormat _format;
    std::u16string _separator;
    double _value;
    /// The number that a scrub has reached, before it is rounded.
    double _scrubbed = 0;
    Action _action;
    ScrubReaction _scrubReaction;
};

}  // namespace vantorel
