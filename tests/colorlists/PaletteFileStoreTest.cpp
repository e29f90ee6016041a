#include "colorlists/PaletteFileStore.h"

#include "colorlists/PaletteFile.h"
#include "colorlists/PaletteFolder.h"
#include "hosts/posix/PosixFiles.h"
#include "testing/headless/MemoryFiles.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace vantorel {
namespace {

const std::string folder = "/home/user/.local/share/Vantorel/Palettes";

class PaletteFileStoreTest : public testing::Test {
protected:
    void put(const std::string& name, const std::string& text)
    {
        _files.createDirectory("/home/user/.local/share/Vantorel");
        _files.createDirectory(folder);
        ASSERT_TRUE(_files.writeAtomically(folder + "/" + name, text));
    }

    static std::shared_ptr<HostColorList> listNamed(const std::u16string& name)
    {
        auto list = std::make_shared<HostColorList>(name);
        list->setColor(HostColor::whiteColor(), u"white");
        return list;
    }

    MemoryFiles _files;
    std::vector<std::u16string> _log;
    PaletteFileStore _store{_files, [this](const std::u16string& line) { _log.push_back(line); }};
};

TEST_F(PaletteFileStoreTest, AnEmptyStoreHasNoListsAndCreatesNoFolder)
{
    EXPECT_TRUE(_store.availableColorLists().empty());
    EXPECT_EQ(_store.colorListNamed(u"any"), nullptr);
    EXPECT_EQ(_files.kindAtPath(folder), HostFileKind::none);
}

TEST_F(PaletteFileStoreTest, ListsAreFoundByTheNameInsideTheFile)
{
    put("a.gpl", "GIMP Palette\nName: Zebra\n1 2 3 x\n");
    put("b.gpl", "GIMP Palette\n1 2 3 x\n");
    put("c.txt", "GIMP Palette\nName: Text\n1 2 3 x\n");
    put("d.gpl", "not a palette");
    EXPECT_EQ(_store.availableColorLists(), (std::vector<std::u16string>{u"Zebra", u"b"}));
    ASSERT_NE(_store.colorListNamed(u"Zebra"), nullptr);
    EXPECT_EQ(_store.colorListNamed(u"a"), nullptr);
    EXPECT_EQ(_store.colorListNamed(u"Text"), nullptr);
}

TEST_F(PaletteFileStoreTest, AnOwnListIsFoundInTheFileThatHoldsIt)
{
    put("a.gpl", "GIMP Palette\nName: Zebra\n1 2 3 x\n");
    put("b.gpl", "GIMP Palette\nName: Mine\n1 2 3 x\n");
    put("c.gpl", "GIMP Palette\n1 2 3 x\n");
    put("d.gpl", "not a palette");
    EXPECT_EQ(_store.pathOfOwnList(u"Mine"), folder + "/b.gpl");
    EXPECT_EQ(_store.pathOfOwnList(u"Zebra"), folder + "/a.gpl");
    EXPECT_EQ(_store.pathOfOwnList(u"c"), folder + "/c.gpl");
    EXPECT_EQ(_store.pathOfOwnList(u"a"), std::nullopt);
    EXPECT_EQ(_store.pathOfOwnList(u"d"), std::nullopt);
    EXPECT_EQ(_store.pathOfOwnList(u""), std::nullopt);
}

TEST_F(PaletteFileStoreTest, ALookupByNameDoesNotHideTheOtherLists)
{
    put("b.gpl", "GIMP Palette\nName: b\n1 2 3 x\n");
    put("a.gpl", "GIMP Palette\nName: a\n1 2 3 x\n");
    ASSERT_NE(_store.colorListNamed(u"b"), nullptr);
    EXPECT_EQ(_store.availableColorLists(), (std::vector<std::u16string>{u"a", u"b"}));
}

TEST_F(PaletteFileStoreTest, AChangeOnDiskIsSeenAtTheNextLookup)
{
    put("a.gpl", "GIMP Palette\nName: a\n1 2 3 old\n");
    const auto before = _store.colorListNamed(u"a");
    EXPECT_EQ(_store.colorListNamed(u"a"), before);
    put("a.gpl", "GIMP Palette\nName: a\n1 2 3 new\n");
    const auto after = _store.colorListNamed(u"a");
    EXPECT_NE(after, before);
    EXPECT_EQ(after->allKeys().front(), u"new");
    EXPECT_EQ(before->allKeys().front(), u"old") << "existing references keep the old list";
    put("b.gpl", "GIMP Palette\nName: b\n");
    EXPECT_EQ(_store.availableColorLists().size(), 2U);
    put("a.gpl", "damaged");
    EXPECT_EQ(_store.colorListNamed(u"a"), nullptr);
}

TEST_F(PaletteFileStoreTest, SkippedLinesAreLoggedWithFileAndLine)
{
    put("a.gpl", "GIMP Palette\nName: a\nnonsense\n1 2 3 x\n");
    ASSERT_NE(_store.colorListNamed(u"a"), nullptr);
    ASSERT_EQ(_log.size(), 1U);
    EXPECT_NE(_log.front().find(u"a.gpl: line 3"), std::u16string::npos);
}

TEST_F(PaletteFileStoreTest, NoNameLeadsOutOfTheFolder)
{
    for (const std::u16string& name :
         {std::u16string(u"../../escape"), std::u16string(), std::u16string(u"."),
          std::u16string(u".."), std::u16string(u"a/b"), std::u16string(u"a\0b", 3),
          std::u16string(u"%2F"), std::u16string(u" "), std::u16string(u"\U0001F3A8"),
          std::u16string(5000, u'x'), std::u16string(5000, u'x') + u"y"}) {
        const std::string file = PaletteFileStore::fileNameOfList(name);
        EXPECT_EQ(file.find('/'), std::string::npos);
        EXPECT_EQ(file.find('\0'), std::string::npos);
        EXPECT_NE(file.front(), '.');
        EXPECT_LE(file.size(), 240U);
        EXPECT_TRUE(_store.writeColorList(listNamed(name)));
    }
    for (const std::string& path : _files.allPaths()) {
        EXPECT_TRUE(path.starts_with(folder) || folder.starts_with(path)) << path;
    }
    EXPECT_EQ(_files.contentsOfDirectory(folder).size(), 11U);
}

/// Written lists must be found again by later versions.
TEST_F(PaletteFileStoreTest, FileNamesAreThoseOfEarlierVersions)
{
    const std::string cut(200, 'x');
    for (const auto& [name, file] : {
             std::pair{std::u16string(u"Mine"), std::string("Mine.gpl")},
             {u"a b", "a b.gpl"},
             {u" a ", "%20a%20.gpl"},
             {u".a.b", "%2Ea.b.gpl"},
             {u"a/b:c\\d%e", "a%2Fb%3Ac%5Cd%25e.gpl"},
             {u"\u00e9\u0001\u007f", "\u00e9%01%7F.gpl"},
             {u"", "%.gpl"},
             {std::u16string(200, u'x'), cut + ".gpl"},
             {std::u16string(201, u'x'), cut + "%3631500d06f3bba7.gpl"},
             {std::u16string(201, u'x') + u"y", cut + "%0986e422d0283a3a.gpl"},
         }) {
        EXPECT_EQ(PaletteFileStore::fileNameOfList(name), file);
    }
}

TEST_F(PaletteFileStoreTest, TheNameOfAFileWithoutANameIsThatOfTheFile)
{
    for (const auto& [file, name] : {std::pair{"a.gpl", u"a"},
                                     {"a.GPL", u"a"},
                                     {"Web.colors", u"Web"},
                                     {"a.colors.gpl", u"a.colors"},
                                     {"a.gpl.colors", u"a.gpl"},
                                     {"gpl", u"gpl"},
                                     {".gpl", u""},
                                     {"a.gp", u"a.gp"}}) {
        EXPECT_EQ(PaletteFolder::fallbackListName(file), name) << file;
    }
}

TEST_F(PaletteFileStoreTest, AListingInStepsCountsTheFiles)
{
    for (const char* name : {"a", "b", "c", "d", "e"})
        put(std::string(name) + ".gpl", "GIMP Palette\n1 2 3 x\n");
    _store.beginListing();
    EXPECT_EQ(_store.listingProgress().files, 0U);
    EXPECT_EQ(_store.listingProgress().allFiles, 5U);
    EXPECT_FALSE(_store.continueListing(2));
    EXPECT_EQ(_store.listingProgress().files, 2U);
    EXPECT_EQ(_store.listedSoFar().size(), 2U);
    EXPECT_FALSE(_store.continueListing(2));
    EXPECT_EQ(_store.listingProgress().files, 4U);
    EXPECT_TRUE(_store.continueListing(2));
    EXPECT_EQ(_store.listingProgress().files, 5U);
    EXPECT_EQ(_store.listingProgress().allFiles, 5U);
    EXPECT_EQ(_store.listedSoFar().size(), 5U);
}

TEST_F(PaletteFileStoreTest, AWrittenListIsAvailableAtOnce)
{
    const auto list = listNamed(u"Mine");
    EXPECT_TRUE(_store.writeColorList(list));
    EXPECT_EQ(_store.colorListNamed(u"Mine"), list);
    EXPECT_EQ(_store.availableColorLists(), (std::vector<std::u16string>{u"Mine"}));
    EXPECT_EQ(_files.contentsAtPath(folder + "/Mine.gpl"), paletteText(*list));
}

TEST_F(PaletteFileStoreTest, AFailedWriteAddsNoList)
{
    _files.failWrites(true);
    EXPECT_FALSE(_store.writeColorList(listNamed(u"Mine")));
    EXPECT_FALSE(_store.writeColorList(nullptr));
    EXPECT_EQ(_store.colorListNamed(u"Mine"), nullptr);
}

TEST_F(PaletteFileStoreTest, AFileThatHoldsAnotherListIsNeverOverwritten)
{
    const std::string mine = "GIMP Palette\nName: My own\n1 2 3 x\n";
    for (const std::string& text : {mine, std::string("not a palette, but somebody's work")}) {
        put("CSS Keyword.gpl", text);
        const auto list = listNamed(u"CSS Keyword");
        EXPECT_TRUE(_store.writeColorList(list));
        EXPECT_EQ(_files.contentsAtPath(folder + "/CSS Keyword.gpl"), text);
        EXPECT_EQ(_store.colorListNamed(u"CSS Keyword"), list);
    }
    PaletteFileStore nextProcess(_files);
    ASSERT_NE(nextProcess.colorListNamed(u"CSS Keyword"), nullptr);
    EXPECT_EQ(_files.contentsOfDirectory(folder).size(), 2U) << "the second save found its file";
}

TEST_F(PaletteFileStoreTest, AListIsSavedToTheFileItCameFrom)
{
    put("other.gpl", "GIMP Palette\nName: Mine\n1 2 3 x\n");
    EXPECT_TRUE(_store.writeColorList(listNamed(u"Mine")));
    EXPECT_EQ(_files.contentsOfDirectory(folder), std::vector<std::string>{"other.gpl"});
}

TEST_F(PaletteFileStoreTest, AListThatWasWrittenIsNotReadBack)
{
    const auto first = listNamed(u"Mine");
    const auto path = _store.writeNewFile(first, paletteText(*first));
    ASSERT_TRUE(path);
    EXPECT_EQ(_store.colorListNamed(u"Mine"), first);
    const auto second = listNamed(u"Mine");
    ASSERT_TRUE(_store.replaceFile(*path, second, paletteText(*second)));
    EXPECT_EQ(_store.colorListNamed(u"Mine"), second);
    const auto third = listNamed(u"Mine");
    ASSERT_TRUE(_store.writeColorList(third));
    EXPECT_EQ(_store.colorListNamed(u"Mine"), third);
}

TEST_F(PaletteFileStoreTest, SavingAgainInAnotherProcessCreatesNoSecondFile)
{
    for (const std::u16string& name : {std::u16string(u"a\tb"), std::u16string(),
                                       std::u16string(u" "), std::u16string(1, char16_t{0xD800})}) {
        EXPECT_TRUE(PaletteFileStore(_files).writeColorList(listNamed(name)));
        const auto files = _files.contentsOfDirectory(folder);
        EXPECT_TRUE(PaletteFileStore(_files).writeColorList(listNamed(name)));
        EXPECT_EQ(_files.contentsOfDirectory(folder), files);
    }
}

TEST_F(PaletteFileStoreTest, OnlyTheFirstOfManyBadLinesAreLogged)
{
    std::string text = "GIMP Palette\n1 2 3 x\n";
    for (int i = 0; i < 5000; ++i)
        text += "bad\n";
    put("a.gpl", text);
    ASSERT_NE(_store.colorListNamed(u"a"), nullptr);
    EXPECT_LT(_log.size(), 200U);
    EXPECT_NE(_log.back().find(u"4900 more"), std::u16string::npos);

    // The first that is counted and not logged.
    text = "GIMP Palette\n1 2 3 x\n";
    for (std::size_t i = 0; i <= PaletteReading::mostSkippedLines; ++i)
        text += "bad\n";
    put("b.gpl", text);
    ASSERT_NE(_store.colorListNamed(u"b"), nullptr);
    EXPECT_NE(_log.back().find(u"1 more"), std::u16string::npos);
}

/// On the real disk, where another program may also overwrite a file in place.
class PaletteFileStoreOnDiskTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::string path =
            (std::filesystem::temp_directory_path() / "vantorel-test-XXXXXX").string();
        ASSERT_NE(::mkdtemp(path.data()), nullptr);
        _base = path;
        _palettes = path + "/Vantorel/Palettes";
        std::filesystem::create_directories(_palettes);
    }
    void TearDown() override { std::filesystem::remove_all(_base); }

    void writeInPlace(const std::string& name, const std::string& text) const
    {
        std::ofstream(_palettes + "/" + name) << text;
    }

    std::string _base;
    std::string _palettes;
};

