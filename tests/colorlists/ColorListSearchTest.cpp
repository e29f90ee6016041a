#include "colorlists/ColorListSearch.h"

#include "colorlists/QTXHexColorLists.h"

#include <gtest/gtest.h>

#include "CountingFiles.h"

namespace vantorel {
namespace {

const std::string ownFolder = "/home/user/.local/share/Vantorel/Palettes";
constexpr std::size_t atOnce = ColorListSearch::filesAtOnce;
constexpr std::size_t step = ColorListSearch::filesOfStep;
/// At a file: its version, its contents and its identity. At a step: the folders.
constexpr std::size_t callsOfFile = 3;
constexpr std::size_t callsOfStep = 100;

class ColorListSearchTest : public testing::Test {
protected:
    ColorListSearchTest()
    {
        _files.createDirectory("/home/user/.local/share/Vantorel");
        _files.createDirectory(ownFolder);
    }
    void put(const std::string& fileName, const std::string& listName)
    {
        _files.writeAtomically(ownFolder + "/" + fileName,
                               "GIMP Palette\nName: " + listName + "\n1 2 3\ta\n");
    }
    void addLists(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            put(std::to_string(10000 + i) + ".gpl", "List " + std::to_string(10000 + i));
        static_cast<void>(_files.takeCalls());
    }
    /// Runs the step that was scheduled. Returns false if there is none.
    bool takeStep()
    {
        auto next = std::exchange(_next, {});
        if (next) next();
        return next != nullptr;
    }
    [[nodiscard]] static std::shared_ptr<HostColorList> listNamed(const std::u16string& name)
    {
        auto list = std::make_shared<HostColorList>(name);
        list->setColor(HostColor::whiteColor(), u"white");
        return list;
    }

    CountingFiles _files;
    PaletteFileStore _store{_files};
    std::function<void()> _next;
    ColorListSearch _search{_store, [this](double, std::function<void()> reaction) {
                                _next = std::move(reaction);
                                return std::make_unique<HostTimer>();
                            }};
};

TEST_F(ColorListSearchTest, AFewFilesAreLookedAtAtOnce)
{
    put("a.gpl", "Mine");
    EXPECT_NE(_search.colorListNamed(u"Mine"), nullptr);
    EXPECT_EQ(_search.colorListNamed(u"Yours"), nullptr);
    EXPECT_FALSE(_search.isRunning());
    const auto list = listNamed(u"Yours");
    EXPECT_TRUE(_search.writeColorList(list));
    EXPECT_EQ(_search.colorListNamed(u"Yours"), list);
    EXPECT_TRUE(_files.contentsAtPath(ownFolder + "/Yours.gpl"));
}

TEST_F(ColorListSearchTest, TheFirstStartWithManyFilesLooksAtFewOfThem)
{
    addLists(atOnce + 3 * step);
    checkAndInstallColorLists(_search);
    EXPECT_LE(_files.takeCalls(), callsOfFile * atOnce + callsOfStep);
    const auto list = _search.colorListNamed(u"CSS Keyword");
    ASSERT_NE(list, nullptr) << "the page can use it";
    EXPECT_EQ(list->allKeys().size(), 17U);
    EXPECT_FALSE(_files.contentsAtPath(ownFolder + "/CSS Keyword.gpl"));
    static_cast<void>(_files.takeCalls());

    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(takeStep());
        EXPECT_LE(_files.takeCalls(), callsOfFile * step + callsOfStep);
    }
    ASSERT_TRUE(takeStep());
    EXPECT_LE(_files.takeCalls(), callsOfFile * step + 2 * callsOfStep) << "and saves the lists";
    EXPECT_FALSE(takeStep());
    for (const char* name : {"CSS Keyword", "Browser Safe", "SVG Keyword"})
        EXPECT_TRUE(_files.contentsAtPath(ownFolder + "/" + name + ".gpl")) << name;
    EXPECT_EQ(_search.colorListNamed(u"CSS Keyword"), list);

    static_cast<void>(_files.takeCalls());
    PaletteFileStore later(_files);
    EXPECT_NE(later.colorListNamed(u"CSS Keyword"), nullptr);
    EXPECT_LE(_files.takeCalls(), callsOfStep);
}

TEST_F(ColorListSearchTest, AListOfTheUserIsFoundInPlaceOfTheOneToSave)
{
    addLists(atOnce);
    put("mine.gpl", "Mine");
    put("other.gpl", "Other");
    int found = 0;
    _search.setReaction([&] { ++found; });
    EXPECT_EQ(_search.colorListNamed(u"Mine"), nullptr);
    const auto made = listNamed(u"Mine");
    EXPECT_TRUE(_search.writeColorList(made));
    EXPECT_EQ(_search.colorListNamed(u"Mine"), made);
    EXPECT_EQ(_search.colorListNamed(u"Other"), nullptr);
    while (takeStep()) {
    }
    EXPECT_EQ(found, 1);
    const auto list = _search.colorListNamed(u"Mine");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->allKeys(), std::vector<std::u16string>{u"a"});
    EXPECT_NE(_search.colorListNamed(u"Other"), nullptr);
    EXPECT_FALSE(_files.contentsAtPath(ownFolder + "/Mine.gpl"));
}

TEST_F(ColorListSearchTest, ASearchInVainIsNotReported)
{
    addLists(atOnce + step);
    int found = 0;
    _search.setReaction([&] { ++found; });
    EXPECT_EQ(_search.colorListNamed(u"None"), nullptr);
    EXPECT_TRUE(_search.writeColorList(listNamed(u"New")));
    while (takeStep()) {
    }
    EXPECT_EQ(found, 0);
    EXPECT_NE(_search.colorListNamed(u"New"), nullptr);
}

TEST_F(ColorListSearchTest, WhoeverNeedsAllListsEndsTheSearch)
{
    addLists(atOnce + 2 * step);
    EXPECT_EQ(_search.colorListNamed(u"New"), nullptr);
    EXPECT_TRUE(_search.writeColorList(listNamed(u"New")));
    EXPECT_EQ(_search.availableColorLists().size(), atOnce + 2 * step + 1);
    EXPECT_FALSE(_search.isRunning());
    EXPECT_TRUE(_files.contentsAtPath(ownFolder + "/New.gpl"));
}

TEST_F(ColorListSearchTest, AListThatAnotherProgramSavesMeanwhileIsKept)
{
    addLists(atOnce + step);
    EXPECT_EQ(_search.colorListNamed(u"New"), nullptr);
    EXPECT_TRUE(_search.writeColorList(listNamed(u"New")));
    put("New.gpl", "New");
    while (takeStep()) {
    }
    EXPECT_EQ(_search.colorListNamed(u"New")->allKeys(), std::vector<std::u16string>{u"a"});
    EXPECT_FALSE(_files.contentsAtPath(ownFolder + "/New 2.gpl"));
}

}  // namespace
}  // namespace vantorel
