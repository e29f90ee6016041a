#include "hosts/common/FieldEntry.h"

#include "text/Trimming.h"

#include <algorithm>
#include <utility>

namespace vantorel {
namespace {

bool isBlankInProse(char16_t c)
{
    // Documents and web pages have blanks beyond ASCII.
    return c <= u' ' || c == u'\u00A0' || c == u'\u1680' || (c >= u'\u2000' && c <= u'\u200A') ||
           c == u'\u2028' || c == u'\u2029' || c == u'\u202F' || c == u'\u205F' || c == u'\u3000' ||
           c == u'\u0085';
}

std::size_t start(EntryWidget::Range range)
{
    return std::min(range.anchor, range.caret);
}

std::size_t end(EntryWidget::Range range)
{
    return std::max(range.anchor, range.caret);
}

}  // namespace

void FieldEntry::textDidChange(bool byDeletion)
{
    if (_isBeingWritten) return;
    _isTyped = true;
    _changeIsDeletion = byDeletion;
    if (std::exchange(_changeIsPending, true)) return;
    _widget.afterChange([this, life = Life(_life)] {
        if (!life.expired()) static_cast<void>(settle());
    });
}

bool FieldEntry::settle()
{
    if (!std::exchange(_changeIsPending, false)) return true;
    const Life life = _life;
    react();
    return !life.expired();
}

void FieldEntry::react()
{
    const std::u16string typed = _widget.text();
    const std::size_t caret = _widget.selection().caret;
    const Life life = _life;
    _isReacting = true;
    _wasWritten = false;
    _field.sendTextDidChange();
    if (life.expired()) return;
    _isReacting = false;
    if (_wasWritten) showCompletion(typed, caret);
    // The page may have completed the text, which does not end the entry.
    _isTyped = true;
}

void FieldEntry::showCompletion(const std::u16string& typed, std::size_t caret)
{
    const std::size_t length = _widget.text().size();
    const std::size_t insertionPoint = _widget.selection().caret;
    if (insertionPoint >= length) return;
    if (!_changeIsDeletion) {
        _widget.select({length, insertionPoint});
        return;
    }
    write(typed);
    _widget.select({caret, caret});
}

void FieldEntry::write(const std::u16string& text)
{
    const bool wasBeingWritten = std::exchange(_isBeingWritten, true);
    _widget.writeText(text);
    _isBeingWritten = wasBeingWritten;
}

bool FieldEntry::offer()
{
    const bool isUsed = _widget.offerText(_widget.text());
    if (isUsed) _isTyped = false;
    return isUsed;
}

void FieldEntry::enter()
{
    if (!settle()) return;
    const Life life = _life;
    const bool isIgnored = _field.entryFit(_widget.text()) == HostEntryFit::isIgnored;
    if (isIgnored && offer()) return;
    _field.sendAction();
    // An entry that was ignored goes on.
    if (!life.expired() && !isIgnored) _isTyped = false;
}

void FieldEntry::leave()
{
    if (!settle() || !_isTyped) return;
    const Life life = _life;
    enter();
    if (life.expired() || !_isTyped) return;
    _isTyped = false;
    _widget.entryGivenUp();
}

bool FieldEntry::giveUp()
{
    if (!settle() || !_isTyped) return false;
    _isTyped = false;
    _widget.entryGivenUp();
    return true;
}

void FieldEntry::finish()
{
    if (settle() && _widget.isVisible() && _isTyped) enter();
}

void FieldEntry::step(int steps, std::uint64_t modifierFlags)
{
    const Life life = _life;
    finish();
    if (!life.expired()) _field.sendStep(steps, modifierFlags);
}

void FieldEntry::bring(const std::u16string& text)
{
    const std::u16string bare = withoutEnds(text);
    if (_widget.isReadOnly() || bare.empty() || !settle()) return;
    const std::size_t length = _widget.text().size();
    const auto isAll = [&](EntryWidget::Range range) {
        return start(range) == 0 && end(range) == length;
    };
    const EntryWidget::Range selected = _widget.selection();
    if (!_isTyped && (selected.anchor == selected.caret || isAll(selected))) {
        _widget.select({0, length});
    }
    const bool replacesAll = isAll(_widget.selection());
    const Life life = _life;
    _widget.insert(bare);
    if (life.expired() || !replacesAll || !settle()) return;
    if (_field.entryFit(_widget.text()) != HostEntryFit::fits) offer();
}

bool FieldEntry::isEdited() const
{
    // A drop from another window comes before the focus.
    return _isReacting || _widget.hasFocus();
}

void FieldEntry::setStringValue(const std::u16string& text)
{
    if (_widget.text() == text) return;
    const std::size_t insertionPoint = isEdited() ? _widget.selection().caret : 0;
    // What a page writes replaces what the user has typed.
    _changeIsPending = false;
    write(text);
    const std::size_t place = std::min(insertionPoint, text.size());
    _widget.select({place, place});
    _isTyped = false;
    _wasWritten = true;
}

HostSelection FieldEntry::selectedRange() const
{
    const EntryWidget::Range range = _widget.selection();
    return {start(range), end(range) - start(range)};
}

void FieldEntry::setSelectedRange(HostSelection range)
{
    const std::size_t length = _widget.text().size();
    const std::size_t first = std::min(range.location, length);
    _widget.select({first, first + std::min(range.length, length - first)});
}

std::u16string withoutEnds(std::u16string_view text)
{
    std::u16string_view bare = trimmed(text, isBlankInProse);
    if (bare.ends_with(u';')) bare = trimmed(bare.substr(0, bare.size() - 1), isBlankInProse);
    return std::u16string(bare);
}

}  // namespace vantorel
