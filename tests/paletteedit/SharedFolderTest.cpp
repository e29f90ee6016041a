#include "PaletteEditorFixture.h"

#include <random>
#include <set>

/// Several editors on one folder: no change of either is lost silently.
namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SharedFolderTest : public PaletteEditorFixture {
protected:
    void SetUp() override { put(reds, "Reds", "a=1 b=2"); }

    const std::string reds = ours + std::string("Reds.gpl");
};

TEST_F(SharedFolderTest, ARefreshShowsChangesByOthers)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    EXPECT_EQ(textOf(editor.entriesOf(id)), "a=1 b=2");
    EXPECT_THAT(editor.refresh(), IsEmpty());
    put(reds, "Reds", "a=1 b=2 c=3");
    put(ours + std::string("Blues.gpl"), "Blues", "x=1");
    const auto changed = editor.refresh();
    ASSERT_EQ(changed.size(), 1U);
    EXPECT_EQ(changed.front().id, id);
    EXPECT_EQ(textOf(editor.entriesOf(id)), "a=1 b=2 c=3");
    EXPECT_EQ(namesIn(editor), "Blues, Reds");
    _files.remove(reds);
    EXPECT_EQ(editor.refresh().front().name, u"Reds");
    EXPECT_EQ(editor.palette(id), nullptr);
    EXPECT_THAT(editor.refresh(), IsEmpty());
}

TEST_F(SharedFolderTest, ChangesByBothEditorsAreSaved)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    const PaletteEntries mine = withInserted(editor.entriesOf(id), 9, entriesFrom("m=3")).entries;
    put(reds, "Reds", "a=1 b=9 t=4");
    const EditOutcome outcome = editor.setEntries(id, mine);
    EXPECT_TRUE(outcome.done);
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::merged(u"Reds")));
    EXPECT_EQ(fileAt(reds), "Reds: a=1 b=9 m=3 t=4");
    EXPECT_TRUE(editor.undo().done);
    EXPECT_EQ(fileAt(reds), "Reds: a=1 b=9 t=4") << "their change is kept";
    EXPECT_TRUE(editor.redo().done);
    EXPECT_EQ(fileAt(reds), "Reds: a=1 b=9 m=3 t=4");
}

TEST_F(SharedFolderTest, ConflictingChangesCreateASecondList)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    const PaletteEntries mine =
        withRecolored(editor.entriesOf(id), {0}, HostColor::blackColor()).entries;
    put(reds, "Reds", "a=9 b=2");
    const EditOutcome outcome = editor.setEntries(id, mine);
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::keptBoth(u"Reds 2")));
    EXPECT_EQ(fileAt(reds), "Reds: a=9 b=2");
    EXPECT_EQ(fileAt(ours + std::string("Reds 2.gpl")), "Reds 2: a=0 b=2");
    EXPECT_TRUE(editor.undo().done);
    EXPECT_EQ(namesIn(editor), "Reds");
}

TEST_F(SharedFolderTest, AnUndoKeepsLaterChangesByOthers)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    ASSERT_TRUE(editor.setEntries(id, entriesFrom("a=5 b=5 m=3")).done);
    put(reds, "Reds", "a=7 b=5 m=3 t=4");
    static_cast<void>(editor.refresh());
    const EditOutcome outcome = editor.undo();
    EXPECT_TRUE(outcome.done);
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::partlyUndone(u"Reds")));
    EXPECT_EQ(fileAt(reds), "Reds: a=7 b=2 t=4");
}

TEST_F(SharedFolderTest, ChangingAListThatOthersRemovedRestoresIt)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    ASSERT_EQ(editor.entriesOf(id).size(), 2U);
    _files.remove(reds);
    const EditOutcome outcome = editor.setEntries(id, entriesFrom("a=1 b=2 m=3"));
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::restored(u"Reds")));
    EXPECT_EQ(fileAt(reds), "Reds: a=1 b=2 m=3");
    _files.remove(reds);
    EXPECT_TRUE(editor.undo().done);
    EXPECT_EQ(fileAt(reds), "Reds: a=1 b=2");
}

