#include "dialogswitch/DialogSwitch.h"

#include "ScopedEnvironment.h"
#include "dialogswitch/SessionEnvironment.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

namespace vantorel {
namespace {

namespace fs = std::filesystem;

/// All files, folders and links below a folder, with their contents and targets.
using Contents = std::map<std::string, std::string>;

class DialogSwitchTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::string path = (fs::temp_directory_path() / "vantorel-test-XXXXXX").string();
        ASSERT_NE(::mkdtemp(path.data()), nullptr);
        _folder = path;
        for (const char* folder :
             {"installed/qt/generic", "installed/gtk3/modules", "installed/gimp/2.10",
              "installed/gimp/3.0", "home/data", "home/config"}) {
            fs::create_directories(_folder / folder);
        }
        for (const char* loader : {"qt/generic/vantorel-qt5.so", "qt/generic/vantorel-qt6.so",
                                   "gtk3/modules/libvantorel.so", "gimp/2.10/libvantorel.so"}) {
            write("installed/" + std::string(loader), loader);
        }
        // Not those of the session in which the tests run.
        for (const char* variable :
             {"QT_PLUGIN_PATH", "QT_QPA_GENERIC_PLUGINS", "GTK_MODULES", "DISPLAY"}) {
            _environment.set(variable, std::nullopt);
        }
        _places = {.installed = path + "/installed",
                   .data = path + "/home/data",
                   .config = path + "/home/config",
                   .sessionScript = path + "/home/.xsessionrc"};
    }
    void TearDown() override { fs::remove_all(_folder); }

    void write(const std::string& name, const std::string& text) const
    {
        fs::create_directories((_folder / name).parent_path());
        std::ofstream(_folder / name) << text;
    }
    [[nodiscard]] std::string read(const std::string& name) const
    {
        std::ifstream file(_folder / name);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] bool exists(const std::string& name) const
    {
        return fs::exists(fs::symlink_status(_folder / name));
    }
    [[nodiscard]] Contents home() const
    {
        Contents contents;
        for (const auto& entry : fs::recursive_directory_iterator(_folder / "home")) {
            std::string& content = contents[entry.path().lexically_relative(_folder).string()];
            if (entry.is_symlink()) {
                content = "-> " + fs::read_symlink(entry).string();
            } else if (entry.is_regular_file()) {
                content = read(entry.path().lexically_relative(_folder).string());
            }
        }
        return contents;
    }

    [[nodiscard]] Status turn(const std::vector<DialogPrograms>& programs, bool on)
    {
        return turnDialogs(_files, _places, programs, on);
    }
    void turnOn(const std::vector<DialogPrograms>& programs)
    {
        const Status status = turn(programs, true);
        ASSERT_TRUE(status) << english(status.error());
    }
    void turnOff(const std::vector<DialogPrograms>& programs)
    {
        const Status status = turn(programs, false);
        ASSERT_TRUE(status) << english(status.error());
    }
    [[nodiscard]] DialogSwitchState state(DialogPrograms programs)
    {
        return DialogSwitch::create(programs, _files, _places)->state();
    }
    [[nodiscard]] std::string copyOf(const std::string& path) const
    {
        return _places.data + "/Vantorel/Dialogs/" + path;
    }

    static constexpr auto qt = DialogPrograms::qt;
    static constexpr auto gtk = DialogPrograms::gtk;
    static constexpr auto gimp = DialogPrograms::gimp;
    const std::vector<DialogPrograms> all{qt, gtk, gimp};

    fs::path _folder;
    DialogSwitchPlaces _places;
    PosixFiles _files{"/nowhere"};
    ScopedEnvironment _environment;
};

