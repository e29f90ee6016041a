#include "PickerPage.h"

namespace vantorel {
namespace {

/// An editor with a fixed insertion point that notes where the page moves it.
class NotingEditor final : public HostFieldEditor {
public:
    explicit NotingEditor(std::size_t insertionPoint) : _selection{insertionPoint, 0} {}

    [[nodiscard]] HostSelection selectedRange() const override { return _selection; }
    void setSelectedRange(HostSelection range) override { moved.push_back(range); }

    std::vector<HostSelection> moved;

private:
    HostSelection _selection;
};

class NameEntryTest : public PickerPage {
protected:
    NameEntryTest()
    {
        auto list = std::make_shared<HostColorList>(u"Names");
        for (const char16_t* name : {u"navy", u"blue", u"black"})
            list->setColor(HostColor::blackColor(), name);
        _desktop.colorLists().install(list);
        _picker.hexSettings().setHexColorList(list->name());
    }

    /// Types into the field for decimals and returns where the page has moved the insertion point.
    std::vector<HostSelection> type(const std::u16string& text, std::size_t insertionPoint)
    {
        NotingEditor editor(insertionPoint);
        _panel.editor = &editor;
        field().setStringValue(text);
        field().sendTextDidChange();
        _panel.editor = nullptr;
        return editor.moved;
    }
    [[nodiscard]] HostTextField& field()
    {
        return dynamic_cast<HostTextField&>(control("_rgbDecimalText"));
    }
};

TEST_F(NameEntryTest, TheInsertionPointIsPutAfterTheLettersThatNamesShare)
{
    EXPECT_EQ(type(u"blxyzq", 2), std::vector({HostSelection{2, 0}}));
    EXPECT_EQ(field().stringValue(), u"bl");
}

TEST_F(NameEntryTest, ACompletedNameLeavesTheInsertionPointWhereItIs)
{
    EXPECT_TRUE(type(u"na", 2).empty());
    EXPECT_TRUE(field().stringValue().starts_with(u"navy: "));
}

TEST_F(NameEntryTest, WithoutAnEditorThereIsNoInsertionPointToMove)
{
    field().setStringValue(u"na");
    field().sendTextDidChange();
    EXPECT_EQ(field().stringValue(), u"") << "all names begin with what is before the first letter";
}

}  // namespace
}  // namespace vantorel
