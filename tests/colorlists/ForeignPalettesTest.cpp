#include "ForeignFiles.h"
#include "ForeignFolders.h"
#include "colorlists/PaletteFile.h"
#include "colorlists/PaletteFileStore.h"
#include "text/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace vantorel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ForeignPalettesTest : public testing::Test {
protected:
    std::shared_ptr<HostColorList> listOfOne(const std::u16string& name)
    {
        auto list = std::make_shared<HostColorList>(name);
        list->setColor(HostColor::whiteColor(), u"white");
        return list;
    }

    ForeignFiles _files;
    std::vector<std::u16string> _log;
    PaletteFileStore _store{_files, [this](const std::u16string& line) { _log.push_back(line); }};
};

TEST_F(ForeignPalettesTest, FilesAreRecognisedByTheirExtensionWhereProgramsUseOne)
{
    const std::string palette = "GIMP Palette\n1 2 3\tx\n";
    for (const char* name :
         {"lower.gpl", "Upper.GPL", "text.txt", "none", ".hidden.gpl", "swatch.ase", "old.gpl~"}) {
        _files.put(gimp + name, palette);
        _files.put(userGimp + name, "not a palette");
    }
    for (const char* name : {"40.colors", "Web.Colors", "plain", "a.gpl", "b.bar", ".colors"})
        _files.put(kde + name, "KDE RGB Palette\n4 5 6\tx\n");
    _files.put(userKde + "recent", "GIMP Palette\nName: Recent\n7 8 9\tx\n");
    _files.put(create + "Swatches", "GIMP Palette\nName: Shared\n7 8 9\tx\n");
    EXPECT_THAT(_store.availableColorLists(),
                ElementsAre(u"40", u"Recent", u"Shared", u"Upper", u"Web", u"a", u"b.bar", u"lower",
                            u"plain"));
}

TEST_F(ForeignPalettesTest, OurInstalledListsAreOfferedAndReadOnly)
{
    _files.putPalette(installed + "CSS Color 4.gpl", "CSS Color 4", 3);
    _files.putPalette(gimp + "x.gpl", "CSS Color 4", 4);
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"CSS Color 4", u"CSS Color 4 (GIMP)"));
    EXPECT_EQ(_store.pathOfOwnList(u"CSS Color 4"), std::nullopt);
}

TEST_F(ForeignPalettesTest, AListThatCannotBeComparedIsNotTakenForAnother)
{
    for (const std::string& unreadable : {gimp + "x.gpl", userGimp + "x.gpl"}) {
        ForeignFiles files;
        files.putPalette(gimp + "x.gpl", "Shades", 3);
        files.putPalette(userGimp + "x.gpl", "Shades", 3);
        files.letReadOnce(unreadable);
        PaletteFileStore store(files);
        EXPECT_THAT(store.availableColorLists(), ElementsAre(u"Shades", u"Shades (GIMP)"));
    }
}

TEST_F(ForeignPalettesTest, ListsThatDifferInOneColourAreBothListed)
{
    const std::string head = "GIMP Palette\nName: Shades\n";
    for (const char* other : {"9 2 3\ta\n4 5 6\tb\n", "1 2 3\ta\n4 5 9\tb\n"}) {
        ForeignFiles files;
        files.put(gimp + "x.gpl", head + other);
        files.put(userGimp + "x.gpl", head + "1 2 3\ta\n4 5 6\tb\n");
        PaletteFileStore store(files);
        EXPECT_THAT(store.availableColorLists(), ElementsAre(u"Shades", u"Shades (GIMP)"));
    }
}

TEST_F(ForeignPalettesTest, HiddenFoldersAreNotVersions)
{
    _files.putPalette("/home/user/.config/GIMP/.trash/palettes/x.gpl", "Hidden", 3);
    _files.putPalette("/home/user/.config/GIMP/other/palettes/x.gpl", "Shown", 3);
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Shown"));
}

TEST_F(ForeignPalettesTest, BlanksAroundForeignNamesAreTrimmed)
{
    _files.put(gimp + "a.gpl", "GIMP Palette\nName:\t Oxygen\t\n1 2 3\tx\n");
    _files.put(gimp + "b.gpl", "GIMP Palette\nName: Two\tWords\n1 2 3\tx\n");
    _files.put(gimp + "c.gpl", "GIMP Palette\nName: \x01\n1 2 3\tx\n");
    _files.put(ours + "d.gpl", "GIMP Palette\nName: Mine \n1 2 3\tx\n");
    const auto names = _store.availableColorLists();
    EXPECT_THAT(names, ElementsAre(u"Mine ", u"Oxygen", u"Two Words", u"c"));
    for (const std::u16string& name : names) {
        const auto list = _store.colorListNamed(name);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->name(), name);
        EXPECT_EQ(_store.colorListNamed(name), list);
    }
}

