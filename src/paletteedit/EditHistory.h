#pragma once

#include "paletteedit/PaletteEntry.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// Identifies a list, even after it has been renamed or removed and restored. 0 means no list.
using PaletteId = std::uint64_t;

/// The complete state of a list.
struct PaletteState {
    std::u16string name;
    /// Never null.
    std::shared_ptr<const PaletteEntries> entries;
    /// The original bytes of the file, if they contain more than the entries; else null.
    std::shared_ptr<const std::string> bytes;
};

/// A change to one list. If `before` is missing, the list did not exist before the change; if
/// `after` is missing, it does not exist afterwards.
struct EditStep {
    /// The list's name before the step, or the name of a list that the step creates.
    [[nodiscard]] const std::u16string& name() const { return before ? before->name : after->name; }

    PaletteId list = 0;
    std::optional<PaletteState> before;
    std::optional<PaletteState> after;
};

/// The steps that can be undone and redone. The oldest steps are dropped when there are too many,
/// or when their lists would need too much memory.
class EditHistory {
public:
    static constexpr std::size_t mostSteps = 500;
    /// The maximum number of entries in all states together. Each takes 16 bytes, plus what the
    /// states share.
    static constexpr std::size_t mostEntries = 8'000'000;

    void record(EditStep step);

    [[nodiscard]] bool canUndo() const { return !_done.empty(); }
    [[nodiscard]] bool canRedo() const { return !_undone.empty(); }
    /// The step to undo or redo next. There must be one.
    [[nodiscard]] const EditStep& lastDone() const { return _done.back(); }
    [[nodiscard]] const EditStep& lastUndone() const { return _undone.back(); }
    /// Call these after the step has been undone or redone.
    void moveToUndone();
    void moveToDone();

private:
    std::deque<EditStep> _done;
    std::deque<EditStep> _undone;
    std::size_t _entryCount = 0;
};

}  // namespace vantorel
