#include "colornames/ColorNames.h"

#include "settings/SettingsFile.h"
#include "testing/headless/MemoryFiles.h"
#include "text/Unicode.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

const std::string appFolder = "/home/user/.local/share/Vantorel";

HostColor bytes(int red, int green, int blue, double alpha = 1)
{
    return HostColor::colorWithCalibratedRed(red / 255.0, green / 255.0, blue / 255.0, alpha);
}

/// Reports which files are read.
class ReadingFiles final : public MemoryFiles {
public:
    [[nodiscard]] std::optional<std::string> contentsAtPath(const std::string& path) const override
    {
        ++_count;
        return MemoryFiles::contentsAtPath(path);
    }
    [[nodiscard]] int count() const { return _count; }

private:
    mutable int _count = 0;
};

class ColorNamesTest : public testing::Test {
protected:
    ColorNamesTest()
    {
        _files.createDirectory(appFolder);
        _files.createDirectory(appFolder + "/Palettes");
        put("Paints", "255 128 0 Amber\n0 0 128 Ink\n10 20 30 Coal\n10 20 30 Soot\n");
        put("Brand", "1 2 3 ink\n1 2 3 First\n200 0 0 red\n7 7 7 Only brand\n");
        put("Zoo", "9 8 7 Zebra\n90 80 70 first\n");
        chooseNamingList(u"Paints");
    }
    void put(const std::string& name, const std::string& rows)
    {
        ASSERT_TRUE(_files.writeAtomically(appFolder + "/Palettes/" + name + ".gpl",
                                           "GIMP Palette\nName: " + name + "\n" + rows));
    }
    void chooseNamingList(const std::u16string& name)
    {
        QTXHexSettings settings;
        settings.setHexColorList(name);
        SettingsMerge merge;
        readDefaults(_files, settings, merge);
        settings.setHexColorList(name);
        writeDefaults(_files, settings, merge);
    }
    /// "name (list)", or "~name (list)" for the nearest one.
    std::string nameOf(const HostColor& color)
    {
        const auto name = _names.nameOf(color);
        if (!name) return "none";
        return (name->isExact ? "" : "~") + utf8FromUtf16(name->name) + " (" +
               utf8FromUtf16(name->list) + ")";
    }
    std::optional<HostColor> colorNamed(std::u16string_view name)
    {
        return _names.colorNamed(name, ColorNames::Reach::allLists);
    }

    ReadingFiles _files;
    PaletteFileStore _store{_files};
    ColorNames _names{_files, _store, _store};
};

TEST_F(ColorNamesTest, TheNearestNameCountsOfEqualsThatOfTheNamingList)
{
    EXPECT_EQ(nameOf(bytes(255, 128, 0)), "Amber (Paints)");
    EXPECT_EQ(nameOf(bytes(0, 0, 128)), "Ink (Paints)") << "navy of CSS comes second";
    EXPECT_EQ(nameOf(bytes(10, 20, 30)), "Coal (Paints)") << "the first of equals";
    EXPECT_EQ(nameOf(bytes(255, 127, 80)), "coral (CSS Color 4)");
    EXPECT_EQ(nameOf(bytes(255, 127, 81)), "~coral (CSS Color 4)");
    EXPECT_EQ(nameOf(bytes(255, 129, 0)), "~Amber (Paints)");
    EXPECT_EQ(nameOf(bytes(0, 0, 127)), "~Ink (Paints)") << "navy is as near";
    EXPECT_EQ(nameOf(bytes(255, 128, 0, 0.5)), "Amber (Paints)") << "whatever the opacity";
}

TEST_F(ColorNamesTest, ColoursAreTheSameIfTheirCodesAre)
{
    EXPECT_EQ(nameOf(HostColor::colorWithCalibratedRed(1, 0.5, 0.001, 1)), "Amber (Paints)");
    EXPECT_EQ(nameOf(HostColor::colorWithCalibratedRed(1, 0.499, 0, 1)), "~Amber (Paints)");
}

TEST_F(ColorNamesTest, WithoutANamingListCSSNamesAlone)
{
    for (const char16_t* missing : {u"No such list", u"Empty"}) {
        put("Empty", "");
        chooseNamingList(missing);
        EXPECT_EQ(nameOf(bytes(0, 0, 128)), "navy (CSS Color 4)");
        EXPECT_EQ(nameOf(bytes(0, 0, 127)), "~navy (CSS Color 4)");
    }
}

TEST_F(ColorNamesTest, NamesFollowTheSettingsAndTheLists)
{
    EXPECT_EQ(nameOf(bytes(1, 2, 3)), "~black (CSS Color 4)");
    chooseNamingList(u"Brand");
    EXPECT_EQ(nameOf(bytes(1, 2, 3)), "ink (Brand)");
    put("Brand", "1 2 3 Renamed\n");
    EXPECT_EQ(nameOf(bytes(1, 2, 3)), "Renamed (Brand)");
    _files.remove(appFolder + "/Settings.plist");
    EXPECT_EQ(nameOf(bytes(0, 0, 127)), "~navy (CSS Color 4)") << "the default list is missing";
}

