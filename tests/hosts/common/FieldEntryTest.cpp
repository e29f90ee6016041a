#include "hosts/common/FieldEntry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace vantorel {
namespace {

/// A field whose toolkit moves the insertion point either before it reports a change, or after.
class TestField final : public HostTextField, public HostFieldEditor, EntryWidget {
public:
    enum class Caret { movesBeforeReport, movesAfterReport };
    explicit TestField(Caret order) : HostTextField(HostRect{}), _order(order) {}

    [[nodiscard]] std::u16string stringValue() const override { return _text; }
    void setStringValue(const std::u16string& text) override { entry->setStringValue(text); }
    void setTextColor(const HostColor&) override {}
    [[nodiscard]] HostSelection selectedRange() const override { return entry->selectedRange(); }
    void setSelectedRange(HostSelection range) override { entry->setSelectedRange(range); }

    void type(const std::u16string& text) { change(text, false); }
    void backspace()
    {
        if (_range.anchor == _range.caret) --_range.anchor;
        change(u"", true);
    }

    std::optional<FieldEntry> entry{std::in_place, *this, static_cast<EntryWidget&>(*this)};
    bool focused = true;
    bool visible = true;
    bool readOnly = false;
    bool panelTakesTexts = false;
    int givenUp = 0;
    std::vector<std::u16string> offered;

private:
    [[nodiscard]] std::u16string text() const override { return _text; }
    void writeText(const std::u16string& text) override
    {
        _text = text;
        entry->textDidChange(false);
    }
    [[nodiscard]] Range selection() const override { return _range; }
    void select(Range range) override { _range = range; }
    void insert(const std::u16string& text) override { change(text, false); }
    [[nodiscard]] bool hasFocus() const override { return focused; }
    [[nodiscard]] bool isVisible() const override { return visible; }
    [[nodiscard]] bool isReadOnly() const override { return readOnly; }
    bool offerText(const std::u16string& text) override
    {
        offered.push_back(text);
        return panelTakesTexts;
    }
    void entryGivenUp() override { ++givenUp; }
    void afterChange(const std::function<void()>& reaction) override
    {
        if (_order == Caret::movesBeforeReport) {
            reaction();
        } else {
            _deferred.push_back(reaction);
        }
    }

    void change(const std::u16string& text, bool byDeletion)
    {
        const auto [from, to] = std::minmax(_range.anchor, _range.caret);
        _text.replace(from, to - from, text);
        const Range moved{from + text.size(), from + text.size()};
        if (_order == Caret::movesBeforeReport) _range = moved;
        if (entry) entry->textDidChange(byDeletion);
        if (_order == Caret::movesAfterReport) _range = moved;
        for (const auto& reaction : std::exchange(_deferred, {}))
            reaction();
    }

    Caret _order;
    std::u16string _text;
    Range _range;
    std::vector<std::function<void()>> _deferred;
};

class FieldEntryTest : public testing::TestWithParam<TestField::Caret> {
protected:
    FieldEntryTest()
    {
        _field.setAction([this](HostControl&) { _entered.push_back(_field.stringValue()); });
        _field.setEntryFit([this](const std::u16string&) { return _fit; });
    }
    /// The page completes what is typed to "navy blue".
    void completeNames()
    {
        _field.setTextDidChange([this] {
            const std::u16string name = u"navy blue";
            const std::size_t place = _field.selectedRange().location;
            if (!name.starts_with(_field.stringValue().substr(0, place))) return;
            _field.setStringValue(name);
            _field.setSelectedRange({place, 0});
        });
    }

