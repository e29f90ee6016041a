#include "ScopedEnvironment.h"
#include "colorlists/PaletteFileStore.h"
#include "hosts/posix/PosixFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace vantorel {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

/// User and system folders below a scratch folder; the environment variables point to them.
class ForeignPalettesOnDiskTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::string path = (fs::temp_directory_path() / "vantorel-test-XXXXXX").string();
        ASSERT_NE(::mkdtemp(path.data()), nullptr);
        _base = path;
        _environment.set("HOME", _base + "/home");
        _environment.set("XDG_CONFIG_HOME", std::nullopt);
        _environment.set("XDG_DATA_HOME", std::nullopt);
        _environment.set("XDG_DATA_DIRS", _base + "/local:" + _base + "/share");
        _environment.set("XDG_CONFIG_DIRS", _base + "/xdg");
    }
    void TearDown() override { fs::remove_all(_base); }

    void put(const std::string& path, const std::string& text) const
    {
        const fs::path file = _base + "/" + path;
        fs::create_directories(file.parent_path());
        std::ofstream(file, std::ios::binary) << text;
        // Old enough that any later change gives the folder a different time.
        fs::last_write_time(file.parent_path(),
                            fs::file_time_type::clock::now() - std::chrono::hours(24));
    }
    void link(const std::string& target, const std::string& path) const
    {
        fs::create_directories(fs::path(_base + "/" + path).parent_path());
        fs::create_symlink(target, _base + "/" + path);
    }
    static std::string palette(const std::string& color)
    {
        return "GIMP Palette\n1 2 3\t" + color + "\n";
    }

    ScopedEnvironment _environment;
    std::string _base;
};

TEST_F(ForeignPalettesOnDiskTest, EveryFolderIsFoundThroughTheEnvironment)
{
    const std::vector<std::string> files{"home/.config/GIMP/2.10/palettes/a.gpl",
                                         "home/.config/inkscape/palettes/b.gpl",
                                         "home/.local/share/krita/palettes/c.gpl",
                                         "home/.config/colors/d",
                                         "local/gimp/2.0/palettes/e.gpl",
                                         "share/gimp/2.0/palettes/f.gpl",
                                         "share/inkscape/palettes/g.gpl",
                                         "share/krita/palettes/h.gpl",
                                         "share/create/swatches/i",
                                         "xdg/colors/j.colors",
                                         "home/.local/share/Vantorel/Palettes/k.gpl"};
    for (const std::string& file : files)
        put(file, palette(file));
    PosixFiles real;
    EXPECT_THAT(PaletteFileStore(real).availableColorLists(),
                ElementsAre(u"a", u"b", u"c", u"d", u"e", u"f", u"g", u"h", u"i", u"j", u"k"));

    PosixFiles given(_base + "/home/.local/share");
    EXPECT_THAT(PaletteFileStore(given).availableColorLists(), ElementsAre(u"k"))
        << "with an explicit folder, the environment is ignored";

    _environment.set("XDG_CONFIG_HOME", _base + "/home/elsewhere");
    _environment.set("XDG_DATA_HOME", _base + "/home/elsewhere");
    _environment.set("XDG_DATA_DIRS", _base + "/local");
    _environment.set("XDG_CONFIG_DIRS", _base + "/none");
    PosixFiles other;
    EXPECT_THAT(PaletteFileStore(other).availableColorLists(), ElementsAre(u"e"));
}

TEST_F(ForeignPalettesOnDiskTest, AFileReachedThroughTwoLinksIsListedOnce)
{
    put("home/.local/share/Vantorel/Palettes/mine.gpl", palette("mine"));
    put("share/gimp/2.0/palettes/reds.gpl", palette("reds"));
    link("../share/gimp", "local/gimp");
    link("../../../../share/gimp/2.0", "home/.config/GIMP/2.10");
    link("reds.gpl", "share/gimp/2.0/palettes/other-name.gpl");
    fs::create_hard_link(_base + "/share/gimp/2.0/palettes/reds.gpl",
                         _base + "/share/gimp/2.0/palettes/zz-hard.gpl");
    link("../../.local/share/Vantorel/Palettes", "home/.config/inkscape/palettes");
    link("nowhere", "share/krita/palettes/dangling.gpl");
    link("circle", "share/inkscape/circle");
    link("circle", "share/inkscape/palettes");
    _environment.set("XDG_DATA_DIRS", _base + "/share:" + _base + "/local:" + _base + "/share/");
    PosixFiles files;
    EXPECT_THAT(PaletteFileStore(files).availableColorLists(), ElementsAre(u"mine", u"other-name"));
}

