#include "PanelWindowFixture.h"
#include "hosts/qt/QtColors.h"
#include "panel/window/ColorChoice.h"

#include <QDialogButtonBox>
#include <QPushButton>

namespace vantorel {
namespace {

/// A panel started to choose one colour.
class ChoiceTest : public PanelWindowFixture {
protected:
    void SetUp() override
    {
        PanelWindowFixture::SetUp();
        _choice.emplace(*_window);
        _window->show();
        _window->colors().setColor(hostColorFrom(QColor(16, 32, 48)));
    }

    QPushButton* button(QDialogButtonBox::ButtonRole role)
    {
        auto* box = _window->findChild<QDialogButtonBox*>();
        for (QAbstractButton* each : box->buttons()) {
            if (box->buttonRole(each) == role) return qobject_cast<QPushButton*>(each);
        }
        return nullptr;
    }

    std::optional<ColorChoice> _choice;
};

TEST_F(ChoiceTest, IsPendingWhileTheWindowIsOpen)
{
    EXPECT_EQ(_choice->text(), std::nullopt);
    EXPECT_TRUE(_window->isVisible());
}

TEST_F(ChoiceTest, TheButtonChoosesTheColourShown)
{
    QTest::mouseClick(button(QDialogButtonBox::AcceptRole), Qt::LeftButton);
    EXPECT_EQ(_choice->text(), "#102030");
    EXPECT_FALSE(_window->isVisible());
    EXPECT_EQ(_window->colors().recent().front(), hostColorFrom(QColor(16, 32, 48)))
        << "what was chosen was used";
}

TEST_F(ChoiceTest, TextNotYetEnteredCounts)
{
    auto* field = child<QLineEdit>("_fullHexText");
    QTest::mouseClick(field, Qt::LeftButton);
    field->selectAll();
    QTest::keyClicks(field, "f80");
    QTest::mouseClick(button(QDialogButtonBox::AcceptRole), Qt::LeftButton);
    EXPECT_EQ(_choice->text(), "#FF8800");
}

TEST_F(ChoiceTest, TextOfTheFieldCountsUnlessItIsNotAColour)
{
    auto* field = child<QLineEdit>("colorText");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "nonsense");
    QTest::keyClick(field, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(_window->isVisible()) << "the colour before was not chosen";
    EXPECT_EQ(_choice->text(), std::nullopt);
    field->selectAll();
    QTest::keyClicks(field, "navy");
    QTest::keyClick(field, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(_choice->text(), "#000080");
}

TEST_F(ChoiceTest, TheBackgroundIsNotChosen)
{
    _window->colors().edit(EditedColor::background);
    QTest::mouseClick(button(QDialogButtonBox::AcceptRole), Qt::LeftButton);
    EXPECT_EQ(_choice->text(), "#102030");
}

TEST_F(ChoiceTest, TheOtherButtonCancels)
{
    QTest::mouseClick(button(QDialogButtonBox::RejectRole), Qt::LeftButton);
    EXPECT_EQ(_choice->text(), std::nullopt);
    EXPECT_FALSE(_window->isVisible());
}

TEST_F(ChoiceTest, ClosingTheWindowCancels)
{
    _window->close();
    EXPECT_EQ(_choice->text(), std::nullopt);
}

TEST_F(ChoiceTest, EnterInAFieldAppliesTheTextWithoutChoosing)
{
    auto* field = child<QLineEdit>("_fullHexText");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "f80");
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(_window->isVisible());
    EXPECT_EQ(chosenColor(), QColor(0xFF, 0x88, 0));
}

TEST_F(ChoiceTest, TheFirstEscapeInAFieldDiscardsTheTextAndTheNextCancels)
{
    auto* field = child<QLineEdit>("_fullHexText");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "f80");
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_EQ(field->text(), "#102030");
    EXPECT_TRUE(_window->isVisible());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(_window->isVisible());
    EXPECT_EQ(_choice->text(), std::nullopt);
}

TEST_F(ChoiceTest, PagesWithoutAFormOfTheirOwnChooseInTheSameFormat)
{
    ASSERT_TRUE(_window->pages().showPageWithKey("mix"));
    QTest::keyClick(_window.get(), Qt::Key_Return);
    EXPECT_EQ(_choice->text(), "#102030");
}

TEST_F(ChoiceTest, TheButtonsDoNotCoverThePage)
{
    const QWidget* box = _window->findChild<QDialogButtonBox*>();
    const QWidget* hex = child<QWidget>("_fullHexText");
    _window->resize(_window->minimumSize());
    const QRect buttons(box->mapTo(_window.get(), QPoint()), box->size());
    EXPECT_TRUE(_window->rect().contains(buttons));
    EXPECT_FALSE(buttons.intersects(QRect(hex->mapTo(_window.get(), QPoint()), hex->size())));
    EXPECT_GE(buttons.height(), box->sizeHint().height());
}

}  // namespace
}  // namespace vantorel
