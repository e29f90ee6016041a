#include "picker/InterfaceFile.h"

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <random>
#include <set>
#include <string>

namespace vantorel {
namespace {

std::string fileText()
{
    std::ifstream file(VANTOREL_INTERFACE_FILE, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void visit(const std::vector<InterfaceItem>& items,
           const std::function<void(const InterfaceItem&)>& visitor)
{
    for (const InterfaceItem& item : items) {
        visitor(item);
        visit(item.subviews, visitor);
    }
}

TEST(InterfaceFileTest, TheShippedFileIsValid)
{
    const auto items = parseInterfaceFile(fileText());
    ASSERT_TRUE(items.has_value());
    EXPECT_EQ(items->size(), 2U);
    visit(*items, [](const InterfaceItem& item) {
        const auto& description = item.description;
        EXPECT_FALSE(description.accessibleName.empty()) << description.identifier;
        const bool operated = item.kind != InterfaceItem::Kind::view &&
                              description.identifier.find("Label") == std::string::npos &&
                              item.kind != InterfaceItem::Kind::settingsView;
        const bool component = description.identifier.find("HexText") != std::string::npos;
        const bool readout = description.identifier == "_cursorReadoutText";
        // The component fields get their tips from the colour.
        if (operated && !component && !readout) {
            EXPECT_FALSE(description.toolTip.empty()) << description.identifier;
        }
    });
}

TEST(InterfaceFileTest, FieldsForEntriesAreEditable)
{
    const auto items = parseInterfaceFile(fileText());
    ASSERT_TRUE(items.has_value());
    std::set<std::string> editable;
    visit(*items, [&](const InterfaceItem& item) {
        if (item.description.editable) editable.insert(item.description.identifier);
    });
    // The line of code is read only, but its text can be selected.
    EXPECT_EQ(editable, (std::set<std::string>{"_fullHexText", "_rgbDecimalText", "_redHexText",
                                               "_greenHexText", "_blueHexText", "_objCCodeText"}));
}

TEST(InterfaceFileTest, EachKeyAndClassHasItsEffect)
{
    const auto items = parseInterfaceFile(
        "{Version = 1; Views = ("
        "{Name = a; Class = TextField; Frame = \"{{1, 2}, {3, 4}}\"; ReadOnly = YES; "
        "Title = t; ToolTip = tip; AccessibleName = n; Action = act; Alignment = Right; },"
        "{Name = b; Class = Label; Frame = \"{{0, 0}, {0, 0}}\"; Monospaced = YES; "
        "FontSize = 9; Resizing = (Width, TopMargin); },"
        "{Name = c; Class = CheckBox; Frame = \"{{0, 0}, {1, 1}}\"; Image = i; Title = (a); },"
        "{Name = d; Class = ToggleButton; Frame = \"{{0, 0}, {1, 1}}\"; },"
        "{Name = e; Class = Button; Frame = \"{{0, 0}, {1, 1}}\"; ReadOnly = NO; })}");
    ASSERT_TRUE(items.has_value());
    ASSERT_EQ(items->size(), 5U);
    const auto described = [&](std::size_t i) { return (*items)[i].description; };
    using Description = HostControlDescription;
    EXPECT_EQ(described(0).frame, (HostRect{1, 2, 3, 4}));
    EXPECT_TRUE(described(0).readOnly);
    EXPECT_TRUE(described(0).editable);
    EXPECT_FALSE(described(0).monospaced);
    EXPECT_EQ(described(0).title, u"t");
    EXPECT_EQ(described(0).toolTip, u"tip");
    EXPECT_EQ(described(0).accessibleName, u"n");
    EXPECT_EQ(described(0).alignment, Description::Alignment::right);
    EXPECT_EQ((*items)[0].action, "act");
    EXPECT_FALSE(described(1).readOnly);
    EXPECT_FALSE(described(1).editable);
    EXPECT_TRUE(described(1).monospaced);
    EXPECT_EQ(described(1).pointSize, 9);
    EXPECT_EQ(described(1).resizing, (HostResizing{.width = true, .topMargin = true}));
    EXPECT_EQ(described(2).buttonKind, Description::ButtonKind::checkBox);
    EXPECT_EQ((*items)[2].image, "i");
    EXPECT_EQ(described(2).title, u"") << "an array is not a text";
    EXPECT_EQ(described(3).buttonKind, Description::ButtonKind::toggle);
    EXPECT_EQ(described(4).buttonKind, Description::ButtonKind::push);
    EXPECT_FALSE(described(4).readOnly);
    EXPECT_EQ(described(4).resizing, HostResizing{});
}

struct BrokenRow {
    const char* name;
    const char* text;
};

void PrintTo(const BrokenRow& row, std::ostream* out)
{
    *out << row.name;
}

class BrokenInterfaceTest : public testing::TestWithParam<BrokenRow> {};

TEST_P(BrokenInterfaceTest, IsRejected)
{
    EXPECT_FALSE(parseInterfaceFile(GetParam().text).has_value()) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Files, BrokenInterfaceTest,
    testing::Values(
        BrokenRow{"empty", ""}, BrokenRow{"not a dictionary", "(a)"},
        BrokenRow{"no version", "{Views=();}"},
        BrokenRow{"another version", "{Version=2;Views=();}"},
        BrokenRow{"no views", "{Version=1;}"}, BrokenRow{"views as text", "{Version=1;Views=a;}"},
        BrokenRow{"a view as text", "{Version=1;Views=(a);}"},
        BrokenRow{"subviews as text",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";Subviews=b;});}"},
        BrokenRow{"a subview as text",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";Subviews=(b);});}"},
        BrokenRow{"no name", "{Version=1;Views=({Class=View;Frame=\"{{0,0},{1,1}}\";});}"},
        BrokenRow{"unknown class",
                  "{Version=1;Views=({Name=a;Class=Knob;Frame=\"{{0,0},{1,1}}\";});}"},
        BrokenRow{"no frame", "{Version=1;Views=({Name=a;Class=View;});}"},
        BrokenRow{"bad frame", "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1}}\";});}"},
        BrokenRow{"infinite frame",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,inf},{1,1}}\";});}"},
        BrokenRow{"negative size",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{-1,1}}\";});}"},
        BrokenRow{"duplicate name",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";},{Name=a;Class="
                  "View;Frame=\"{{0,0},{1,1}}\";});}"},
        BrokenRow{"bad rule",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";Resizing=(Sideways)"
                  ";});}"},
        BrokenRow{"a rule as text",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";Resizing=Width;});"
                  "}"},
        BrokenRow{"a rule in parentheses",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";Resizing=((Width))"
                  ";});}"},
        BrokenRow{"bad alignment",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";Alignment=Middle;}"
                  ");}"},
        BrokenRow{"font size with a unit",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";FontSize=9pt;});}"},
        BrokenRow{"bad font size",
                  "{Version=1;Views=({Name=a;Class=View;Frame=\"{{0,0},{1,1}}\";FontSize=big;});}"},
        BrokenRow{"not UTF-8", "{Version=1;Views=();}\xFF"}));

TEST(InterfaceFileTest, FramesAndFontSizesHaveLimits)
{
    const auto isRead = [](const std::string& frame, const std::string& fontSize) {
        return parseInterfaceFile("{Version=1;Views=({Name=a;Class=View;Frame=\"" + frame +
                                  "\";FontSize=\"" + fontSize + "\";});}")
            .has_value();
    };
    EXPECT_TRUE(isRead("{{-100000, 100000}, {100000, 0}}", "200"));
    EXPECT_FALSE(isRead("{{-100000.5, 0}, {1, 1}}", "12"));
    EXPECT_FALSE(isRead("{{0, 0}, {1, 100000.5}}", "12"));
    EXPECT_FALSE(isRead("{{0, 0}, {1, -0.5}}", "12"));
    EXPECT_FALSE(isRead("{{0, 0}, {1, 1}}x", "12"));
    EXPECT_FALSE(isRead("{{0, 0}, {1, 1}}", "200.5"));
    EXPECT_FALSE(isRead("{{0, 0}, {1, 1}}", "0"));
    EXPECT_FALSE(isRead("{{0, 0}, {1, 1}}", "12pt"));
    EXPECT_TRUE(isRead("{{0, 0}, {1, 1}}", "0.5"));
    EXPECT_TRUE(isRead("{{0, 0}, {0, 0}}", "12"));
}

TEST(InterfaceFileTest, DamagedFilesAreReadWithoutCrashing)
{
    const std::string good = fileText();
    std::mt19937 random(4);
    for (int round = 0; round < 2000; ++round) {
        std::string damaged = good;
        for (int i = 0; i < 3; ++i)
            damaged[random() % damaged.size()] = static_cast<char>(random());
        static_cast<void>(parseInterfaceFile(damaged));
        static_cast<void>(parseInterfaceFile(good.substr(0, random() % good.size())));
    }
}

}  // namespace
}  // namespace vantorel
