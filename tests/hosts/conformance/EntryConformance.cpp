#include "ConformanceTest.h"

namespace vantorel {
namespace {

using testing::ElementsAre;

/// What a user of a keyboard meets on a host with widgets: the rules of `hosts/common`, as far as
/// the toolkit has a part in them. The field completes "navy", as a page does.
class EntryConformance : public ConformanceTest {
protected:
    EntryConformance()
        : field(factory.makeTextField(described({10, 20, 160, 24}))),
          other(factory.makeTextField(described({10, 60, 160, 24})))
    {
        field->setTextDidChange([this] {
            const std::u16string name = u"navy";
            const HostFieldEditor* editor = host->panel().fieldEditor(*field);
            if (editor == nullptr) return;
            const auto start = field->stringValue().substr(0, editor->selectedRange().location);
            if (!start.empty() && name.starts_with(start)) field->setStringValue(name);
        });
        field->setAction([this](HostControl&) { entered.push_back(field->stringValue()); });
        root.addSubview(*field);
        root.addSubview(*other);
        host->handleEvents();
    }

    std::unique_ptr<HostTextField> field;
    std::unique_ptr<HostTextField> other;
    std::vector<std::u16string> entered;
};

TEST_F(EntryConformance, ACompletionIsSelectedAndReplacedByTheNextKey)
{
    host->clickInto(*field);
    host->type(*field, u"na");
    EXPECT_EQ(host->textIn(*field), u"navy");
    EXPECT_EQ(host->selectionIn(*field), (HostSelection{2, 2}));
    host->type(*field, u"x");
    EXPECT_EQ(host->textIn(*field), u"nax");
    EXPECT_EQ(host->selectionIn(*field), (HostSelection{3, 0}));
}

TEST_F(EntryConformance, KeysThatDeleteBringNoCompletion)
{
    host->clickInto(*field);
    host->type(*field, u"nav");
    host->pressKey(*field, HandKey::backspace);
    EXPECT_EQ(host->textIn(*field), u"nav") << "the completion goes first";
    host->pressKey(*field, HandKey::backspace);
    EXPECT_EQ(host->textIn(*field), u"na");
    host->type(*field, u"v");
    EXPECT_EQ(host->textIn(*field), u"navy");
}

TEST_F(EntryConformance, EscapeEndsAnEntryAndIsElseForTheDialog)
{
    host->clickInto(*field);
    EXPECT_FALSE(host->pressKey(*field, HandKey::escape));
    host->type(*field, u"12");
    EXPECT_TRUE(host->pressKey(*field, HandKey::escape));
    EXPECT_FALSE(host->pressKey(*field, HandKey::escape));
    host->pressOK();
    EXPECT_TRUE(entered.empty());
}

TEST_F(EntryConformance, WhatWasTypedIsEnteredWhenTheFieldIsLeft)
{
    host->clickInto(*field);
    host->pressKey(*field, HandKey::tab);
    EXPECT_TRUE(entered.empty()) << "nothing was typed";
    EXPECT_NE(host->panel().fieldEditor(*other), nullptr);
    host->clickInto(*field);
    host->type(*field, u"12");
    host->pressKey(*field, HandKey::tab);
    EXPECT_THAT(entered, ElementsAre(u"12"));
    EXPECT_EQ(host->panel().fieldEditor(*field), nullptr);
    host->clickInto(*field);
    host->type(*field, u"3");
    host->clickInto(*other);
    EXPECT_EQ(entered.size(), 2U);
}

TEST_F(EntryConformance, WhatWasTypedCountsOnOK)
{
    host->pressOK();
    EXPECT_TRUE(entered.empty());
    host->clickInto(*field);
    host->type(*field, u"12");
    host->pressOK();
    host->pressOK();
    EXPECT_THAT(entered, ElementsAre(u"12"));
}

TEST_F(EntryConformance, AFieldThatGoesOutOfSightEntersNothing)
{
    host->clickInto(*field);
    host->type(*field, u"12");
    field->setParked(true);
    host->handleEvents();
    host->pressOK();
    EXPECT_TRUE(entered.empty());
}

TEST_F(EntryConformance, ThePageMayGoWhileItReactsToAText)
{
    auto face = factory.makeView(described({0, 100, 300, 100}));
    auto inner = factory.makeTextField(described({10, 20, 160, 24}));
    face->addSubview(*inner);
    root.addSubview(*face);
    host->handleEvents();
    int reactions = 0;
    inner->setTextDidChange([&] {
        ++reactions;
        // In the order that brings down the field's widget with that of its superview.
        face.reset();
        inner.reset();
    });
    host->clickInto(*inner);
    host->type(*inner, u"12");
    host->handleEvents();
    EXPECT_EQ(reactions, 1);
}

TEST_F(EntryConformance, TheFocusReturnsWhenAFaceIsTakenOut)
{
    auto face = factory.makeView(described({0, 100, 300, 100}));
    auto inner = factory.makeTextField(described({10, 20, 160, 24}));
    host->clickInto(*field);
    face->addSubview(*inner);
    root.addSubview(*face);
    host->handleEvents();
    host->clickInto(*inner);
    face->removeFromSuperview();
    host->handleEvents();
    EXPECT_NE(host->panel().fieldEditor(*field), nullptr);
}

TEST_F(EntryConformance, KeysChooseInAClosedPopUp)
{
    const auto popUp = factory.makePopUpButton(described({10, 100, 160, 24}));
    int actions = 0;
    popUp->setAction([&](HostControl&) { ++actions; });
    HostMenuItem parent = titledItem(u"Add");
    parent.submenu = [] { return HostMenu{titledItem(u"Mine")}; };
    popUp->setItems({titledItem(u"Ash"), HostMenuItem::separatorItem(), titledItem(u"Blue"),
                     titledItem(u"Brown"), parent});
    root.addSubview(*popUp);
    host->handleEvents();
    struct Row {
        HandKey key;
        const char16_t* selected;
    };
    for (const auto& [key, selected] :
         {Row{HandKey::down, u"Blue"}, Row{HandKey::down, u"Brown"}, Row{HandKey::down, u"Brown"},
          Row{HandKey::up, u"Blue"}, Row{HandKey::up, u"Ash"}, Row{HandKey::up, u"Ash"}}) {
        host->pressKey(*popUp, key);
        EXPECT_EQ(popUp->titleOfSelectedItem(), selected);
    }
    EXPECT_EQ(actions, 4);
    EXPECT_FALSE(host->hasOpenMenu());
    host->pressKey(*popUp, HandKey::space);
    EXPECT_TRUE(host->hasOpenMenu());
    EXPECT_TRUE(host->choose({u"Brown"}));
    EXPECT_EQ(actions, 5);
}

/// A content that is operated by keys.
class KeyedContent final : public HostViewContent {
public:
    void drawRect(HostCanvas&) override {}
    explicit KeyedContent(bool withControl = false) : _withControl(withControl) {}
    [[nodiscard]] bool takesKeys() const override { return true; }
    [[nodiscard]] bool takesControlKeys() const override { return _withControl; }
    bool keyDown(const HostKeyEvent& event) override
    {
        keys.push_back(event.key);
        flags.push_back(event.modifierFlags);
        return true;
    }