TEST_F(DialogSwitchTest, TurningOffLeavesTheHomeAsItWas)
{
    fs::create_directories(_folder / "home/config/GIMP/2.10");
    const Contents before = home();
    turnOn(all);
    EXPECT_EQ(state(qt), DialogSwitchState::onAfterLogin);
    EXPECT_EQ(state(gtk), DialogSwitchState::on);
    EXPECT_EQ(state(gimp), DialogSwitchState::on);
    turnOff(all);
    EXPECT_EQ(home(), before);
    EXPECT_EQ(state(qt), DialogSwitchState::off);
    EXPECT_EQ(state(gtk), DialogSwitchState::off);
    EXPECT_EQ(state(gimp), DialogSwitchState::off);
}

TEST_F(DialogSwitchTest, FilesOfOthersGetTheirBytesBack)
{
    write("home/config/gtk-3.0/settings.ini", "[Settings]\r\ngtk-modules= a : b");
    write("home/config/environment.d/10-mine.conf", "A=1\n");
    write("home/.xsessionrc", "echo no line feed");
    write("home/config/GIMP/2.10/modules/other.so", "other");
    const Contents before = home();
    for (const auto& order : {std::vector{qt, gtk, gimp}, std::vector{gimp, gtk, qt}}) {
        turnOn(all);
        for (const DialogPrograms which : order)
            turnOff({which});
        EXPECT_EQ(home(), before);
    }
}

TEST_F(DialogSwitchTest, EachChangeCanBeRepeated)
{
    fs::create_directories(_folder / "home/config/GIMP/2.10");
    const Contents before = home();
    turnOn(all);
    const Contents on = home();
    turnOn(all);
    EXPECT_EQ(home(), on);
    turnOff(all);
    turnOff(all);
    EXPECT_EQ(home(), before);
}

TEST_F(DialogSwitchTest, WhatOthersChangeMeanwhileStays)
{
    write("home/config/gtk-3.0/settings.ini", "[Settings]\na=1\n");
    write("home/.xsessionrc", "b\n");
    turnOn({gtk});
    write("home/config/gtk-3.0/settings.ini", read("home/config/gtk-3.0/settings.ini") + "new=1\n");
    write("home/.xsessionrc", read("home/.xsessionrc") + "new\n");
    write("home/config/environment.d/other.conf", "new");
    turnOff({gtk});
    EXPECT_EQ(read("home/config/gtk-3.0/settings.ini"), "[Settings]\na=1\nnew=1\n");
    EXPECT_EQ(read("home/.xsessionrc"), "b\nnew\n");
    EXPECT_EQ(read("home/config/environment.d/other.conf"), "new");
    EXPECT_FALSE(exists("home/data/Vantorel"));
}

TEST_F(DialogSwitchTest, NothingIsLeftWhenTheRecordsAreLost)
{
    turnOn({qt, gtk});
    for (const char* record : {"qt/environment.after", "gtk/environment.after",
                               "gtk/settings.ini.after", "session-script.after"}) {
        ASSERT_TRUE(fs::remove(copyOf(record))) << record;
    }
    turnOff(all);
    EXPECT_FALSE(exists("home/config/environment.d/60-vantorel-qt.conf"));
    EXPECT_FALSE(exists("home/.xsessionrc"));
    EXPECT_EQ(read("home/config/gtk-3.0/settings.ini"), "[Settings]\n");
}

TEST_F(DialogSwitchTest, ASwitchThatIsOffLeavesTheOthersOn)
{
    turnOn({qt, gtk});
    turnOff({qt});
    EXPECT_EQ(state(qt), DialogSwitchState::off);
    EXPECT_EQ(state(gtk), DialogSwitchState::on);
    EXPECT_TRUE(exists("home/.xsessionrc"));
    EXPECT_FALSE(exists("home/config/environment.d/60-vantorel-qt.conf"));
    EXPECT_TRUE(exists("home/config/environment.d/60-vantorel-gtk.conf"));
}

TEST_F(DialogSwitchTest, WithoutASessionScriptNoneIsWritten)
{
    _places.sessionScript.reset();
    turnOn({qt});
    EXPECT_FALSE(exists("home/.xsessionrc"));
    turnOff({qt});
    EXPECT_FALSE(exists("home/data/Vantorel"));
}

