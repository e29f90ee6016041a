#pragma once

#include "paletteedit/EditOutcome.h"
#include "paletteedit/KnownPalettes.h"

#include <functional>

namespace vantorel {

/// Applies steps to the files on disk, as far as these allow: what other programs have changed
/// meanwhile is merged, and never overwritten unseen. The caller holds the lock of our own folder.
class StepWriter {
public:
    /// Removes the file at a path, or moves it to the trash; returns false if that failed. Supplied
    /// from outside, because `HostFiles` cannot remove files.
    using RemoveFile = std::function<bool(const std::string& path)>;
    /// Whether a step is new, or is undone or redone.
    enum class Occasion { first, again };

    /// `files`, `store` and `palettes` must outlive this object.
    StepWriter(HostFiles& files, PaletteFileStore& store, KnownPalettes& palettes,
               RemoveFile removeFile);

    /// Applies a step to one list, whose record is brought up to date. Returns the step that was
    /// actually applied, or `std::nullopt` if it failed. Adds to the outcome what the user should
    /// know.
    std::optional<EditStep> write(const EditStep& step, Occasion occasion, EditOutcome& outcome);

private:
    using Among = KnownPalettes::Among;

    std::optional<EditStep> writeNew(PaletteId id, PaletteState state, EditOutcome& outcome);
    std::optional<EditStep> writeAgain(const EditStep& step, EditOutcome& outcome);
    std::optional<EditStep> remove(const EditStep& step, Occasion occasion, EditOutcome& outcome);
    std::optional<EditStep> change(const EditStep& step, Occasion occasion, EditOutcome& outcome);
    bool save(PaletteId id, const PaletteRecord& record, const PaletteState& state,
              EditOutcome& outcome);
    bool keepOriginal(const PaletteRecord& record, EditOutcome& outcome);
    [[nodiscard]] Message notSaved(std::u16string_view name) const;
    [[nodiscard]] Message notRemoved(std::u16string_view name) const;

    HostFiles& _files;
    PaletteFileStore& _store;
    KnownPalettes& _palettes;
    RemoveFile _removeFile;
};

}  // namespace vantorel