TEST_F(ColorNamesTest, HostileColoursHaveAName)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(nameOf(HostColor::colorWithCalibratedRed(nan, nan, nan, nan)), "black (CSS Color 4)");
    EXPECT_EQ(nameOf(HostColor::colorWithCalibratedRed(9, -1, -1, 1)), "red (CSS Color 4)");
    EXPECT_EQ(nameOf(HostColor::patternColor()), "none");
}

TEST_F(ColorNamesTest, NothingIsReadAsLongAsNothingChanges)
{
    static_cast<void>(nameOf(bytes(1, 2, 3)));
    const int before = _files.count();
    EXPECT_GT(before, 0);
    for (int i = 0; i < 100; ++i)
        static_cast<void>(nameOf(bytes(i, 2, 3)));
    EXPECT_EQ(_files.count(), before);
}

TEST_F(ColorNamesTest, TheListsAreSearchedInTheirOrder)
{
    EXPECT_EQ(colorNamed(u"Ink"), bytes(0, 0, 128));
    EXPECT_EQ(colorNamed(u"red"), bytes(255, 0, 0)) << "CSS is before lists that are not in use";
    EXPECT_EQ(colorNamed(u"first"), bytes(1, 2, 3)) << "the other lists in the order of names";
    EXPECT_EQ(colorNamed(u"zebra"), bytes(9, 8, 7));

    _names.setListInUse([] { return u"Brand"; });
    EXPECT_EQ(colorNamed(u"red"), bytes(200, 0, 0));
    EXPECT_EQ(colorNamed(u"ink"), bytes(0, 0, 128)) << "the naming list is still first";
    _names.setListInUse([] { return u"Zoo"; });
    EXPECT_EQ(colorNamed(u"first"), bytes(90, 80, 70));
    EXPECT_EQ(colorNamed(u"First"), bytes(90, 80, 70));
}

TEST_F(ColorNamesTest, LetterCaseAndSurroundingSpacesDoNotCount)
{
    put("Cases", "1 1 1 twin\n2 2 2 Twin\n3 3 3 Brick Red\n");
    chooseNamingList(u"Cases");
    EXPECT_EQ(colorNamed(u"Twin"), bytes(2, 2, 2));
    EXPECT_EQ(colorNamed(u"TWIN"), bytes(1, 1, 1));
    EXPECT_EQ(colorNamed(u"\t brick RED  "), bytes(3, 3, 3));
    EXPECT_EQ(colorNamed(u"ReBeCCaPurple"), bytes(0x66, 0x33, 0x99));
    EXPECT_EQ(colorNamed(u"brick"), std::nullopt);
    EXPECT_EQ(colorNamed(u" "), std::nullopt);
}

TEST_F(ColorNamesTest, OnlyASearchOfAllListsReadsThem)
{
    EXPECT_EQ(_names.colorNamed(u"Zebra", ColorNames::Reach::chosenLists), std::nullopt);
    EXPECT_EQ(_names.colorNamed(u"navy", ColorNames::Reach::chosenLists), bytes(0, 0, 128));
    EXPECT_EQ(colorNamed(std::u16string(100000, u'z')), std::nullopt);
    EXPECT_EQ(colorNamed(u"Zebra"), bytes(9, 8, 7));
}

TEST_F(ColorNamesTest, NamesOfOtherScriptsAreFoundInAllLists)
{
    put("Farben", "1 1 1 Gr\xC3\xBCn\n");
    EXPECT_EQ(colorNamed(u"Gr\u00FCn"), bytes(1, 1, 1));
    EXPECT_EQ(colorNamed(u"gr\u00FCn"), bytes(1, 1, 1));
}

TEST_F(ColorNamesTest, TheChosenListsAreEachGivenOnce)
{
    const auto namesOfLists = [this] {
        std::vector<std::u16string> names;
        for (const auto& list : _names.chosenLists())
            names.push_back(list->name());
        return names;
    };
    using Lists = std::vector<std::u16string>;
    EXPECT_EQ(namesOfLists(), Lists{u"Paints"});
    _names.setListInUse([] { return u"Paints"; });
    EXPECT_EQ(namesOfLists(), Lists{u"Paints"});
    _names.setListInUse([] { return u"Brand"; });
    EXPECT_EQ(namesOfLists(), (Lists{u"Paints", u"Brand"}));
    _names.setListInUse([] { return u"Gone"; });
    EXPECT_EQ(namesOfLists(), Lists{u"Paints"});
}

}  // namespace
}  // namespace vantorel
