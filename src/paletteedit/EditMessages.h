#pragma once

#include "result/Message.h"

#include <string>
#include <string_view>

/// The messages about a step of editing. `name` is the name of the list.
namespace vantorel::editmessages {

/// Another program has kept the folder locked for too long.
[[nodiscard]] Message locked(std::u16string_view name);
/// The list could not be saved in `folder` and is unchanged.
[[nodiscard]] Message notSaved(std::u16string_view name, const std::string& folder);
/// The list's file could not be removed from `folder`.
[[nodiscard]] Message notRemoved(std::u16string_view name, const std::string& folder);
/// The old file of a renamed list could not be removed, so the list exists twice.
[[nodiscard]] Message oldFileStayed(std::u16string_view name);
/// The name was taken. `name` is the new name of the list.
[[nodiscard]] Message otherName(std::u16string_view name);
/// The list belonged to another program. It has been copied to `name`, a list of the user's own.
[[nodiscard]] Message copiedFirst(std::u16string_view name);
/// Another program had changed the list. Both changes have been merged.
[[nodiscard]] Message merged(std::u16string_view name);
/// Another program had changed the same colours or damaged the file. The user's list has been saved
/// separately as `name`.
[[nodiscard]] Message keptBoth(std::u16string_view name);
/// Another program had removed the list. It has been restored.
[[nodiscard]] Message restored(std::u16string_view name);
/// Another program has changed the list since it was read, so it has not been removed.
[[nodiscard]] Message changedMeanwhile(std::u16string_view name);
/// The step could be undone only in part, because another program has since changed the same
/// colours.
[[nodiscard]] Message partlyUndone(std::u16string_view name);
/// The file contained lines that editing would lose. The original has been kept under its name with
/// "~" appended.
[[nodiscard]] Message keptOriginal(std::u16string_view name);

}  // namespace vantorel::editmessages