    TestField _field{GetParam()};
    HostEntryFit _fit = HostEntryFit::fits;
    std::vector<std::u16string> _entered;
};

TEST_P(FieldEntryTest, WhatThePageCompletesIsSelectedAfterTheInsertionPoint)
{
    completeNames();
    _field.type(u"n");
    EXPECT_EQ(_field.stringValue(), u"navy blue");
    EXPECT_EQ(_field.selectedRange(), (HostSelection{1, 8}));
    _field.type(u"a");
    EXPECT_EQ(_field.stringValue(), u"navy blue");
    EXPECT_EQ(_field.selectedRange(), (HostSelection{2, 7}));
    _field.type(u"x");
    EXPECT_EQ(_field.stringValue(), u"nax");
}

TEST_P(FieldEntryTest, KeysThatDeleteBringNoCompletion)
{
    completeNames();
    _field.type(u"na");
    _field.backspace();
    EXPECT_EQ(_field.stringValue(), u"na");
    _field.backspace();
    EXPECT_EQ(_field.stringValue(), u"n");
    EXPECT_EQ(_field.selectedRange(), (HostSelection{1, 0}));
}

TEST_P(FieldEntryTest, ASelectionSetInTheReactionSurvives)
{
    _field.setTextDidChange([this] { _field.setSelectedRange({1, 1}); });
    _field.type(u"abc");
    EXPECT_EQ(_field.selectedRange(), (HostSelection{1, 1}));
}

TEST_P(FieldEntryTest, ReturnEntersAndAnIgnoredTextIsOffered)
{
    _field.type(u"abc");
    _field.entry->enter();
    EXPECT_EQ(_entered, std::vector<std::u16string>{u"abc"});
    EXPECT_FALSE(_field.entry->isTyped());

    _fit = HostEntryFit::isIgnored;
    _field.type(u"d");
    _field.entry->enter();
    EXPECT_EQ(_field.offered, std::vector<std::u16string>{u"abcd"});
    EXPECT_EQ(_entered.size(), 2U);
    EXPECT_TRUE(_field.entry->isTyped());
    _field.panelTakesTexts = true;
    _field.entry->enter();
    EXPECT_EQ(_entered.size(), 2U);
    EXPECT_FALSE(_field.entry->isTyped());
}

TEST_P(FieldEntryTest, LeavingEntersOnceAndGivesUpWhatIsIgnored)
{
    _field.entry->leave();
    _field.type(u"abc");
    _field.entry->leave();
    _field.entry->leave();
    EXPECT_EQ(_entered.size(), 1U);
    EXPECT_EQ(_field.givenUp, 0);
    _fit = HostEntryFit::isIgnored;
    _field.type(u"d");
    _field.entry->leave();
    EXPECT_EQ(_field.givenUp, 1);
}

TEST_P(FieldEntryTest, EscapeDiscardsAnEntryAndElseIsForTheDialog)
{
    EXPECT_FALSE(_field.entry->giveUp());
    _field.type(u"abc");
    EXPECT_TRUE(_field.entry->giveUp());
    EXPECT_EQ(_field.givenUp, 1);
    EXPECT_FALSE(_field.entry->giveUp());
    EXPECT_TRUE(_entered.empty());
}

TEST_P(FieldEntryTest, WhatWasTypedCountsWhenTheDialogEnds)
{
    _field.entry->finish();
    _field.type(u"abc");
    _field.visible = false;
    _field.entry->finish();
    EXPECT_TRUE(_entered.empty());
    _field.visible = true;
    _field.entry->finish();
    _field.entry->finish();
    EXPECT_EQ(_entered, std::vector<std::u16string>{u"abc"});
}

TEST_P(FieldEntryTest, AStepEntersWhatWasTypedFirst)
{
    int stepped = 0;
    _field.setStep([&](int steps, std::uint64_t) {
        stepped = steps;
        EXPECT_EQ(_entered.size(), 1U);
    });
    _field.type(u"80");
    _field.entry->step(-2, 0);
    EXPECT_EQ(stepped, -2);
}

TEST_P(FieldEntryTest, WritingDoesNotCountAsTyping)
{
    int reactions = 0;
    _field.setTextDidChange([&] { ++reactions; });
    _field.setStringValue(u"abc");
    EXPECT_FALSE(_field.entry->isTyped());
    _field.type(u"d");
    EXPECT_EQ(reactions, 1);
    _field.setStringValue(u"abc");
    EXPECT_FALSE(_field.entry->isTyped());
    EXPECT_EQ(reactions, 1);
}

TEST_P(FieldEntryTest, TheInsertionPointStaysInAnEditedFieldOnly)
{
    _field.setStringValue(u"abcdef");
    _field.setSelectedRange({3, 0});
    _field.setStringValue(u"uvwxyz");
    EXPECT_EQ(_field.selectedRange(), (HostSelection{3, 0}));
    _field.setStringValue(u"u");
    EXPECT_EQ(_field.selectedRange(), (HostSelection{1, 0}));
    _field.focused = false;
    _field.setStringValue(u"abcdef");
    EXPECT_EQ(_field.selectedRange(), (HostSelection{0, 0}));
}

TEST_P(FieldEntryTest, ABroughtTextReplacesWhatWasNotTyped)
{
    _field.setStringValue(u"old");
    _field.entry->bring(u" #123456;\n");
    EXPECT_EQ(_field.stringValue(), u"#123456");
    _field.setSelectedRange({7, 0});
    _field.entry->bring(u"78");
    EXPECT_EQ(_field.stringValue(), u"#12345678");
    _field.entry->bring(u" ; ");
    _field.readOnly = true;
    _field.entry->bring(u"x");
    EXPECT_EQ(_field.stringValue(), u"#12345678");
    EXPECT_TRUE(_field.offered.empty());
}

TEST_P(FieldEntryTest, ABroughtTextThatDoesNotFitIsOffered)
{
    _fit = HostEntryFit::doesNotFit;
    _field.panelTakesTexts = true;
    _field.entry->bring(u"teal");
    EXPECT_EQ(_field.offered, std::vector<std::u16string>{u"teal"});
    EXPECT_FALSE(_field.entry->isTyped());
}

TEST_P(FieldEntryTest, TheActionMayDestroyTheField)
{
    _field.setAction([this](HostControl&) { _field.entry.reset(); });
    _field.type(u"abc");
    _field.entry->leave();
    EXPECT_EQ(_field.givenUp, 0);
}

TEST_P(FieldEntryTest, TheReactionMayDestroyTheField)
{
    _field.setTextDidChange([this] { _field.entry.reset(); });
    _field.type(u"abc");
    EXPECT_FALSE(_field.entry.has_value());
}

INSTANTIATE_TEST_SUITE_P(Toolkits, FieldEntryTest,
                         testing::Values(TestField::Caret::movesBeforeReport,
                                         TestField::Caret::movesAfterReport));

TEST(WithoutEndsTest, BlanksLineEndsAndOneSemicolonGo)
{
    EXPECT_EQ(withoutEnds(u"\t#fff ;\r\n"), u"#fff");
    EXPECT_EQ(withoutEnds(u"\u00A0rgb(1, 2, 3)\u2003"), u"rgb(1, 2, 3)");
    EXPECT_EQ(withoutEnds(u"a;;"), u"a;");
    EXPECT_EQ(withoutEnds(u" ; "), u"");
}

}  // namespace
}  // namespace vantorel