TEST_F(ForeignPalettesTest, AFileInPlaceOfAVersionFolderIsSkipped)
{
    _files.put("/home/user/.config/GIMP/2.10", "a file");
    _files.put("/home/machine/usr/share/inkscape", "a file");
    _files.put("/home/machine/usr/share/gimp/2.0/palettes", "a file");
    _files.putPalette("/home/machine/usr/share/gimp/1.2/palettes/a.gpl", "Old", 1);
    _files.put("/home/machine/usr/share/gimp/1.2/palettes/folder.gpl/b.gpl", "GIMP Palette\n");
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Old"));
}

TEST_F(ForeignPalettesTest, AnUnreadableFileDoesNotHideTheOthers)
{
    _files.putPalette(userGimp + "a.gpl", "Unreadable", 1);
    _files.putPalette(userGimp + "b.gpl", "Readable", 2);
    _files.putPalette(gimp + "c.gpl", "In a closed folder", 3);
    _files.putPalette(inkscape + "d.gpl", "Inkscape's", 4);
    _files.makeUnreadable(userGimp + "a.gpl");
    _files.makeUnreadable(gimp.substr(0, gimp.size() - 1));
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Inkscape's", u"Readable"));
    EXPECT_EQ(_store.colorListNamed(u"Unreadable"), nullptr);
}

TEST_F(ForeignPalettesTest, WithoutAHomeFolderTheSystemPalettesAreListed)
{
    ForeignFiles files(ForeignFiles::Home::isMissing);
    files.putPalette(gimp + "a.gpl", "Reds", 1);
    PaletteFileStore store(files);
    EXPECT_NE(store.colorListNamed(u"Reds"), nullptr);
    EXPECT_THAT(store.availableColorLists(), ElementsAre(u"Reds"));
    EXPECT_FALSE(store.writeColorList(listOfOne(u"Mine")));
}

TEST_F(ForeignPalettesTest, WithoutBaseDirectoriesOnlyOurOwnFolderIsRead)
{
    _files.putPalette(gimp + "a.gpl", "Reds", 1);
    _files.putPalette(ours + "b.gpl", "Mine", 2);
    _files.setBaseDirectories({});
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Mine"));
    EXPECT_EQ(_store.colorListNamed(u"Reds"), nullptr);
}

TEST_F(ForeignPalettesTest, FilesAreReadOnDemand)
{
    _files.putPalette(ours + "Mine.gpl", "Mine", 1);
    _files.putPalette(ours + "other.gpl", "Other", 2);
    _files.putPalette(gimp + "a.gpl", "Reds", 3);
    _files.resetCounts();
    PaletteFileStore store(_files);
    EXPECT_EQ(_files.versions + _files.listings + _files.others, 0);
    EXPECT_THAT(_files.readPaths, IsEmpty());

    ASSERT_NE(store.colorListNamed(u"Mine"), nullptr);
    EXPECT_EQ(_files.listings, 0);
    EXPECT_THAT(std::set<std::string>(_files.readPaths.begin(), _files.readPaths.end()),
                ElementsAre(ours + "Mine.gpl"));
    for (const char16_t* later : {u"Reds", u"Other"}) {
        EXPECT_NE(store.colorListNamed(later), nullptr) << "the first lookup saw one file";
    }
}

TEST_F(ForeignPalettesTest, NamesTakeOneReadPerFileAndListsAnother)
{
    _files.putPalette(gimp + "a.gpl", "Reds", 1);
    _files.putPalette(gimp + "b.gpl", "Blues", 2);
    _files.put(kde + "c", "no palette");
    _files.resetCounts();
    EXPECT_EQ(_store.availableColorLists().size(), 2U);
    EXPECT_THAT(_files.readPaths,
                testing::UnorderedElementsAre(gimp + "a.gpl", gimp + "b.gpl", kde + "c"));
    _files.resetCounts();
    EXPECT_EQ(_store.availableColorLists().size(), 2U);
    EXPECT_THAT(_files.readPaths, IsEmpty());
    EXPECT_NE(_store.colorListNamed(u"Reds"), nullptr);
    EXPECT_THAT(_files.readPaths, ElementsAre(gimp + "a.gpl"));
}

