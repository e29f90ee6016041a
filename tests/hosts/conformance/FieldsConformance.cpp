#include "ConformanceTest.h"

namespace vantorel {
namespace {

using testing::ElementsAre;

class FieldsConformance : public ConformanceTest {
protected:
    FieldsConformance() : field(factory.makeTextField(described({10, 20, 160, 24})))
    {
        field->setTextDidChange([this] {
            texts.push_back(field->stringValue());
            if (HostFieldEditor* editor = host->panel().fieldEditor(*field)) {
                selections.push_back(editor->selectedRange());
                if (whenChanged) whenChanged(*editor);
            }
        });
        field->setAction([this](HostControl&) { entered.push_back(field->stringValue()); });
        root.addSubview(*field);
        host->handleEvents();
    }

    std::unique_ptr<HostTextField> field;
    std::vector<std::u16string> texts;
    std::vector<HostSelection> selections;
    std::vector<std::u16string> entered;
    std::function<void(HostFieldEditor&)> whenChanged;
};

TEST_F(FieldsConformance, ATextSetByCodeIsShownAndNotReported)
{
    for (const char16_t* text : {u"#FF8000", u"", u"<b>&amp;", u"\u00E4\U0001F3A8"}) {
        field->setStringValue(text);
        host->handleEvents();
        EXPECT_EQ(host->textIn(*field), text);
        EXPECT_EQ(field->stringValue(), text);
    }
    EXPECT_TRUE(texts.empty());
    EXPECT_TRUE(entered.empty());
}

TEST_F(FieldsConformance, EveryKeyIsReportedWithTheTextAndTheInsertionPointAfterIt)
{
    host->clickInto(*field);
    host->type(*field, u"n\U0001F3A8");
    EXPECT_THAT(texts, ElementsAre(u"n", u"n\U0001F3A8"));
    EXPECT_THAT(selections, ElementsAre(HostSelection{1, 0}, HostSelection{3, 0}));
    EXPECT_TRUE(entered.empty());
}

TEST_F(FieldsConformance, ASelectionSetInTheReactionIsTheOneThatTheUserSees)
{
    whenChanged = [this](HostFieldEditor& editor) {
        if (field->stringValue() != u"na") return;
        field->setStringValue(u"navy");
        editor.setSelectedRange({2, 2});
    };
    host->clickInto(*field);
    host->type(*field, u"na");
    EXPECT_EQ(host->textIn(*field), u"navy");
    EXPECT_EQ(host->selectionIn(*field), (HostSelection{2, 2}));
    EXPECT_THAT(texts, ElementsAre(u"n", u"na"));
}

TEST_F(FieldsConformance, TheInsertionPointStaysWhenTheTextIsSetByCode)
{
    host->clickInto(*field);
    host->type(*field, u"nav");
    field->setStringValue(u"navy blue");
    EXPECT_EQ(host->selectionIn(*field), (HostSelection{3, 0}));
    field->setStringValue(u"n");
    EXPECT_EQ(host->selectionIn(*field), (HostSelection{1, 0}));
}

TEST_F(FieldsConformance, ASelectionIsCutToTheText)
{
    host->clickInto(*field);
    host->type(*field, u"navy");
    HostFieldEditor* editor = host->panel().fieldEditor(*field);
    ASSERT_NE(editor, nullptr);
    for (const auto& [asked, shown] : std::vector<std::pair<HostSelection, HostSelection>>{
             {{1, 2}, {1, 2}}, {{2, 999}, {2, 2}}, {{999, 5}, {4, 0}}, {{0, 4}, {0, 4}}}) {
        editor->setSelectedRange(asked);
        EXPECT_EQ(editor->selectedRange(), shown);
        EXPECT_EQ(host->selectionIn(*field), shown);
    }
}

TEST_F(FieldsConformance, OnlyTheFieldThatTheUserEditsHasAnEditor)
{
    const auto other = factory.makeTextField(described({10, 60, 160, 24}));
    root.addSubview(*other);
    host->handleEvents();
    EXPECT_EQ(host->panel().fieldEditor(*field), nullptr);
    host->clickInto(*field);
    host->type(*field, u"n");
    EXPECT_NE(host->panel().fieldEditor(*field), nullptr);
    EXPECT_EQ(host->panel().fieldEditor(*other), nullptr);
    host->clickInto(*other);
    host->type(*other, u"n");
    EXPECT_EQ(host->panel().fieldEditor(*field), nullptr);
    EXPECT_NE(host->panel().fieldEditor(*other), nullptr);
}

TEST_F(FieldsConformance, ReturnSendsTheActionOnce)
{
    host->clickInto(*field);
    host->type(*field, u"ff80");
    host->pressKey(*field, HandKey::enter);
    EXPECT_THAT(entered, ElementsAre(u"ff80"));
}

TEST_F(FieldsConformance, TheActionMayDestroyTheField)
{
    int actions = 0;
    field->setAction([&](HostControl&) {
        ++actions;
        field.reset();
    });
    host->clickInto(*field);
    host->type(*field, u"x");
    host->pressKey(*field, HandKey::enter);
    host->handleEvents();
    EXPECT_EQ(actions, 1);
}

TEST_F(FieldsConformance, TheReactionToATextMayDestroyTheField)
{
    whenChanged = [this](HostFieldEditor&) { field.reset(); };
    host->clickInto(*field);
    host->type(*field, u"x");
    host->handleEvents();
    EXPECT_THAT(texts, ElementsAre(u"x"));
}

TEST_F(FieldsConformance, AReadOnlyFieldShowsItsTextAndTakesNone)
{
    auto description = described({10, 60, 160, 24});
    description.readOnly = true;
    description.title = u"Color(1, 2, 3)";
    const auto readOnly = factory.makeTextField(description);
    int reports = 0;
    readOnly->setTextDidChange([&] { ++reports; });
    root.addSubview(*readOnly);
    host->handleEvents();
    host->clickInto(*readOnly);
    host->type(*readOnly, u"x");
    EXPECT_EQ(host->textIn(*readOnly), u"Color(1, 2, 3)");
    EXPECT_EQ(reports, 0);
}

TEST_F(FieldsConformance, ALabelShowsItsTextAsItIsWritten)
{
    auto description = described({10, 60, 160, 20});
    description.editable = false;
    description.title = u"First";
    const auto label = factory.makeTextField(description);
    root.addSubview(*label);
    host->handleEvents();
    EXPECT_EQ(host->textIn(*label), u"First");
    label->setStringValue(u"<i>a</i> & _b");
    EXPECT_EQ(host->textIn(*label), u"<i>a</i> & _b");
    EXPECT_EQ(label->stringValue(), u"<i>a</i> & _b");
    EXPECT_EQ(host->panel().fieldEditor(*label), nullptr);
}

TEST_F(FieldsConformance, MalformedTextIsHarmless)
{
    for (const std::u16string& text : {std::u16string{0xD800, u'a'}, std::u16string{u'a', 0, u'b'},
                                       std::u16string{0xDC00}, std::u16string(20000, u'w')}) {
        field->setStringValue(text);
        host->handleEvents();
        EXPECT_FALSE(field->stringValue().empty());
    }
    EXPECT_TRUE(texts.empty());
}

TEST_F(FieldsConformance, UpAndDownStepAFieldThatCanStep)
{
    std::vector<std::pair<int, std::uint64_t>> steps;
    host->clickInto(*field);
    host->pressKey(*field, HandKey::up);
    field->setStep([&](int step, std::uint64_t flags) { steps.emplace_back(step, flags); });
    host->pressKey(*field, HandKey::up);
    host->pressKey(*field, HandKey::down, shiftModifierFlag);
    EXPECT_THAT(steps,
                ElementsAre(std::pair{1, std::uint64_t{0}}, std::pair{-1, shiftModifierFlag}));
    field->setStep({});
    host->pressKey(*field, HandKey::up);
    EXPECT_EQ(steps.size(), 2U);
    EXPECT_TRUE(entered.empty());
}

}  // namespace
}  // namespace vantorel
