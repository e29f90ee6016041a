#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/qt/QtLineEdit.h"
#include "hosts/qt/QtView.h"

#include <QLabel>

namespace vantorel {

/// A field that the user edits.
///
/// What the page writes behind the insertion point while the user types is a completion: it is
/// shown as selected, so that the next key replaces it. Keys that delete bring no completion.
///
/// An entry ends with Return, or when the field is left by Tab or by a click. A text that the page
/// would ignore, or that was pasted and is not meant for the field, is first offered to the panel.
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

protected:
    void stepDidChange() override;

private:
    void textDidChangeByUser();
    /// Shows what is behind the insertion point as selected, or takes it back after a deletion of
    /// which `typed` and `caret` are the result.
    void showCompletion(const QString& typed, int caret);
    void enterText();
    void leave();
    void takeBroughtText();
    /// Returns whether the panel has taken the text.
    bool offerText();

    bool _textIsBeingSet = false;
    /// While the page reacts to the user's typing: whether it has written into the field.
    bool _isReacting = false;
    bool _wasWritten = false;
};

/// A read-only text. Frames have room for English titles. A title at the right of its frame, before
/// a pop-up button, begins to the left of the frame if it is longer.
class QtLabel final : public QtMirrored<HostTextField> {
public:
    explicit QtLabel(const HostControlDescription& description);

    [[nodiscard]] std::u16string stringValue() const override;
    void setStringValue(const std::u16string& text) override;
    void setTextColor(const HostColor& color) override;
    [[nodiscard]] QRect shownGeometry(QRect frame) const override;

private:
    [[nodiscard]] QLabel* label() const;
};

}  // namespace vantorel