TEST_F(ForeignPalettesTest, ARepeatedLookupOnlyChecksVersions)
{
    for (int i = 0; i < 50; ++i) {
        const std::string number = std::to_string(i);
        _files.putPalette(gimp + number + ".gpl", "Reds " + number, i);
    }
    _files.putPalette(userGimp + "a.gpl", "Reds 1", 200);
    for (const char16_t* name :
         {u"Reds 7", u"Reds 1", u"Reds 1 (GIMP)", u"Reds 7 (GIMP)", u"Nobody's"}) {
        const auto first = _store.colorListNamed(name);
        const bool isNobodys = std::u16string_view(name) == u"Nobody's";
        ASSERT_EQ(first == nullptr, isNobodys);
        _files.resetCounts();
        EXPECT_EQ(_store.colorListNamed(name), first);
        EXPECT_THAT(_files.readPaths, IsEmpty());
        EXPECT_EQ(_files.listings + _files.others, 0);
        // Looking up an unknown name checks one version for each folder that could have gained it.
        EXPECT_LE(_files.versions, isNobodys ? 25 : 2);
    }
}

TEST_F(ForeignPalettesTest, ANewFileIsFoundAtTheNextLookup)
{
    const std::vector<std::string> newPlaces{
        gimp, userGimp, "/home/user/.config/GIMP/2.99/palettes/", inkscape, kde, create, ours};
    int shade = 0;
    for (const std::string& folder : newPlaces) {
        const std::string number = std::to_string(++shade);
        const std::u16string name = u"New " + std::u16string(number.begin(), number.end());
        ASSERT_EQ(_store.colorListNamed(name), nullptr) << folder;
        _files.putPalette(folder + number + ".gpl", "New " + number, shade);
        EXPECT_NE(_store.colorListNamed(name), nullptr) << folder;
    }
    EXPECT_EQ(_store.availableColorLists().size(), newPlaces.size());
}

TEST_F(ForeignPalettesTest, ANewFileDoesNotCauseTheOthersToBeReadAgain)
{
    _files.putPalette(gimp + "a.gpl", "Reds", 1);
    ASSERT_EQ(_store.availableColorLists().size(), 1U);
    const std::string newVersion = "/home/machine/usr/share/gimp/3.0/palettes/b.gpl";
    for (const std::string& late : {gimp + "b.gpl", newVersion, userGimp + "b.gpl"}) {
        _files.putPalette(late, late, 2);
        _files.resetCounts();
        EXPECT_NE(_store.colorListNamed(utf16FromUtf8(late)), nullptr);
        EXPECT_THAT(_files.readPaths, ElementsAre(late, late)) << "for the name and for the list";
    }
}

TEST_F(ForeignPalettesTest, AFileThatChangesIsReadAgain)
{
    _files.putPalette(gimp + "a.gpl", "Reds", 1);
    const auto before = _store.colorListNamed(u"Reds");
    ASSERT_NE(before, nullptr);
    _files.putPalette(gimp + "a.gpl", "Reds", 2);
    const auto after = _store.colorListNamed(u"Reds");
    ASSERT_NE(after, nullptr);
    EXPECT_EQ(after->allKeys(), std::vector<std::u16string>{u"colour 2"});
    EXPECT_EQ(before->allKeys(), std::vector<std::u16string>{u"colour 1"});

    _files.putPalette(gimp + "a.gpl", "Blues", 2);
    EXPECT_EQ(_store.colorListNamed(u"Reds"), nullptr);
    EXPECT_NE(_store.colorListNamed(u"Blues"), nullptr);
    _files.remove("/home/machine/usr/share/gimp");
    EXPECT_EQ(_store.colorListNamed(u"Blues"), nullptr);
    EXPECT_THAT(_store.availableColorLists(), IsEmpty());
}

TEST_F(ForeignPalettesTest, AFileMovedToAnothersNameIsNotMistakenForIt)
{
    _files.putPalette(ours + "Reds.gpl", "Blues", 1);
    ASSERT_NE(_store.colorListNamed(u"Blues"), nullptr);
    _files.putPalette(ours + "Reds.gpl", "Greens", 2);
    EXPECT_EQ(_store.colorListNamed(u"Reds"), nullptr) << "this lookup checks the file first";
    EXPECT_EQ(_store.colorListNamed(u"Blues"), nullptr);
    EXPECT_NE(_store.colorListNamed(u"Greens"), nullptr);
}

TEST_F(ForeignPalettesTest, OurOwnListTakesPrecedenceAsSoonAsItExists)
{
    _files.putPalette(gimp + "a.gpl", "Reds", 1);
    ASSERT_EQ(_store.colorListNamed(u"Reds")->allKeys().front(), u"colour 1");
    _files.putPalette(ours + "Reds.gpl", "Reds", 2);
    EXPECT_EQ(_store.colorListNamed(u"Reds")->allKeys().front(), u"colour 2");
    EXPECT_EQ(_store.colorListNamed(u"Reds (GIMP)")->allKeys().front(), u"colour 1");
}