TEST_F(PaletteFileStoreOnDiskTest, AFileRepairedInPlaceIsSeenAtTheNextLookup)
{
    writeInPlace("a.gpl", "damaged");
    PosixFiles files(_base);
    PaletteFileStore store(files);
    EXPECT_TRUE(store.availableColorLists().empty());
    writeInPlace("a.gpl", "GIMP Palette\nName: Repaired\n1 2 3 x\n");
    EXPECT_EQ(store.availableColorLists(), (std::vector<std::u16string>{u"Repaired"}));
    EXPECT_NE(store.colorListNamed(u"Repaired"), nullptr);
}

TEST_F(PaletteFileStoreOnDiskTest, AFileTooLargeForMemoryIsNotAPalette)
{
    writeInPlace("huge.gpl", "GIMP Palette\n");
    std::error_code error;
    std::filesystem::resize_file(_palettes + "/huge.gpl", std::uintmax_t{1} << 43, error);
    if (error) GTEST_SKIP() << "no sparse files here: " << error.message();
    writeInPlace("a.gpl", "GIMP Palette\nName: a\n1 2 3 x\n");
    PosixFiles files(_base);
    PaletteFileStore store(files);
    EXPECT_EQ(store.availableColorLists(), (std::vector<std::u16string>{u"a"}));
}

}  // namespace
}  // namespace vantorel
