#pragma once

#include "colorlists/PaletteFileStore.h"
#include "paletteedit/EditHistory.h"

#include <functional>
#include <map>
#include <vector>

namespace vantorel {

/// What the user is to be told about a step.
enum class EditRemark {
    /// The list could not be saved; nothing has changed.
    notSaved,
    /// The list's file could not be removed.
    notRemoved,
    /// The old file of a renamed list could not be removed: the list is there twice.
    oldFileStayed,
    /// The name was taken; `name` is the one that the list has got.
    otherName,
    /// It was another program's; a list of the user's own, `name`, has been made of it.
    copiedFirst,
    /// Somebody else had changed the list; both changes are in it.
    merged,
    /// Somebody else had changed the same colours, or damaged the file; the user's list is saved as
    /// `name`, beside theirs.
    keptBoth,
    /// Somebody else had removed the list; it is there again.
    madeAgain,
    /// Somebody else has changed the list since it was read, so it has not been removed.
    changedMeanwhile,
    /// A part of the step stays, because somebody else has changed the same colours since.
    partlyUndone,
    /// The file held lines that an edited one cannot keep; it is kept beside it, with a "~".
    keptOriginal,
};

struct EditOutcome {
    bool done = false;
    /// The list to look at now; 0 where there is none, as after its removal.
    PaletteId list = 0;
    struct Remark {
        EditRemark kind;
        std::u16string name;
    };
    std::vector<Remark> remarks;
};

/// A list that is offered for editing.
struct EditablePalette {
    PaletteId id = 0;
    /// As it is listed.
    std::u16string name;
    /// The program that it belongs to; empty for one of the user's own.
    std::u16string program;
    std::string path;

    [[nodiscard]] bool isOwn() const { return program.empty(); }
};

/// The colour lists of the user, each change saved at once, with undo. A step that cannot be saved
/// is not done, so that what is shown is what is on the disk.
///
/// Others may write the same files. Before each write the file is compared with what was read, and
/// what others have changed is merged. A list that is not the user's own is never written: the
/// first change makes a list of the user's own of it.
class PaletteEditor {
public:
    /// Removes the file at a path, or moves it where the user finds it again; false when that
    /// failed. Hosts hand pages no way to remove files, so it comes from whoever owns this object.
    using RemoveFile = std::function<bool(const std::string& path)>;

    /// `files` and `store` must outlive the editor.
    PaletteEditor(HostFiles& files, PaletteFileStore& store, RemoveFile removeFile);

    /// Brings everything in step with the disk. The lists that others have changed, or removed.
    std::vector<EditablePalette> refresh();

    /// As they were at the last refresh or step, in the order of the store.
    [[nodiscard]] const std::vector<EditablePalette>& palettes() const { return _palettes; }
    /// Null for a list that is not there.
    [[nodiscard]] const EditablePalette* palette(PaletteId id) const;
    /// Read when first asked for. Empty for a list that is not there, or cannot be read.
    [[nodiscard]] const PaletteEntries& entriesOf(PaletteId id);

    /// Each is a step. Names are tidied, and made free.
    EditOutcome add(const std::u16string& name, const PaletteEntries& entries);
    EditOutcome rename(PaletteId id, const std::u16string& name);
    EditOutcome remove(PaletteId id);
    EditOutcome setEntries(PaletteId id, PaletteEntries entries);

    [[nodiscard]] bool canUndo() const { return _history.canUndo(); }
    [[nodiscard]] bool canRedo() const { return _history.canRedo(); }
    EditOutcome undo();
    EditOutcome redo();

private:
    /// What is known of one list's file.
    struct Record {
        std::string path;
        std::u16string program;
        /// Of the file when `state` was read; 0 when it must be read again.
        std::uint64_t version = 0;
        /// Missing while nobody has asked, and when the file is no palette.
        std::optional<PaletteState> state;
        /// Whether the file has lines that saving would drop.
        bool hasOtherLines = false;
    };
    enum class Occasion { first, again };

    Record* recordOf(PaletteId id);
    PaletteId idOfPath(const std::string& path);
    void readIfChanged(Record& record);
    /// Whether the disk does not tell what is at its path. That must not be taken for a list that
    /// has gone.
    [[nodiscard]] bool cannotBeLookedAt(const Record& record) const;
    void lookAgain();
    /// A list of the user's own takes its name from one of another program, which is then listed
    /// with the program's name; that is no surprise only where it has had the name before.
    enum class Among { allLists, ownLists };
    [[nodiscard]] std::u16string freeListName(const std::u16string& wanted, PaletteId except,
                                              Among among) const;

    /// Changes one list from one state into another, as far as the disk agrees. The step as it was
    /// done; nothing when it was not.
    std::optional<EditStep> commit(const EditStep& step, Occasion occasion, EditOutcome& outcome);
    std::optional<EditStep> commitNew(PaletteId id, PaletteState state, EditOutcome& outcome);
    std::optional<EditStep> commitRemoval(const EditStep& step, Occasion occasion,
                                          EditOutcome& outcome);
    std::optional<EditStep> commitChange(const EditStep& step, Occasion occasion,
                                         EditOutcome& outcome);
    bool save(PaletteId id, Record& record, const PaletteState& state, EditOutcome& outcome);
    bool keepOriginal(const Record& record, EditOutcome& outcome);
    EditOutcome doFirst(const EditStep& step);
    EditOutcome doAgain(const EditStep& step, void (EditHistory::*move)());

    HostFiles& _files;
    PaletteFileStore& _store;
    RemoveFile _removeFile;
    EditHistory _history;
    std::vector<EditablePalette> _palettes;
    std::map<PaletteId, Record> _records;
    std::map<std::string, PaletteId> _idsOfPaths;
    PaletteId _lastId = 0;
};

}  // namespace vantorel