    std::vector<HostKey> keys;
    std::vector<std::uint64_t> flags;

private:
    bool _withControl;
};

TEST_F(EntryConformance, KeysGoToTheContentExceptThoseOfShortcuts)
{
    KeyedContent content;
    const auto view = factory.makeCustomView(described({200, 20, 80, 80}), content);
    root.addSubview(*view);
    host->handleEvents();
    EXPECT_TRUE(host->pressKey(*view, HandKey::left));
    EXPECT_TRUE(host->pressKey(*view, HandKey::enter)) << "a cell is marked";
    EXPECT_TRUE(host->pressKey(*view, HandKey::up, shiftModifierFlag));
    EXPECT_FALSE(host->pressKey(*view, HandKey::left, controlModifierFlag));
    EXPECT_THAT(content.keys, ElementsAre(HostKey::left, HostKey::pick, HostKey::up));
    EXPECT_EQ(content.flags.back(), shiftModifierFlag);
    host->turnMouse(*view, {pressAt({20, 20}), releaseAt({20, 20})});
    EXPECT_FALSE(host->pressKey(*view, HandKey::enter)) << "after a click it is for the dialog";
}

TEST_F(EntryConformance, KeysWithCtrlGoToAContentThatWantsThem)
{
    KeyedContent content(true);
    const auto view = factory.makeCustomView(described({200, 20, 80, 80}), content);
    root.addSubview(*view);
    host->handleEvents();
    EXPECT_TRUE(host->pressKey(*view, HandKey::left, controlModifierFlag));
    EXPECT_FALSE(host->pressKey(*view, HandKey::left, alternateModifierFlag));
    EXPECT_THAT(content.flags, ElementsAre(controlModifierFlag));
}

}  // namespace
}  // namespace vantorel
