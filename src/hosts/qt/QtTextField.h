#pragma once

#include "host/HostControls.h"
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
    /// Whether the field has the keyboard focus.
    [[nodiscard]] bool isEdited() const;
    /// Enters the typed text, as Return does. Has no effect if the field is hidden or the user has
    /// typed nothing since the last entry.
    void finishEditing();
    /// The field's widget.
    [[nodiscard]] QtLineEdit* lineEdit() const;

private:
    void enterText();

    bool _textIsBeingSet = false;
};

/// A read-only text.
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
