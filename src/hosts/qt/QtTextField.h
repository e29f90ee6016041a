#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/common/FieldEntry.h"
#include "hosts/common/ScrubGesture.h"
#include "hosts/qt/QtLineEdit.h"
#include "hosts/qt/QtView.h"

#include <QLabel>

namespace vantorel {

/// A field that the user edits, by the rules of `FieldEntry`.
class QtTextField final : public QtMirrored<HostTextField>,
                          public HostFieldEditor,
                          private EntryWidget {
public:
    explicit QtTextField(const HostControlDescription& description);

    [[nodiscard]] std::u16string stringValue() const override;
    void setStringValue(const std::u16string& text) override;
    void setTextColor(const HostColor& color) override;

    [[nodiscard]] HostSelection selectedRange() const override { return _entry.selectedRange(); }
    void setSelectedRange(HostSelection range) override { _entry.setSelectedRange(range); }
    /// Whether the field is being edited, so that it has an editor.
    [[nodiscard]] bool isEdited() const { return _entry.isEdited(); }
    /// See `FieldEntry::finish`.
    void finishEditing() { _entry.finish(); }
    /// The field's widget; null if it was destroyed with its window.
    [[nodiscard]] QtLineEdit* lineEdit() const;

protected:
    void stepDidChange() override;
    void scrubDidChange() override;

private:
    // The widget of the entry.
    [[nodiscard]] std::u16string text() const override { return stringValue(); }
    void writeText(const std::u16string& text) override;
    [[nodiscard]] Range selection() const override;
    void select(Range range) override;
    void insert(const std::u16string& text) override;
    [[nodiscard]] bool hasFocus() const override;
    [[nodiscard]] bool isVisible() const override;
    [[nodiscard]] bool isReadOnly() const override;
    bool offerText(const std::u16string& text) override;
    void entryGivenUp() override;

    FieldEntry _entry{*this, *this};
    ScrubGesture _scrub{*this};
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
