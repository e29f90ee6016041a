#pragma once

#include "host/HostControls.h"

#include <functional>
#include <memory>
#include <string>

namespace vantorel {

/// The toolkit's field as a `FieldEntry` uses it. Places are counted in UTF-16 units.
class EntryWidget {
public:
    /// A selection from `anchor` to the insertion point; both are equal if no text is selected.
    struct Range {
        std::size_t anchor = 0;
        std::size_t caret = 0;

        bool operator==(const Range&) const = default;
    };

    virtual ~EntryWidget() = default;

    [[nodiscard]] virtual std::u16string text() const = 0;
    /// Replaces the text. The toolkit's report of this change may reach
    /// `FieldEntry::textDidChange`; it is ignored there.
    virtual void writeText(const std::u16string& text) = 0;
    [[nodiscard]] virtual Range selection() const = 0;
    virtual void select(Range range) = 0;
    /// Replaces the selected text as if the user had typed `text`.
    virtual void insert(const std::u16string& text) = 0;
    [[nodiscard]] virtual bool hasFocus() const = 0;
    [[nodiscard]] virtual bool isVisible() const = 0;
    [[nodiscard]] virtual bool isReadOnly() const = 0;

    /// Runs `reaction` when the toolkit has finished the change that it is reporting. Toolkits that
    /// move the insertion point after their report (GTK) must defer it, ahead of the next event of
    /// the user.
    virtual void afterChange(const std::function<void()>& reaction) { reaction(); }

    /// Offers a text that is not meant for the field to the panel. Returns whether it was used.
    virtual bool offerText(const std::u16string& text) = 0;
    /// The user has discarded the entry. The panel sets its colour again, because other fields may
    /// have followed the typing.
    virtual void entryGivenUp() = 0;
};

/// What the user types into a field, from the first key to the end of the entry.
///
/// What the page writes after the insertion point while the user types is a completion: it is shown
/// as selected, so that the next key replaces it. Keys that delete bring no completion.
///
/// An entry ends with Return, or when the field is left by Tab or by a click. A text that the page
/// would ignore, or that was pasted and is not meant for the field, is first offered to the panel.
class FieldEntry {
public:
    /// Both must outlive this object.
    FieldEntry(HostTextField& field, EntryWidget& widget) : _field(field), _widget(widget) {}
    FieldEntry(const FieldEntry&) = delete;
    FieldEntry& operator=(const FieldEntry&) = delete;

    // Called by the field's widget.

    /// The text has changed: by a key, an input method, a paste, an assistive program. `byDeletion`
    /// is true for a key that writes no text, such as Backspace.
    void textDidChange(bool byDeletion);
    /// Return was pressed.
    void enter();
    /// The user has left the field by Tab or by a click elsewhere. Do not call this if another
    /// window or a menu has taken the focus, or the field was hidden.
    void leave();
    /// Escape was pressed. Returns false if there is no entry to discard; the key is then for the
    /// dialog.
    [[nodiscard]] bool giveUp();
    /// The dialog ends with OK, or the page is left: enters what was typed. Has no effect if the
    /// field is hidden or the user has typed nothing since the last entry.
    void finish();
    /// The Up or Down key, or the wheel. What was typed is entered first.
    void step(int steps, std::uint64_t modifierFlags);
    /// Writes a text of the clipboard or of a drop. It loses blanks, line ends and a ";" at its
    /// ends, and replaces the whole text unless the user has typed, or selected a part.
    void bring(const std::u16string& text);

    /// Whether the user has typed since the last entry.
    [[nodiscard]] bool isTyped() const { return _isTyped; }
    /// Whether `HostColorPanel::fieldEditor` returns the field's editor.
    [[nodiscard]] bool isEdited() const;

    // The field's own functions.

    void setStringValue(const std::u16string& text);
    [[nodiscard]] HostSelection selectedRange() const;
    void setSelectedRange(HostSelection range);

private:
    using Life = std::weak_ptr<const bool>;

    void react();
    /// Runs the reaction to a change that has been reported, if it has not run yet. Returns false
    /// if the reaction has destroyed this object.
    [[nodiscard]] bool settle();
    void showCompletion(const std::u16string& typed, std::size_t caret);
    void write(const std::u16string& text);
    bool offer();

    HostTextField& _field;
    EntryWidget& _widget;
    bool _isTyped = false;
    bool _isBeingWritten = false;
    bool _changeIsPending = false;
    bool _changeIsDeletion = false;
    /// While the page reacts to the user's typing: whether it has written into the field.
    bool _isReacting = false;
    bool _wasWritten = false;
    std::shared_ptr<const bool> _life = std::make_shared<bool>(true);
};

/// Returns a text without blanks, line ends and a ";" at its ends. A copied line often has more
/// than the colour there.
[[nodiscard]] std::u16string withoutEnds(std::u16string_view text);

}  // namespace vantorel