TEST_F(ForeignPalettesOnDiskTest, ChangesOnDiskAreSeenAtTheNextLookup)
{
    put("share/gimp/2.0/palettes/a.gpl", "GIMP Palette\nName: Reds\n1 2 3\told\n");
    PosixFiles files;
    PaletteFileStore store(files);
    ASSERT_NE(store.colorListNamed(u"Reds"), nullptr);
    EXPECT_EQ(store.colorListNamed(u"Late"), nullptr);

    put("share/gimp/2.0/palettes/a.gpl", "GIMP Palette\nName: Reds\n1 2 3\tnewer\n");
    EXPECT_THAT(store.colorListNamed(u"Reds")->allKeys(), ElementsAre(u"newer"));
    for (const char* file : {"share/gimp/2.0/palettes/late.gpl", "share/gimp/3.0/palettes/late.gpl",
                             "xdg/colors/late"}) {
        ASSERT_EQ(store.colorListNamed(u"Late"), nullptr) << file;
        put(file, "GIMP Palette\nName: Late\n1 2 3\tx\n");
        EXPECT_NE(store.colorListNamed(u"Late"), nullptr) << file;
        fs::remove(_base + "/" + file);
    }
    fs::remove_all(_base + "/share");
    EXPECT_EQ(store.colorListNamed(u"Reds"), nullptr);
    EXPECT_THAT(store.availableColorLists(), IsEmpty());
}

TEST_F(ForeignPalettesOnDiskTest, ADanglingLinkIsReadOnceItsTargetExists)
{
    link("../../../elsewhere/reds", "share/inkscape/palettes/reds.gpl");
    PosixFiles files;
    PaletteFileStore store(files);
    EXPECT_THAT(store.availableColorLists(), IsEmpty());
    put("elsewhere/reds", palette("red"));
    EXPECT_THAT(store.availableColorLists(), ElementsAre(u"reds"));
}

TEST_F(ForeignPalettesOnDiskTest, AnUnreadableFolderIsReadOnceItBecomesReadable)
{
    if (::geteuid() == 0) GTEST_SKIP() << "root reads every folder";
    put("share/inkscape/palettes/reds.gpl", palette("red"));
    const fs::path folder = _base + "/share/inkscape/palettes";
    fs::permissions(folder, fs::perms::none);
    PosixFiles files;
    PaletteFileStore store(files);
    EXPECT_THAT(store.availableColorLists(), IsEmpty());
    fs::permissions(folder, fs::perms::owner_all);
    EXPECT_THAT(store.availableColorLists(), ElementsAre(u"reds"));
}

TEST_F(ForeignPalettesOnDiskTest, NoFilesAreCreatedInForeignFolders)
{
    put("share/gimp/2.0/palettes/a.gpl", "GIMP Palette\nName: Reds\n1 2 3\told\n");
    PosixFiles files;
    PaletteFileStore store(files);
    auto list = std::make_shared<HostColorList>(u"Reds");
    list->setColor(HostColor::whiteColor(), u"white");
    EXPECT_TRUE(store.writeColorList(list));
    std::vector<std::string> found;
    for (const auto& entry : fs::recursive_directory_iterator(_base)) {
        if (entry.is_regular_file()) found.push_back(fs::relative(entry.path(), _base).string());
    }
    EXPECT_THAT(found,
                testing::UnorderedElementsAre("share/gimp/2.0/palettes/a.gpl",
                                              "home/.local/share/Vantorel/Palettes/Reds.gpl"));
    EXPECT_FALSE(fs::exists(_base + "/home/.config"));
}

}  // namespace
}  // namespace vantorel