TEST_F(ForeignPalettesTest, WritingAListWithAForeignNameLeavesTheForeignFileAlone)
{
    for (const std::string& folder : {userGimp, gimp, kde})
        _files.putPalette(folder + "Reds.gpl", "Reds", 1);
    const auto before = _files.contentsAtPath(userGimp + "Reds.gpl");
    ASSERT_NE(_store.colorListNamed(u"Reds"), nullptr);
    const std::size_t pathCount = _files.allPaths().size();

    const auto mine = listOfOne(u"Reds");
    EXPECT_TRUE(_store.writeColorList(mine));
    EXPECT_EQ(_store.colorListNamed(u"Reds"), mine);
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Reds", u"Reds (GIMP)"));
    EXPECT_EQ(_files.allPaths().size(), pathCount + 3) << "two folders and our file";
    EXPECT_EQ(_files.contentsAtPath(ours + "Reds.gpl"), paletteText(*mine));
    for (const std::string& folder : {userGimp, gimp, kde})
        EXPECT_EQ(_files.contentsAtPath(folder + "Reds.gpl"), before);

    const auto bracketed = listOfOne(u"Reds (GIMP)");
    EXPECT_TRUE(_store.writeColorList(bracketed));
    EXPECT_EQ(_store.colorListNamed(u"Reds (GIMP)"), bracketed);
    EXPECT_EQ(_files.contentsAtPath(userGimp + "Reds.gpl"), before);
}

TEST_F(ForeignPalettesTest, WritingReadsOnlyOurOwnFolder)
{
    _files.putPalette(gimp + "a.gpl", "Reds", 1);
    _files.resetCounts();
    EXPECT_TRUE(_store.writeColorList(listOfOne(u"Mine")));
    EXPECT_THAT(_files.readPaths, IsEmpty());
    EXPECT_LE(_files.listings, 1);
}

TEST_F(ForeignPalettesTest, AFailedWriteHidesNoList)
{
    _files.putPalette(gimp + "a.gpl", "Reds", 1);
    const auto before = _store.colorListNamed(u"Reds");
    _files.putPalette(ours + "x.gpl", "Late", 1);
    _files.failWrites(true);
    EXPECT_FALSE(_store.writeColorList(listOfOne(u"Reds")));
    EXPECT_EQ(_store.colorListNamed(u"Reds"), before);
    EXPECT_NE(_store.colorListNamed(u"Late"), nullptr);
}

TEST_F(ForeignPalettesTest, SkippedLinesAreLoggedWithTheFullPath)
{
    _files.put(gimp + "a.gpl", "GIMP Palette\nName: Reds\nnonsense\n1 2 3\tx\n");
    const auto list = _store.colorListNamed(u"Reds");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->allKeys().size(), 1U);
    EXPECT_THAT(_log, ElementsAre(u"/home/machine/usr/share/gimp/2.0/palettes/a.gpl: line 3 left "
                                  u"out: not three numbers from 0 to 255"));
}

TEST_F(ForeignPalettesTest, HostileNamesAreListedAndFound)
{
    const std::vector<std::string> names{"..",
                                         "../../../etc/passwd",
                                         std::string("a\0b", 3),
                                         "Reds (GIMP)",
                                         "Reds (GIMP 4294967297)",
                                         " (GIMP)",
                                         "()",
                                         "%2F",
                                         "\xFF\xFE",
                                         "\xED\xA0\x80",
                                         std::string(100000, 'x')};
    int shade = 0;
    for (const std::string& name : names) {
        for (const std::string& folder : {gimp, inkscape}) {
            ++shade;
            _files.putPalette(folder + std::to_string(shade) + ".gpl", name, shade);
        }
    }
    const auto listed = _store.availableColorLists();
    EXPECT_EQ(listed.size(), 2 * names.size());
    std::set<std::u16string> colors;
    for (const std::u16string& name : listed) {
        const auto list = _store.colorListNamed(name);
        ASSERT_NE(list, nullptr);
        EXPECT_EQ(list->name(), name);
        colors.insert(list->allKeys().front());
    }
    EXPECT_EQ(colors.size(), listed.size()) << "each is a list of its own";
}

TEST_F(ForeignPalettesTest, FilesMayHoldAnyBytes)
{
    std::mt19937 random(3);
    for (int round = 0; round < 300; ++round) {
        std::string text = random() % 2 == 0 ? "GIMP Palette\n" : "KDE RGB Palette\r";
        for (std::size_t i = random() % 80; i > 0; --i) {
            text += std::string_view("0123456789 \t\n\r#Name:\x80\xff\0", 23)[random() % 23];
        }
        _files.put(kde + std::to_string(random() % 40), text);
        for (const std::u16string& name : _store.availableColorLists()) {
            const auto list = _store.colorListNamed(name);
            ASSERT_NE(list, nullptr);
            EXPECT_EQ(list->name(), name);
        }
    }
}

}  // namespace
}  // namespace vantorel