TEST_F(DialogSwitchTest, TheCopiesAreThoseOfTheInstalledLoaders)
{
    turnOn({qt});
    const std::string copy = "home/data/Vantorel/Dialogs/qt/qt/generic/vantorel-qt6.so";
    EXPECT_EQ(read(copy), "qt/generic/vantorel-qt6.so");
    EXPECT_EQ(fs::read_symlink(copyOf("qt/pickers")), _places.installed + "/pickers");
    EXPECT_EQ(fs::read_symlink(copyOf("qt/dialogs")), _places.installed + "/dialogs");

    write("installed/qt/generic/vantorel-qt6.so", "newer");
    EXPECT_EQ(state(qt), DialogSwitchState::onForOtherVersion);
    turnOn({qt});
    EXPECT_EQ(read(copy), "newer");

    fs::remove(_folder / "installed/qt/generic/vantorel-qt6.so");
    EXPECT_EQ(state(qt), DialogSwitchState::onForOtherVersion);
    turnOn({qt});
    EXPECT_FALSE(exists(copy));
    EXPECT_EQ(state(qt), DialogSwitchState::onAfterLogin);
}

TEST_F(DialogSwitchTest, ASessionThatHasTheVariablesShowsThePageAtOnce)
{
    turnOn({qt});
    _environment.set("QT_PLUGIN_PATH", "/other:" + copyOf("qt/qt"));
    EXPECT_EQ(state(qt), DialogSwitchState::onAfterLogin);
    _environment.set("QT_QPA_GENERIC_PLUGINS", "vantorel,other");
    EXPECT_EQ(state(qt), DialogSwitchState::on);
}

TEST_F(DialogSwitchTest, ASessionThatAsksForALoaderKeepsAnEmptyOne)
{
    turnOn({gtk});
    const std::string loader = "gtk/gtk3/modules/libvantorel.so";
    _environment.set("GTK_MODULES", copyOf(loader));
    turnOff({gtk});
    EXPECT_EQ(state(gtk), DialogSwitchState::offWithRest);
    EXPECT_TRUE(fs::exists(copyOf(loader)));
    EXPECT_FALSE(fs::exists(fs::symlink_status(copyOf("gtk/pickers"))));
    EXPECT_FALSE(exists("home/config/environment.d"));
    turnOn({gtk});
    EXPECT_EQ(state(gtk), DialogSwitchState::on);
    turnOff({gtk});
    _environment.set("GTK_MODULES", std::nullopt);
    turnOff({gtk});
    EXPECT_FALSE(exists("home/data/Vantorel"));
}

TEST_F(DialogSwitchTest, VersionsOfGimpThatWereNeverStartedGetNoFolder)
{
    EXPECT_EQ(state(gimp), DialogSwitchState::waitsForFirstStart);
    const Contents before = home();
    const Status status = turn({gimp}, true);
    ASSERT_FALSE(status);
    EXPECT_EQ(english(status.error()),
              "GIMP has no folder for your modules; start GIMP once to create it");
    EXPECT_EQ(home(), before);

    fs::create_directories(_folder / "home/config/GIMP/2.10");
    turnOn({gimp});
    EXPECT_EQ(fs::read_symlink(_folder / "home/config/GIMP/2.10/modules/libvantorel.so"),
              copyOf("gimp/gimp/2.10/libvantorel.so"));
    EXPECT_FALSE(exists("home/config/GIMP/3.0"));

    // A new version of GIMP has been started.
    write("installed/gimp/3.0/libvantorel.so", "for 3");
    turnOn({gimp});
    fs::create_directories(_folder / "home/config/GIMP/3.0/modules");
    EXPECT_EQ(state(gimp), DialogSwitchState::onForOtherVersion);
    turnOn({gimp});
    EXPECT_EQ(state(gimp), DialogSwitchState::on);
    EXPECT_EQ(read("home/config/GIMP/3.0/modules/libvantorel.so"), "for 3");
}

