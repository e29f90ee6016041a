#include "PickerPage.h"
#include "text/Unicode.h"

namespace vantorel {
namespace {

/// Entries and steps in the fields of the page.
class FieldEntryTest : public PickerPage {
protected:
    FieldEntryTest() { setColor(0x12, 0x34, 0x56); }

    void setColor(std::uint64_t red, std::uint64_t green, std::uint64_t blue)
    {
        QTXHexColorSpec spec;
        spec.setHexRed(red, green, blue);
        _panel.changeColor(spec.colorHexColorSpec());
    }
    HeadlessTextField& field(const std::string& name)
    {
        return dynamic_cast<HeadlessTextField&>(control(name));
    }
    /// The codes of the panel's colour and of the field for the full code, which must be equal.
    [[nodiscard]] std::string code()
    {
        QTXHexColorSpec spec;
        spec.setColorHexColorSpec(_panel.color());
        const auto panelCode = spec.fullStringHexColorSpecWithEntryForm(EntryForm::uppercase);
        EXPECT_EQ(field("_fullHexText").stringValue(), u"#" + panelCode);
        return utf8FromUtf16(panelCode);
    }
    /// Enters a text while a message is shown. Returns the code of the colour.
    std::string enter(const std::string& name, const std::u16string& text)
    {
        _picker.hexColorsView().postMessage(u"message");
        field(name).setStringValue(text);
        field(name).sendAction();
        return code();
    }
    std::string step(const std::string& name, int steps, std::uint64_t modifierFlags = 0)
    {
        _picker.hexColorsView().postMessage(u"message");
        field(name).sendStep(steps, modifierFlags);
        return code();
    }
    [[nodiscard]] std::u16string message()
    {
        return _picker.hexColorsView().messageStr().value_or(u"");
    }
};

TEST_F(FieldEntryTest, AnEntrySetsTheColourAndEndsTheMessage)
{
    struct Row {
        const char* field;
        const char16_t* text;
        const char* code;
    };
    for (const auto& [name, text, code] :
         {Row{"_redHexText", u"fe", "FE3456"}, Row{"_greenHexText", u"dc", "FEDC56"},
          Row{"_blueHexText", u"ba", "FEDCBA"}, Row{"_fullHexText", u"#a1b2c3", "A1B2C3"}}) {
        EXPECT_EQ(enter(name, text), code);
        EXPECT_EQ(message(), u"") << name;
    }
    EXPECT_EQ(enter("_rgbDecimalText", u"navy: rgb(0, 255, 128)"), "00FF80");
}

TEST_F(FieldEntryTest, AnEntryThatDoesNotFitIsReportedAndTakenBack)
{
    for (const auto& [name, text] : {std::pair{"_redHexText", u"xy"},
                                     {"_greenHexText", u"1g"},
                                     {"_blueHexText", u"z"},
                                     {"_fullHexText", u"12345g"},
                                     {"_rgbDecimalText", u"rgb(1, 2, 256)"}}) {
        const std::u16string before = field(name).stringValue();
        EXPECT_EQ(enter(name, text), "123456");
        EXPECT_EQ(field(name).stringValue(), before);
        EXPECT_EQ(message(), u"Input Error") << name;
        EXPECT_TRUE(_picker.hexColorsView().isWarning());
    }
    const std::u16string text = u"no triple";
    EXPECT_EQ(enter("_rgbDecimalText", text), "123456");
    EXPECT_EQ(message(), u"message") << "a text without a triple is ignored";
    EXPECT_EQ(field("_rgbDecimalText").stringValue(), text);
}

TEST_F(FieldEntryTest, AComponentIsReadAsItIsShown)
{
    _picker.hexSettings().setComponentDisplay(ComponentDisplay::integer);
    EXPECT_EQ(enter("_redHexText", u"16"), "103456");
    _picker.hexSettings().setComponentDisplay(ComponentDisplay::fraction);
    EXPECT_EQ(enter("_greenHexText", u"1.0"), "10FF56");
    EXPECT_EQ(field("_redHexText").stringValue(), u"0.063");
}

TEST_F(FieldEntryTest, AStepChangesOneComponent)
{
    EXPECT_EQ(step("_redHexText", 1), "133456");
    EXPECT_EQ(message(), u"");
    EXPECT_EQ(field("_redHexText").stringValue(), u"13");
    EXPECT_EQ(step("_greenHexText", -3), "133156");
    EXPECT_EQ(step("_blueHexText", 1, shiftModifierFlag), "133166");
    EXPECT_EQ(step("_blueHexText", -2, shiftModifierFlag), "133146");
    EXPECT_EQ(step("_blueHexText", 1, controlModifierFlag), "133147");
}

TEST_F(FieldEntryTest, StepsEndAtTheLimits)
{
    EXPECT_EQ(step("_redHexText", -18), "003456");
    EXPECT_EQ(step("_redHexText", -1), "003456");
    EXPECT_EQ(message(), u"message") << "the colour is the same";
    EXPECT_EQ(step("_greenHexText", 1, shiftModifierFlag), "004456");
    EXPECT_EQ(step("_greenHexText", 12, shiftModifierFlag), "00FF56");
    EXPECT_EQ(step("_greenHexText", 1), "00FF56");
    EXPECT_EQ(step("_greenHexText", -1), "00FE56");
    EXPECT_EQ(step("_greenHexText", 1), "00FF56");
}

TEST_F(FieldEntryTest, TheFieldsSayWhatFits)
{
    using enum HostEntryFit;
    const auto fit = [this](const std::string& name, const std::u16string& text) {
        return field(name).entryFit(text);
    };
    for (const char* name : {"_redHexText", "_greenHexText", "_blueHexText"}) {
        EXPECT_EQ(fit(name, u"7f"), fits) << name;
        EXPECT_EQ(fit(name, u"xy"), doesNotFit) << name;
    }
    for (const ComponentDisplay display :
         {ComponentDisplay::integer, ComponentDisplay::fraction, ComponentDisplay::codeSnippet}) {
        _picker.hexSettings().setComponentDisplay(display);
        for (const char16_t* text : {u"0", u"9", u"12", u" +0.5 ", u"-1", u""})
            EXPECT_EQ(fit("_redHexText", text), fits);
        for (const char16_t* text : {u"red", u"1e", u"1,5", u"#12", u"1/2", u"1:", u"50%"})
            EXPECT_EQ(fit("_redHexText", text), doesNotFit);
    }
    EXPECT_EQ(fit("_fullHexText", u"#12AB34"), fits);
    EXPECT_EQ(fit("_fullHexText", u"12AB3g"), doesNotFit);
    EXPECT_EQ(fit("_rgbDecimalText", u"rgb(1, 2, 3)"), fits);
    EXPECT_EQ(fit("_rgbDecimalText", u"rgb(1, 2)"), doesNotFit);
    EXPECT_EQ(fit("_rgbDecimalText", u"tomato"), isIgnored);
}

}  // namespace
}  // namespace vantorel
