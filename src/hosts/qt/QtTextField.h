#pragma once

#include "host/HostInterfaceFactory.h"
#include "hosts/qt/QtLineEdit.h"
#include "hosts/qt/QtView.h"

#include <QLabel>

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
    /// The field's widget.
    [[nodiscard]] QtLineEdit* lineEdit() const;

private:
    void enterText();

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

}  // namespace vantorel
