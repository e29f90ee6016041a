#include "ForeignFiles.h"
#include "ForeignFolders.h"
#include "colorlists/PaletteFileStore.h"
#include "colorlists/PalettePlaces.h"
#include "text/Unicode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace vantorel {
namespace {

using testing::ElementsAre;
using Names = std::vector<std::u16string>;

class PaletteNamesTest : public testing::Test {
protected:
    /// The shade of a list's only colour, which identifies the file; -1 if there is no such list or
    /// if its name differs from `name`.
    static int shade(HostColorListStore& store, const std::u16string& name)
    {
        const auto list = store.colorListNamed(name);
        if (!list || list->name() != name || list->allKeys().size() != 1) return -1;
        const auto color = list->colorAtIndex(0).calibratedRGB();
        return color ? static_cast<int>(std::lround(color->red * 255)) : -1;
    }
    int shade(const std::u16string& name) { return shade(_store, name); }

    ForeignFiles _files;
    PaletteFileStore _store{_files};
};

TEST_F(PaletteNamesTest, EachListIsFoundByItsListedName)
{
    // Numbered from highest to lowest precedence.
    const std::vector<std::string> folders{ours,    userGimp,  userOldGimp, userInkscape, userKrita,
                                           userKde, localGimp, newGimp,     gimp,         inkscape,
                                           krita,   create,    kde};
    for (std::size_t i = folders.size(); i-- > 0;)
        _files.putPalette(folders[i] + "file.gpl", "Reds", static_cast<int>(i));
    const std::vector<std::u16string> expected{
        u"Reds",          u"Reds (GIMP)",       u"Reds (GIMP 2)",  u"Reds (Inkscape)",
        u"Reds (Krita)",  u"Reds (KDE)",        u"Reds (GIMP 3)",  u"Reds (GIMP 4)",
        u"Reds (GIMP 5)", u"Reds (Inkscape 2)", u"Reds (Krita 2)", u"Reds (Create)",
        u"Reds (KDE 2)"};
    EXPECT_THAT(_store.availableColorLists(), testing::UnorderedElementsAreArray(expected));
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(shade(expected[i]), static_cast<int>(i));
}

TEST_F(PaletteNamesTest, EachNameIsFoundBeforeTheNamesAreListed)
{
    _files.putPalette(userGimp + "a.gpl", "Reds", 1);
    _files.putPalette(gimp + "a.gpl", "Reds", 2);
    for (const auto& [name, expected] :
         {std::pair{u"Reds", 1}, std::pair{u"Reds (GIMP)", 2}, std::pair{u"Blues", -1}}) {
        PaletteFileStore fresh(_files);
        EXPECT_EQ(shade(fresh, name), expected);
    }
}

TEST_F(PaletteNamesTest, NamesAreSortedAcrossFolders)
{
    _files.putPalette(kde + "x", "Apple", 1);
    _files.putPalette(ours + "x.gpl", "Pear", 2);
    _files.putPalette(gimp + "x.gpl", "Plum", 3);
    _files.putPalette(gimp + "y.gpl", "Cherry", 4);
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Apple", u"Cherry", u"Pear", u"Plum"));
}

TEST_F(PaletteNamesTest, IdenticalListsOfOneNameAreListedOnce)
{
    for (const std::string& folder : {ours, userGimp, gimp, inkscape, kde})
        _files.putPalette(folder + "reds.gpl", "Reds", 7);
    _files.putPalette(krita + "reds.gpl", "Reds", 8);
    _files.putPalette(create + "reds.gpl", "Reds", 8);
    _files.putPalette(create + "other.gpl", "Other", 7);
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Other", u"Reds", u"Reds (Krita)"));
}

TEST_F(PaletteNamesTest, ListsWithTheSameNameInOneFolderAreAllListed)
{
    _files.putPalette(gimp + "a.gpl", "Reds", 1);
    _files.putPalette(gimp + "b.gpl", "Reds", 2);
    _files.putPalette(gimp + "c.gpl", "Reds", 3);
    EXPECT_THAT(_store.availableColorLists(),
                ElementsAre(u"Reds", u"Reds (GIMP 2)", u"Reds (GIMP)"));
    EXPECT_EQ(shade(u"Reds (GIMP 2)"), 3);
}

TEST_F(PaletteNamesTest, AGeneratedNameNeverTakesANameFromAFile)
{
    _files.putPalette(ours + "a.gpl", "Reds", 1);
    _files.putPalette(userGimp + "a.gpl", "Reds", 2);
    _files.putPalette(inkscape + "a.gpl", "Reds (GIMP)", 3);
    _files.putPalette(krita + "a.gpl", "Reds (GIMP)", 4);
    EXPECT_THAT(_store.availableColorLists(),
                ElementsAre(u"Reds", u"Reds (GIMP 2)", u"Reds (GIMP)", u"Reds (GIMP) (Krita)"));
    EXPECT_EQ(shade(u"Reds (GIMP)"), 3);
    EXPECT_EQ(shade(u"Reds (GIMP 2)"), 2);
    EXPECT_EQ(shade(u"Reds (GIMP) (Krita)"), 4);
}

TEST_F(PaletteNamesTest, ABracketedNameIsStillFoundWithoutThePlainOne)
{
    _files.putPalette(ours + "Reds.gpl", "Reds", 1);
    _files.putPalette(userGimp + "a.gpl", "Reds", 2);
    _files.putPalette(gimp + "a.gpl", "Reds", 3);
    _files.putPalette(inkscape + "a.gpl", "Reds", 4);
    EXPECT_EQ(shade(u"Reds (GIMP)"), 2);
    EXPECT_EQ(shade(u"Reds (GIMP 2)"), 3);
    EXPECT_EQ(shade(u"Reds (Inkscape)"), 4);

    _files.remove(ours + "Reds.gpl");
    _files.remove(userGimp + "a.gpl");
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Reds", u"Reds (Inkscape)"));
    EXPECT_EQ(shade(u"Reds"), 3);
    EXPECT_EQ(shade(u"Reds (GIMP)"), 3);
    EXPECT_EQ(shade(u"Reds (GIMP 2)"), 3);
    EXPECT_EQ(shade(u"Reds (Inkscape)"), 4);

    for (const char16_t* never :
         {u"Reds (Krita)", u"Reds (GIMP 1)", u"Reds (GIMP 02)", u"Reds (GIMP )", u"Reds (GIMP x)",
          u"Reds (GIMP 99999999999999999999)", u"Reds(GIMP)", u"Reds (GIMP", u" (GIMP)", u"()"}) {
        EXPECT_EQ(_store.colorListNamed(never), nullptr) << utf8FromUtf16(never);
    }
}

TEST_F(PaletteNamesTest, ABracketedNameIsStillFoundWhenThePlainListBecameEqual)
{
    _files.putPalette(ours + "Reds.gpl", "Reds", 1);
    _files.putPalette(gimp + "a.gpl", "Reds", 2);
    EXPECT_EQ(shade(u"Reds (GIMP)"), 2);
    _files.putPalette(ours + "Reds.gpl", "Reds", 2);
    EXPECT_THAT(_store.availableColorLists(), ElementsAre(u"Reds"));
    EXPECT_EQ(shade(u"Reds (GIMP)"), 2);
}

TEST_F(PaletteNamesTest, ABracketedListStaysTheSameObject)
{
    _files.putPalette(userGimp + "a.gpl", "Reds", 1);
    _files.putPalette(gimp + "a.gpl", "Reds", 2);
    const auto bracketed = _store.colorListNamed(u"Reds (GIMP)");
    const auto former = _store.colorListNamed(u"Reds (GIMP 2)");
    ASSERT_NE(bracketed, nullptr);
    static_cast<void>(_store.availableColorLists());
    EXPECT_EQ(_store.colorListNamed(u"Reds (GIMP)"), bracketed);
    EXPECT_EQ(_store.colorListNamed(u"Reds (GIMP 2)"), former);
}

TEST(PaletteVersionsTest, TheNewestVersionComesFirst)
{
    std::vector<std::string> versions{"2.8",
                                      "backup",
                                      "2.10",
                                      "3",
                                      "2.99.16",
                                      "2.99",
                                      "3.0",
                                      "10.0",
                                      "2.9",
                                      "3.0-old",
                                      "2",
                                      "",
                                      "18446744073709551616",
                                      "2.010"};
    std::sort(versions.begin(), versions.end(), isNewerVersion);
    EXPECT_THAT(versions, ElementsAre("18446744073709551616", "10.0", "3.0", "3", "2.99.16", "2.99",
                                      "2.10", "2.010", "2.9", "2.8", "2", "backup", "3.0-old", ""));
    EXPECT_TRUE(isNewerVersion("3.0.1", "3.00"));
    EXPECT_FALSE(isNewerVersion("3.00", "3.0.1"));
    EXPECT_FALSE(isNewerVersion("2.10", "2.10"));
}

}  // namespace
}  // namespace vantorel
