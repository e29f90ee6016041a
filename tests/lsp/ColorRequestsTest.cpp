#include "ServerFixture.h"

#include <gmock/gmock.h>

namespace vantorel {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ColorRequestsTest : public LanguageServerTest {
protected:
    /// The labels of the presentations of a colour.
    std::vector<std::string> labels(const Json& where, double red, double green, double blue,
                                    double alpha = 1)
    {
        const Json color = {{"red", red}, {"green", green}, {"blue", blue}, {"alpha", alpha}};
        std::vector<std::string> labels;
        for (const Json& each : result("textDocument/colorPresentation",
                                       about({{"range", where}, {"color", color}}))) {
            EXPECT_EQ(each["textEdit"]["newText"], each["label"]);
            EXPECT_EQ(each["textEdit"]["range"], where);
            labels.push_back(each["label"]);
        }
        return labels;
    }
    std::string hoverAt(std::size_t character)
    {
        return result("textDocument/hover", about({{"position", position(0, character)}}))
            .value("/contents/value"_json_pointer, "");
    }
    std::vector<std::string> completionsAt(std::size_t character)
    {
        std::vector<std::string> texts;
        const Json list =
            result("textDocument/completion", about({{"position", position(0, character)}}));
        for (const Json& item : list["items"])
            texts.push_back(item["label"].get<std::string>() + " " +
                            item["textEdit"]["newText"].get<std::string>());
        return texts;
    }
};

TEST_F(ColorRequestsTest, TheFormThatAColourHadIsFirst)
{
    initialize();
    const std::tuple<const char*, const char*> forms[] = {
        {"#123456", "#FF8000"},
        {"tan", "#FF8000"},
        {"rgb(1, 2, 3)", "rgb(255, 128, 0)"},
        {"rgb(1 2 3)", "rgb(255 128 0)"},
        {"hsl(1, 2%, 3%)", "hsl(30.12, 100%, 50%)"},
        {"hwb(1 2% 3%)", "hwb(30.12 0% 0%)"},
        {"oklch(0.5 0.1 20)", "oklch(73.189% 0.1858 52.985)"},
        {"color(srgb 1 1 1)", "color(srgb 1 0.50196 0)"},
        {"color(display-p3 1 1 1)", "color(display-p3 0.93612 0.52902 0.19873)"},
    };
    for (const auto& [written, expected] : forms) {
        open("css", "a{color:" + std::string(written) + "}");
        const std::size_t end = 8 + std::string_view(written).size();
        EXPECT_EQ(labels(range(0, 8, end), 1, 0.50196, 0).at(0), expected) << written;
    }
}

TEST_F(ColorRequestsTest, ShortCodesStayShortAndUnchangedColoursStay)
{
    initialize();
    open("css", "a{color:#ABC;fill:OKLCH(none 0 0);top:var(--x, tan)}");
    EXPECT_EQ(labels(range(0, 8, 12), 1, 0, 0.53333).at(0), "#F08");
    EXPECT_EQ(labels(range(0, 8, 12), 1, 0, 0.5).at(0), "#FF0080");
    EXPECT_EQ(labels(range(0, 8, 12), 0.66667, 0.73333, 0.8).at(0), "#ABC");
    EXPECT_EQ(labels(range(0, 18, 33), 0, 0, 0).at(0), "OKLCH(none 0 0)");
    EXPECT_EQ(labels(range(0, 38, 51), 0.82353, 0.70588, 0.54902).at(0), "var(--x, tan)");
    EXPECT_EQ(labels(range(0, 38, 51), 1, 0, 0).at(0), "#FF0000");
}

TEST_F(ColorRequestsTest, TheOtherFormsAndTheSnippetsFollow)
{
    initialize();
    user.theSettings.setCodeSnippets({{{u"Mine", u"C(%d, %d, %d)", u"rgbFixed"}}});
    open("css", "a{color:#123456}");
    EXPECT_THAT(labels(range(0, 8, 15), 1, 0, 0),
                ElementsAre("#FF0000", "rgb(255, 0, 0)", "hsl(0 100% 50%)", "hwb(0 0% 0%)",
                            "oklch(62.796% 0.25768 29.234)", "oklab(62.796% 0.22486 0.12585)",
                            "lch(54.291 106.837 40.858)", "lab(54.291 80.805 69.891)",
                            "color(display-p3 0.91749 0.20029 0.13856)", "red", "C(255, 0, 0)"));
}

TEST_F(ColorRequestsTest, LettersAndThePoundSignAreThoseOfTheSettings)
{
    initialize();
    user.theSettings.setEntryForm(EntryForm::lowercase);
    user.theSettings.setUsePoundSign(false);
    open("css", "a{color:#123456}");
    EXPECT_EQ(labels(range(0, 8, 15), 1, 0.8, 0).at(0), "#ffcc00");
    open("python", "a = 0xFF8800, 'rgb(1 2 3)'");
    EXPECT_THAT(labels(range(0, 4, 12), 1, 0.8, 0), Contains("0xffcc00"));
    EXPECT_THAT(labels(range(0, 15, 25), 1, 0.8, 0), Contains("ffcc00"));
}

TEST_F(ColorRequestsTest, NumbersAndLinesOfSnippetsStayWhatTheyAre)
{
    initialize();
    user.theSettings.setCodeSnippets({{{u"Mine", u"C(%d, %d, %d)", u"rgbFixed"}}});
    open("cpp", "0xFF8800 0xFFFF8800 C(1, 2, 3)");
    EXPECT_EQ(labels(range(0, 0, 8), 0, 0, 1).at(0), "0x0000FF");
    EXPECT_EQ(labels(range(0, 9, 19), 0, 0, 1, 0.5).at(0), "0x800000FF");
    EXPECT_EQ(labels(range(0, 20, 30), 0, 0, 1).at(0), "C(0, 0, 255)");
}

TEST_F(ColorRequestsTest, AHoverHasFormsNameAndContrast)
{
    initialize();
    open("css", "a{color:#00f;fill:tan}");
    EXPECT_EQ(hoverAt(9),
              "#0000FF\nrgb(0, 0, 255)\nhsl(240 100% 50%)\nhwb(240 0% 0%)\n"
              "oklch(45.201% 0.31321 264.052)\noklab(45.201% -0.03246 -0.31153)\n"
              "lch(29.568 131.201 301.364)\nlab(29.568 68.287 -112.03)\n"
              "color(display-p3 0 0 0.95959)\nblue\n\nSea *blue* (Mine)\n\n"
              "Contrast with white 8.59, with black 2.44\n");
    EXPECT_THAT(hoverAt(19), HasSubstr("Closest name: Light Orange (Mine)"));
    EXPECT_EQ(result("textDocument/hover", about({{"position", position(0, 3)}})), nullptr);
}

TEST_F(ColorRequestsTest, AHoverIsMarkdownWithAPictureWhereTheEditorShowsIt)
{
    const Json markdown = {{"textDocument", {{"hover", {{"contentFormat", {"markdown"}}}}}}};
    initialize(markdown, "Visual Studio Code");
    open("css", "a{color:#00f}");
    EXPECT_THAT(hoverAt(9), testing::StartsWith("![](data:image/svg+xml;base64,PHN2"));
    EXPECT_THAT(hoverAt(9), HasSubstr("```css\n#0000FF\nrgb(0, 0, 255)\n"));
    EXPECT_THAT(hoverAt(9), HasSubstr("Sea \\*blue\\* \\(Mine\\)"));
}

TEST_F(ColorRequestsTest, OtherEditorsGetMarkdownWithoutAPicture)
{
    initialize({{"textDocument", {{"hover", {{"contentFormat", {"markdown"}}}}}}}, "Neovim");
    open("css", "a{color:#00f}");
    EXPECT_THAT(hoverAt(9), testing::StartsWith("```css\n#0000FF\n"));
}

TEST_F(ColorRequestsTest, NamesAreCompletedInTheFormOfTheFile)
{
    initialize();
    open("css", "a{fill:rgb(1 2 3);top:rgb(1 2 3);b:#fff;color:or");
    EXPECT_THAT(completionsAt(48), ElementsAre("Light Orange rgb(255, 128, 0)"));
    EXPECT_THAT(completionsAt(46),
                ElementsAre("Light Orange rgb(255, 128, 0)", "Sea *blue* rgb(0, 0, 255)"));
    EXPECT_THAT(completionsAt(20), IsEmpty());
    open("css", "a{color:s");
    EXPECT_THAT(completionsAt(9), ElementsAre("Sea *blue* #0000FF"));
    open("javascript", "sea = 'sea'");
    EXPECT_THAT(completionsAt(3), IsEmpty());
    EXPECT_THAT(completionsAt(10), ElementsAre("Sea *blue* #0000FF"));
}

TEST_F(ColorRequestsTest, AColourIsConvertedReplacedAndNamed)
{
    initialize();
    open("css", "a{color:#1234ff}");
    const auto titles = actionTitles(range(0, 9, 9));
    EXPECT_THAT(titles, Contains("Convert to rgb(18, 52, 255)"));
    EXPECT_THAT(titles, Contains("Choose in the panel"));
    EXPECT_EQ(editsOf("Convert to rgb(18, 52, 255)"),
              Json::array({{{"range", range(0, 8, 15)}, {"newText", "rgb(18, 52, 255)"}}}));
    EXPECT_EQ(editsOf("Replace with \"Sea *blue*\", the closest in Mine")[0]["newText"], "#0000FF");
    const Json edits = editsOf("Name it as the custom property --sea-blue");
    EXPECT_EQ(edits[0]["newText"], ":root {\n  --sea-blue: #1234ff;\n}\n\n");
    EXPECT_EQ(edits[1]["newText"], "var(--sea-blue)");
    EXPECT_THAT(actionTitles(range(0, 9, 9), {"quickfix"}), IsEmpty());
    EXPECT_THAT(actionTitles(range(0, 9, 9), {"refactor"}), Contains("Choose in the panel"));
    EXPECT_THAT(actionTitles(range(0, 0, 0)), IsEmpty());
}

TEST_F(ColorRequestsTest, APropertyIsAddedToTheRootWithANewName)
{
    initialize();
    open("css", "@charset 'x';\n:root {--sea-blue: red}\na{color:#1234ff}");
    EXPECT_THAT(actionTitles(range(2, 9, 9)),
                Contains("Name it as the custom property --sea-blue-2"));
    EXPECT_EQ(editsOf("Name it as the custom property --sea-blue-2")[0]["range"], range(1, 7, 7));
    EXPECT_THAT(actionTitles(range(1, 21, 21)), Not(Contains(HasSubstr("custom property"))));
    open("css", "@charset 'x';\na{color:#1234ff}");
    EXPECT_THAT(actionTitles(range(1, 9, 9)),
                Contains("Name it as the custom property --sea-blue"));
    EXPECT_EQ(editsOf("Name it as the custom property --sea-blue")[0]["range"], range(1, 0, 0));
}

TEST_F(ColorRequestsTest, TheContrastOfARuleIsMended)
{
    initialize();
    open("css", "a{color:#888;background-color:white;top:0}");
    const auto* const title =
        "Change the text colour to #767676: a contrast of 4.54 with the background";
    EXPECT_THAT(actionTitles(range(0, 40, 40), {"quickfix"}), ElementsAre(title));
    EXPECT_EQ(editsOf(title)[0]["range"], range(0, 8, 12));
    for (const char* text :
         {"a{color:#666;background:white}", "a{color:#888}b{background:white}",
          "a{color:#8888;background:white}", "a{color:#888;background:#fff url(x)}",
          "a{color:#888;b{background:white}}"}) {
        open("css", text);
        EXPECT_THAT(actionTitles(range(0, 9, 9), {"quickfix"}), IsEmpty()) << text;
    }
}

TEST_F(ColorRequestsTest, WhatIsChosenInThePanelIsOneEdit)
{
    initialize();
    open("css", "a{color:rgb(1 2 3)}");
    user.chosen = "#ff8000\n";
    const Json arguments = {"file:///a", range(0, 8, 18)};
    EXPECT_EQ(result("workspace/executeCommand",
                     {{"command", "vantorel.chooseInPanel"}, {"arguments", arguments}}),
              nullptr);
    EXPECT_EQ(user.startedWith, "#010203");
    // The range follows what is typed before it meanwhile.
    notify("textDocument/didChange",
           {{"textDocument", {{"uri", "file:///a"}, {"version", 2}}},
            {"contentChanges", {{{"range", range(0, 0, 1)}, {"text", "\nabc"}}}}});
    while (!server.panelOutputs().empty())
        server.readPanel(server.panelOutputs().front());
    EXPECT_EQ(sent.back()["method"], "workspace/applyEdit");
    const Json change = sent.back()["params"]["edit"]["documentChanges"][0];
    EXPECT_EQ(change["textDocument"]["version"], 2);
    EXPECT_EQ(change["edits"],
              Json::array({{{"range", range(1, 10, 20)}, {"newText", "rgb(255 128 0)"}}}));
}

TEST_F(ColorRequestsTest, AChoiceIsGivenUpWhenItsColourChangesOrTheUserCancels)
{
    initialize();
    const Json call = {{"command", "vantorel.chooseInPanel"},
                       {"arguments", {"file:///a", range(0, 8, 11)}}};
    open("css", "a{color:red}");
    EXPECT_EQ(errorCode("workspace/executeCommand", call), -32603);
    user.chosen = "";
    result("workspace/executeCommand", call);
    open("css", "a{color:#FF0000}");
    user.chosen = "#ff0000";
    result("workspace/executeCommand",
           {{"command", "vantorel.chooseInPanel"}, {"arguments", {"file:///a", range(0, 8, 15)}}});
    while (!server.panelOutputs().empty())
        server.readPanel(server.panelOutputs().front());
    EXPECT_NE(sent.back().value("method", ""), "workspace/applyEdit");
    open("css", "a{color:red}");
    user.chosen = "#123456";
    result("workspace/executeCommand", call);
    notify("textDocument/didChange",
           {{"textDocument", {{"uri", "file:///a"}, {"version", 2}}},
            {"contentChanges", {{{"range", range(0, 9, 10)}, {"text", "e"}}}}});
    const std::size_t before = sent.size();
    while (!server.panelOutputs().empty())
        server.readPanel(server.panelOutputs().front());
    EXPECT_EQ(sent.size(), before);
}

}  // namespace
}  // namespace vantorel