TEST_F(DialogSwitchTest, AModuleOfTheUsersOwnIsNotReplaced)
{
    write("home/config/GIMP/2.10/modules/libvantorel.so", "mine");
    EXPECT_FALSE(turn({gimp}, true));
    EXPECT_EQ(read("home/config/GIMP/2.10/modules/libvantorel.so"), "mine");
    turnOff({gimp});
    EXPECT_EQ(read("home/config/GIMP/2.10/modules/libvantorel.so"), "mine");
}

TEST_F(DialogSwitchTest, WhatIsNotInstalledCannotBeTurnedOn)
{
    fs::remove_all(_folder / "installed/qt");
    EXPECT_EQ(state(qt), DialogSwitchState::notInstalled);
    const Contents before = home();
    const Status status = turn({qt}, true);
    ASSERT_FALSE(status);
    EXPECT_EQ(english(status.error()),
              "the page for Qt is not installed; install the package for it");
    EXPECT_EQ(home(), before);
}

TEST_F(DialogSwitchTest, WhatHasBeenRemovedFromTheMachineCanBeTurnedOff)
{
    const Contents before = home();
    turnOn({qt, gtk});
    fs::remove_all(_folder / "installed");
    EXPECT_EQ(state(qt), DialogSwitchState::onForOtherVersion);
    turnOff(all);
    EXPECT_EQ(home(), before);
    EXPECT_EQ(state(qt), DialogSwitchState::notInstalled);
}

TEST_F(DialogSwitchTest, ASettingsFileBehindALinkStaysThere)
{
    write("home/dotfiles/settings.ini", "[Settings]\n");
    fs::create_directories(_folder / "home/config/gtk-3.0");
    fs::create_symlink("../../dotfiles/settings.ini", _folder / "home/config/gtk-3.0/settings.ini");
    const Contents before = home();
    turnOn({gtk});
    EXPECT_NE(read("home/dotfiles/settings.ini"), "[Settings]\n");
    turnOff({gtk});
    EXPECT_EQ(home(), before);
}

TEST_F(DialogSwitchTest, AnUnreadableFileIsNotReplaced)
{
    fs::create_directories(_folder / "home/config/gtk-3.0/settings.ini");
    EXPECT_FALSE(turn({gtk}, true));
    EXPECT_TRUE(fs::is_directory(_folder / "home/config/gtk-3.0/settings.ini"));
    // What was done before the error is taken back.
    EXPECT_FALSE(exists("home/data/Vantorel"));
    EXPECT_FALSE(exists("home/.xsessionrc"));
}

TEST_F(DialogSwitchTest, PathsThatNoListOfPathsCanHaveAreRefused)
{
    _places.data = (_folder / "home/a:b").string();
    fs::create_directories(_places.data);
    const Contents before = home();
    const Status status = turn({qt}, true);
    ASSERT_FALSE(status);
    EXPECT_NE(english(status.error()).find("a:b"), std::string::npos);
    EXPECT_EQ(home(), before);
}

TEST(SessionEnvironmentTest, ValuesOfOthersFollow)
{
    EXPECT_EQ(environmentFile({{"A", "x", ':'}, {"B", "y", ','}}),
              "# Written by \"vantorel dialogs --on\"; \"vantorel dialogs --off\" removes this "
              "file.\n"
              "A=\"x${A:+:$A}\"\n"
              "B=\"y${B:+,$B}\"\n");
}

TEST(SessionEnvironmentTest, OnlyPathsWithoutSpecialCharactersAreUsed)
{
    EXPECT_TRUE(checkForEnvironment("/home/Zoë Smith/.local"));
    for (const char c : {':', '"', '\'', '\\', '$', '`', '\n'})
        EXPECT_FALSE(checkForEnvironment(std::string("/home/") + c)) << c;
}

}  // namespace
}  // namespace vantorel