TEST_F(SharedFolderTest, AListThatOthersChangedIsRemovedOnlyAtTheSecondRequest)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    ASSERT_EQ(editor.entriesOf(id).size(), 2U);
    put(reds, "Reds", "a=1 b=2 t=3");
    EditOutcome outcome = editor.remove(id);
    EXPECT_FALSE(outcome.done);
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::changedMeanwhile(u"Reds")));
    EXPECT_EQ(fileAt(reds), "Reds: a=1 b=2 t=3");
    outcome = editor.remove(id);
    EXPECT_TRUE(outcome.done) << "the change has been shown by now";
    EXPECT_TRUE(editor.undo().done);
    EXPECT_EQ(fileAt(reds), "Reds: a=1 b=2 t=3");
}

TEST_F(SharedFolderTest, UndoingANewListKeepsEntriesThatOthersAdded)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = editor.add(u"New", {}).list;
    const std::string path = ours + std::string("New.gpl");
    put(path, "New", "t=3");
    const EditOutcome outcome = editor.undo();
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::changedMeanwhile(u"New")));
    EXPECT_EQ(fileAt(path), "New: t=3");
    EXPECT_TRUE(editor.redo().done);
    EXPECT_EQ(fileAt(path), "New: t=3");
    EXPECT_EQ(namesIn(editor), "New, Reds");
    EXPECT_EQ(textOf(editor.entriesOf(id)), "t=3");
}

TEST_F(SharedFolderTest, ADamagedFileIsLeftAlone)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    ASSERT_EQ(editor.entriesOf(id).size(), 2U);
    ASSERT_TRUE(_files.writeAtomically(reds, "somebody's notes"));
    const EditOutcome outcome = editor.setEntries(id, entriesFrom("a=1 b=2 m=3"));
    EXPECT_THAT(outcome.messages, ElementsAre(editmessages::keptBoth(u"Reds")));
    EXPECT_EQ(_files.contentsAtPath(reds), "somebody's notes");
    EXPECT_EQ(fileAt(ours + std::string("Reds 2.gpl")), "Reds: a=1 b=2 m=3");
}

TEST_F(SharedFolderTest, ARenameByOthersIsKept)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    ASSERT_EQ(editor.entriesOf(id).size(), 2U);
    put(reds, "Theirs", "a=1 b=2");
    ASSERT_TRUE(editor.setEntries(id, entriesFrom("a=1 b=2 m=3")).done);
    EXPECT_EQ(fileAt(reds), "Theirs: a=1 b=2 m=3");
}

TEST_F(SharedFolderTest, AnUndoKeepsTheNameOfTheListThoughAnotherFileHasItToo)
{
    PaletteEditor editor(_files, _store, remover());
    const PaletteId id = idOf(editor, "Reds");
    ASSERT_TRUE(editor.setEntries(id, entriesFrom("a=1")).done);
    const std::string earlier = ours + std::string("A.gpl");
    put(earlier, "Reds", "x=9");
    editor.refresh();
    ASSERT_NE(idOf(editor, "Reds"), id);
    EXPECT_TRUE(editor.undo().done);
    EXPECT_EQ(fileAt(reds), "Reds: a=1 b=2");
    EXPECT_EQ(fileAt(earlier), "Reds: x=9");
    EXPECT_EQ(_files.contentsOfDirectory(folder).size(), 2U);
}

TEST_F(SharedFolderTest, TwoEditorsThatNeverRefreshLoseNoEntry)
{
    PaletteFileStore otherStore(_files);
    PaletteEditor left(_files, _store, remover());
    PaletteEditor right(_files, otherStore, remover());
    std::mt19937 random(7);
    std::set<std::string> added;
    for (int i = 0; i < 300; ++i) {
        const bool isLeft = random() % 2 == 0;
        PaletteEditor& editor = isLeft ? left : right;
        const PaletteId id = idOf(editor, "Reds");
        const std::string name = (isLeft ? "left" : "right") + std::to_string(i);
        const PaletteEntries& now = editor.entriesOf(id);
        const std::size_t at = random() % (now.size() + 1);
        ASSERT_TRUE(
            editor.setEntries(id, withInserted(now, at, {entryWithShade(name, 1)}).entries).done);
        added.insert(name);
    }
    const std::string all = fileAt(reds) + " ";
    for (const std::string& name : added)
        EXPECT_NE(all.find(" " + name + "="), std::string::npos) << name;
}

}  // namespace
}  // namespace vantorel
