#include "dialogswitch/XSettings.h"

#include <gtest/gtest.h>

#include <string>

namespace vantorel {
namespace {

using namespace std::string_literals;

/// A number, a colour and a text.
const std::string littleEndian =
    "\0\0\0\0\7\0\0\0\3\0\0\0"
    "\0\0\7\0Net/One\0\0\0\0\0\1\0\0\0"
    "\2\0\1\0C\0\0\0\0\0\0\0\1\1\2\2\3\3\4\4"
    "\1\0\13\0Gtk/Modules\0\0\0\0\0\3\0\0\0a:b\0"s;

const std::string bigEndian =
    "\1\0\0\0\0\0\0\7\0\0\0\1"
    "\1\0\0\13Gtk/Modules\0\0\0\0\0\0\0\0\1a\0\0\0"s;

TEST(XSettingsTest, FindsANameAmongSettingsOfAllTypes)
{
    EXPECT_TRUE(hasXSetting(littleEndian, "Gtk/Modules"));
    EXPECT_TRUE(hasXSetting(littleEndian, "Net/One"));
    EXPECT_TRUE(hasXSetting(littleEndian, "C"));
    EXPECT_FALSE(hasXSetting(littleEndian, "Gtk/Module"));
    EXPECT_FALSE(hasXSetting(littleEndian, "a:b"));
}

TEST(XSettingsTest, ReadsBothByteOrders)
{
    EXPECT_TRUE(hasXSetting(bigEndian, "Gtk/Modules"));
    EXPECT_FALSE(hasXSetting(bigEndian, "a"));
}

TEST(XSettingsTest, PropertiesThatAreCutOffHaveNoSettingAfterTheCut)
{
    const std::size_t start = littleEndian.find("Gtk/Modules");
    for (std::size_t length = 0; length < start + 11; ++length)
        EXPECT_FALSE(hasXSetting(littleEndian.substr(0, length), "Gtk/Modules")) << length;
}

TEST(XSettingsTest, BrokenPropertiesHaveNoSetting)
{
    std::string unknownType = littleEndian;
    unknownType[12] = '\7';
    EXPECT_FALSE(hasXSetting(unknownType, "Gtk/Modules"));

    std::string endlessText = bigEndian;
    endlessText[12 + 2] = '\xFF';
    EXPECT_FALSE(hasXSetting(endlessText, "Gtk/Modules"));

    std::string manySettings = "\0\0\0\0\0\0\0\0\xFF\xFF\xFF\xFF"s;
    EXPECT_FALSE(hasXSetting(manySettings, "Gtk/Modules"));
    EXPECT_FALSE(hasXSetting("", ""));
}

}  // namespace
}  // namespace vantorel
