#pragma once

#include "paletteedit/PaletteEntry.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>

namespace vantorel {

/// Stands for one list while it is renamed, removed and made again. 0 is none.
using PaletteId = std::uint64_t;

/// All there is to one list.
struct PaletteState {
    std::u16string name;
    /// Never null.
    std::shared_ptr<const PaletteEntries> entries;
    /// The file as it was, where the entries do not tell everything; may be null.
    std::shared_ptr<const std::string> bytes;
};

/// What was done to one list. It did not exist before, or does not afterwards, where a state is
/// missing.
struct EditStep {
    PaletteId list = 0;
    std::optional<PaletteState> before;
    std::optional<PaletteState> after;
};

/// The steps that can be undone and redone. The oldest are forgotten when there are too many, or
/// when their lists are so long that they would fill the memory.
class EditHistory {
public:
    static constexpr std::size_t mostSteps = 500;
    /// In entries of all states together, of 16 bytes each beside what the states share.
    static constexpr std::size_t mostEntries = 8'000'000;

    void record(EditStep step);

    [[nodiscard]] bool canUndo() const { return !_done.empty(); }
    [[nodiscard]] bool canRedo() const { return !_undone.empty(); }
    /// The step to undo or redo next; there must be one.
    [[nodiscard]] const EditStep& lastDone() const { return _done.back(); }
    [[nodiscard]] const EditStep& lastUndone() const { return _undone.back(); }
    /// The step has been undone or redone.
    void moveToUndone();
    void moveToDone();

private:
    std::deque<EditStep> _done;
    std::deque<EditStep> _undone;
    std::size_t _entryCount = 0;
};

}  // namespace vantorel
