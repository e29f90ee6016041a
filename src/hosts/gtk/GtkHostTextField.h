#pragma once

#include "host/HostControls.h"
#include "host/HostInterfaceFactory.h"
#include "hosts/common/FieldEntry.h"
#include "hosts/common/ScrubGesture.h"
#include "hosts/common/WheelSteps.h"
#include "hosts/gtk/GtkFieldLook.h"
#include "hosts/gtk/GtkHostView.h"

namespace vantorel {

/// What a field asks of its panel.
struct GtkFieldPanel {
    /// The user has given up an entry. Only the panel knows the previous text, because other fields
    /// may have followed the typing.
    std::function<void()> restore;
    /// Offers a text that is not meant for the field. Returns whether the panel has taken it.
    std::function<bool(const std::u16string& text)> takeText;
};

/// A field that the user edits.
///
/// GTK moves the insertion point only after it has reported a change. So the page reacts to a
/// change as soon as GTK is done with it, before any further event: it then finds the insertion
/// point where the user sees it, and what it selects stays selected.
class GtkHostTextField final : public GtkMirrored<HostTextField>,
                               public HostFieldEditor,
                               private EntryWidget {
public:
    explicit GtkHostTextField(const HostControlDescription& description);

    [[nodiscard]] std::u16string stringValue() const override { return text(); }
    void setStringValue(const std::u16string& text) override;
    void setTextColor(const HostColor& color) override { _look.setTextColor(color); }

    [[nodiscard]] HostSelection selectedRange() const override { return _entry.selectedRange(); }
    void setSelectedRange(HostSelection range) override { _entry.setSelectedRange(range); }

    /// See `FieldEntry::isEdited`.
    [[nodiscard]] bool isEdited() const { return _entry.isEdited(); }
    /// See `FieldEntry::finish`.
    void finishEditing() { _entry.finish(); }
    void setPanel(GtkFieldPanel panel) { _panel = std::move(panel); }

private:
    [[nodiscard]] std::u16string text() const override;
    void writeText(const std::u16string& text) override;
    [[nodiscard]] Range selection() const override;
    void select(Range range) override;
    void insert(const std::u16string& text) override;
    [[nodiscard]] bool hasFocus() const override;
    [[nodiscard]] bool isVisible() const override;
    [[nodiscard]] bool isReadOnly() const override { return _isReadOnly; }
    void afterChange(const std::function<void()>& reaction) override;
    bool offerText(const std::u16string& text) override;
    void entryGivenUp() override;

    void connectEdits();
    void connectKeys();
    void connectScrub();
    void connectFocus();
    [[nodiscard]] GtkEntry* entry() const;
    [[nodiscard]] GtkEditable* editable() const;
    bool takeKey(const GdkEventKey& event);
    void focusDidChange(bool hasFocus);
    void paste(GdkAtom selection);
    void takeDrop(GdkDragContext* context, GtkSelectionData* data, guint time);
    void fit() { _look.fit(frame().width); }

    GtkFieldPanel _panel;
    FieldEntry _entry;
    ScrubGesture _scrub;
    GtkFieldLook _look;
    GtkDeferral _reaction;
    WheelSteps _wheelSteps;
    bool _isReadOnly;
    /// Whether the change that GTK is about to report has inserted anything.
    bool _hasInserted = false;
    /// Expires when the field is destroyed.
    std::shared_ptr<const bool> _life = std::make_shared<bool>(true);
};

/// A read-only text.
class GtkHostLabel final : public GtkMirrored<HostTextField> {
public:
    explicit GtkHostLabel(const HostControlDescription& description);

    [[nodiscard]] std::u16string stringValue() const override { return _text; }
    void setStringValue(const std::u16string& text) override;
    void setTextColor(const HostColor& color) override;

private:
    std::u16string _text;
    GtkControlStyle _style;
};

}  // namespace vantorel
