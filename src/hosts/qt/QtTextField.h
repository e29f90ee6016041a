#pragma once

#include "host/HostInterfaceFactory.h"
#include "hosts/qt/QtView.h"

#include <QLabel>
#include <QLineEdit>

namespace vantorel {

/// A field that the user edits.
class QtTextField final : public QtMirrored<HostTextField>, public HostFieldEditor {
public:
    explicit QtTextField(const HostControlDescription& description);

    [[nodiscard]] std::u16string stringValue() const override;
    void setStringValue(const std::u16string& text) override;
    void setTextColor(const HostColor& color) override;

    [[nodiscard]] HostSelection selectedRange() const override;
    void setSelectedRange(HostSelection range) override;
    /// Whether the user is in the field.
    [[nodiscard]] bool isEdited() const;
    /// Enters what the user has typed, as Return does. Does nothing if the field is hidden, or
    /// nothing was typed since it was last entered.
    void finishEditing();
    /// Called when the user gives the entry up (Escape). What was there before is the panel's to
    /// know: other fields may have followed the typing.
    void setEntryGivenUp(std::function<void()> reaction) { _entryGivenUp = std::move(reaction); }

private:
    class LineEdit;
    [[nodiscard]] QLineEdit* lineEdit() const;
    void enterText();

    std::function<void()> _entryGivenUp;
    bool _textIsBeingSet = false;
};

/// A text that is only shown.
class QtLabel final : public QtMirrored<HostTextField> {
public:
    explicit QtLabel(const HostControlDescription& description);

    [[nodiscard]] std::u16string stringValue() const override;
    void setStringValue(const std::u16string& text) override;
    void setTextColor(const HostColor& color) override;

private:
    [[nodiscard]] QLabel* label() const;
};

/// A text colour of the core on the ground that a palette gives: black becomes the palette's own
/// text colour, and what would be too dark on a dark ground is lightened.
[[nodiscard]] QColor readableTextColor(const HostColor& color, const QPalette& palette);

}  // namespace vantorel
