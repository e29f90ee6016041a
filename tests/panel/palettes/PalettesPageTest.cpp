#include "PalettesPageFixture.h"

#include <QAccessible>
#include <QTimer>
#include <QToolButton>

namespace vantorel {
namespace {

TEST_F(PalettesPageTest, AClickSelectsAColourAndKeepsTheOpacity)
{
    _window->colors().setColor(rgb(1, 2, 3, 0.5));
    click(1);
    EXPECT_EQ(chosenColor().rgba(), qRgba(192, 0, 0, 128));
    press(Qt::Key_Down);
    EXPECT_EQ(chosenColor().rgba(), qRgba(192, 0, 0, 128)) << "moving takes nothing";
    press(Qt::Key_Return);
    EXPECT_EQ(chosenColor().rgba(), qRgba(128, 0, 0, 128));
    click(0, Qt::ControlModifier);
    EXPECT_EQ(chosenColor().rgba(), qRgba(128, 0, 0, 128)) << "selecting takes nothing";
    EXPECT_EQ(view()->selectedPlaces(), (std::vector<std::size_t>{0, 2}));
}

TEST_F(PalettesPageTest, AnAddedColourAsksForItsName)
{
    _window->colors().setColor(rgb(0, 255, 0, 0.5));
    click(1, Qt::ControlModifier);
    press(Qt::Key_Insert);
    EXPECT_EQ(own("Reds"), "red=ff0000 dark=c00000 #00FF00=00ff00 darker=800000 darkest=400000");
    EXPECT_THAT(message(), testing::HasSubstr("opacity"));
    typeName("green");
    EXPECT_EQ(own("Reds"), "red=ff0000 dark=c00000 green=00ff00 darker=800000 darkest=400000");
    _window->colors().setColor(rgb(250, 0, 0));
    command("Add the panel's colour")->trigger();
    EXPECT_EQ(static_cast<QLineEdit*>(QApplication::focusWidget())->text(), "red 2")
        << "the nearest name";
    press(Qt::Key_Escape);
    EXPECT_EQ(own("Reds"),
              "red=ff0000 dark=c00000 green=00ff00 red 2=fa0000 darker=800000 darkest=400000");
}

TEST_F(PalettesPageTest, SeveralColoursAreMovedRecolouredAndRemoved)
{
    click(1, Qt::ControlModifier);
    click(2, Qt::ControlModifier);
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(own("Reds"), "dark=c00000 darker=800000 red=ff0000 darkest=400000");
    press(Qt::Key_Down, Qt::AltModifier);
    press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(own("Reds"), "red=ff0000 darkest=400000 dark=c00000 darker=800000");
    EXPECT_EQ(view()->selectedPlaces(), (std::vector<std::size_t>{2, 3})) << "they stay selected";
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(own("Reds"), "red=ff0000 darkest=400000 dark=010203 darker=010203");
    press(Qt::Key_Delete);
    EXPECT_EQ(own("Reds"), "red=ff0000 darkest=400000");
    press(Qt::Key_Delete);
    press(Qt::Key_Delete);
    EXPECT_EQ(own("Reds"), "");
    EXPECT_THAT(child<QLabel>("paletteEmptyNote")->text().toStdString(),
                testing::HasSubstr("empty"));
}

TEST_F(PalettesPageTest, UndoAndRedoBelongToThePage)
{
    click(0);
    const QColor chosen = chosenColor();
    press(Qt::Key_Delete);
    press(Qt::Key_Delete);
    for (QWidget* focus : {static_cast<QWidget*>(view()), static_cast<QWidget*>(lists()),
                           child<QWidget>("paletteMenuButton"), child<QWidget>("paletteFilter")}) {
        SCOPED_TRACE(focus->objectName().toStdString());
        command("Find")->trigger();
        focus->setFocus();
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(own("Reds"), "dark=c00000 darker=800000 darkest=400000");
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(own("Reds"), "red=ff0000 dark=c00000 darker=800000 darkest=400000");
        press(Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(chosenColor(), chosen) << "also with nothing left to undo";
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(own("Reds"), "darker=800000 darkest=400000");
        EXPECT_EQ(chosenColor(), chosen);
    }
    auto* filter = child<QLineEdit>("paletteFilter");
    command("Find")->trigger();
    QTest::keyClicks(filter, "dark");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(filter->text(), "") << "typing is undone first";
    EXPECT_EQ(own("Reds"), "darker=800000 darkest=400000");
    _window->pages().showPage(0);
    _window->setFocus();
    QTest::keyClick(_window.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(chosenColor(), chosen) << "elsewhere it is the panel's";
    EXPECT_EQ(own("Reds"), "darker=800000 darkest=400000");
}

TEST_F(PalettesPageTest, ListsAreCreatedRenamedCopiedAndRemoved)
{
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(own("New list"), "");
    typeName("Greens");
    EXPECT_EQ(own("New list"), "none");
    EXPECT_EQ(own("Greens"), "");
    EXPECT_EQ(shownList(), "Greens");
    show("Reds");
    view()->setFocus();
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(own("Reds copy"), own("Reds"));
    press(Qt::Key_Escape);
    EXPECT_EQ(shownList(), "Reds copy");
    press(Qt::Key_F2, Qt::ShiftModifier);
    typeName("Blues");
    EXPECT_EQ(shownList(), "Blues 2");
    EXPECT_THAT(message(), testing::HasSubstr("\"Blues 2\""));
    command("Remove the list")->trigger();
    EXPECT_EQ(own("Blues 2"), "none");
    EXPECT_NE(own("Blues"), "none");
    EXPECT_THAT(message(), testing::HasSubstr("Undo"));
    command("Undo")->trigger();
    EXPECT_EQ(own("Blues 2"), own("Reds"));
    EXPECT_EQ(shownList(), "Blues 2");
}

TEST_F(PalettesPageTest, TheFilterIsOnlyThereWhileItIsUsed)
{
    const auto* filter = child<QLineEdit>("paletteFilter");
    EXPECT_FALSE(filter->isVisible());
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(filter->isVisible());
    press(Qt::Key_Escape);
    EXPECT_FALSE(filter->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), view());
    press(Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(QApplication::focusWidget(), "darker");
    press(Qt::Key_Down);
    EXPECT_TRUE(filter->isVisible()) << "it says why colours are missing";
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Escape);
    EXPECT_EQ(shownNames(), "red dark darker darkest");
    EXPECT_TRUE(filter->isVisible()) << "who clears it goes on to type";
}

TEST_F(PalettesPageTest, KeysOfThePageWorkWhileItShows)
{
    _window->setFocus();
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(own("New list"), "");
    const auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->selectedText(), "New list") << "typing replaces it";
    press(Qt::Key_Return);

    child<QWidget>("lastColors")->setFocus();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), child<QWidget>("paletteFilter"));

    _window->pages().showPage(0);
    _window->setFocus();
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(own("New list 2"), "none");
}

TEST_F(PalettesPageTest, TheNameOfANewListIsSelectedWhenTheMenuIsUsed)
{
    auto* button = child<QToolButton>("paletteMenuButton");
    QTimer::singleShot(0, button, [] {
        QWidget* menu = QApplication::activePopupWidget();
        QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
    QTest::mouseClick(button, Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_EQ(own("New list"), "");
    EXPECT_EQ(child<QLineEdit>("paletteListName")->selectedText(), "New list");
}

TEST_F(PalettesPageTest, ANameBeingTypedIsAppliedWhenEditingFinishes)
{
    page()->finishEditing();
    EXPECT_EQ(shownList(), "Reds") << "no name is being typed";
    press(Qt::Key_F2, Qt::ShiftModifier);
    auto* field = child<QLineEdit>("paletteListName");
    field->selectAll();
    QTest::keyClicks(field, "Crimsons");
    page()->finishEditing();
    EXPECT_FALSE(field->isVisible());
    EXPECT_EQ(shownList(), "Crimsons");
    EXPECT_NE(own("Crimsons"), "none");
}

TEST_F(PalettesPageTest, ColoursAreRenamedInPlace)
{
    click(1);
    press(Qt::Key_F2);
    typeName("red");
    EXPECT_EQ(own("Reds"), "red=ff0000 red 2=c00000 darker=800000 darkest=400000");
    EXPECT_THAT(message(), testing::HasSubstr("taken"));
    click(2);
    QTest::mouseDClick(view()->viewport(), Qt::LeftButton, {}, middleOf(2));
    typeName("  tomato ");
    EXPECT_EQ(own("Reds"), "red=ff0000 red 2=c00000 tomato=800000 darkest=400000");
    EXPECT_EQ(shownNames(), "red red 2 tomato darkest");
}

TEST_F(PalettesPageTest, TheFirstChangeToAForeignListCreatesAUserCopy)
{
    show("Web (Krita)");
    EXPECT_TRUE(child<QLabel>("paletteOwnership")->isVisible());
    EXPECT_FALSE(command("Remove the list")->isEnabled());
    const std::string before = rowsAt("data/krita/palettes/Web.gpl");
    click(0);
    view()->setFocus();
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(own("Web"), "none") << "setting the same colour is not a change";
    _window->colors().setColor(rgb(9, 9, 9));
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(own("Web"), "teal=090909");
    EXPECT_EQ(shownList(), "Web");
    EXPECT_FALSE(child<QLabel>("paletteOwnership")->isVisible());
    EXPECT_THAT(message(), testing::HasSubstr("of your own"));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(own("Web"), "none");
    EXPECT_EQ(rowsAt("data/krita/palettes/Web.gpl"), before);
}

TEST_F(PalettesPageTest, ChangesByOthersShowAutomatically)
{
    click(2, Qt::ControlModifier);
    // Some programs replace a file, others overwrite it in place.
    put("data/Vantorel/Palettes/.new", "GIMP Palette\nName: Reds\n9 9 9\tnew\n128 0 0\tdarker\n");
    ASSERT_EQ(::rename(at("data/Vantorel/Palettes/.new").toLocal8Bit().constData(),
                       at("data/Vantorel/Palettes/Reds.gpl").toLocal8Bit().constData()),
              0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return shownNames() == "new darker"; }));
    EXPECT_EQ(view()->selectedPlaces(), (std::vector<std::size_t>{1})) << "the same as before";
    EXPECT_THAT(message(), testing::HasSubstr("another program"));
    put("data/Vantorel/Palettes/Reds.gpl", "GIMP Palette\nName: Reds\n9 9 9\twritten in place\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return shownNames() == "written in place"; }));
    put("data/Vantorel/Palettes/Added.gpl", "GIMP Palette\nName: Added\n9 9 9\tx\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return lists()->findText("Added") >= 0; }));
    EXPECT_EQ(shownList(), "Reds");
    QFile::remove(at("data/Vantorel/Palettes/Reds.gpl"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return shownList() != "Reds"; }));
    EXPECT_THAT(message(), testing::HasSubstr("removed by another program"));
}

TEST_F(PalettesPageTest, ChangesByBothSidesAreMerged)
{
    // No event loop runs in between, so the page cannot know.
    put("data/Vantorel/Palettes/Reds.gpl",
        QByteArray(reds).replace("192", "190").append("  9   9   9\ttheirs\n"));
    click(0, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(own("Reds"), "dark=be0000 darker=800000 darkest=400000 theirs=090909");
    EXPECT_THAT(message(), testing::HasSubstr("both changes"));
    EXPECT_EQ(shownNames(), "dark darker darkest theirs");
}

TEST_F(PalettesPageTest, ThirtyThousandColoursAreFilteredAndPaintedOnDemand)
{
    QByteArray text = "GIMP Palette\nName: Many\n";
    for (int i = 0; i < 30000; ++i)
        text += QByteArray::number(i % 256) + " 0 " + QByteArray::number(i / 256) + "\tcolour " +
                QByteArray::number(i) + "\n";
    put("data/Vantorel/Palettes/Many.gpl", text);
    files()->importFiles({});
    _window->pages().showPage(0);
    _window->pages().showPageWithKey("palettes");
    show("Many");
    view()->setFocus();
    EXPECT_EQ(view()->model()->rowCount(), 30000);
    auto* filter = child<QLineEdit>("paletteFilter");
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), filter);
    struct Row {
        const char* typed;
        const char* shown;
    };
    for (const Row& row : {Row{"OLOUR 29999", "colour 29999"}, Row{"#2f0075", "colour 29999"},
                           Row{"2F0075", "colour 29999"}, Row{"nothing", ""}}) {
        filter->setText(row.typed);
        EXPECT_EQ(shownNames(), row.shown) << row.typed;
    }
    filter->setText("colour 2999");
    EXPECT_EQ(child<QLabel>("paletteCount")->text().remove(u',').remove(u'.'), "11 of 30000");
    press(Qt::Key_Down);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_EQ(view()->model()->rowCount(), 0) << "what is not shown is not removed";
    filter->clear();
    EXPECT_EQ(view()->model()->rowCount(), 29989);
    view()->scrollToBottom();
    EXPECT_FALSE(_window->grab().isNull());
    EXPECT_TRUE(view()->viewport()->rect().intersects(
        view()->visualRect(view()->model()->index(29988, 0))));
}

TEST_F(PalettesPageTest, ThePickersPageShowsTheChanges)
{
    // "CSS Keyword" is the naming list of a new user.
    show("CSS Keyword");
    view()->setFocus();
    _window->colors().setColor(rgb(1, 2, 3));
    command("Add the panel's colour")->trigger();
    typeName("ink");
    press(Qt::Key_N, Qt::ControlModifier);
    typeName("Fresh");
    command("Add the panel's colour")->trigger();
    typeName("first");
    _window->pages().showPage(0);
    const auto shownName = [this] {
        return QAccessible::queryAccessibleInterface(child<QWidget>("hexColorNamePopUp"))
            ->text(QAccessible::Value)
            .toStdString();
    };
    EXPECT_EQ(shownName(), "ink");
    _window->pages().showPageWithKey("palettes");
    show("CSS Keyword");
    view()->selectPlaces({1});
    view()->setFocus();
    press(Qt::Key_F2);
    typeName("soot");
    _window->pages().showPage(0);
    EXPECT_EQ(shownName(), "soot");
    EXPECT_THAT(_desktop.colorLists().availableColorLists(), testing::Contains(u"Fresh"));
}

TEST_F(PalettesPageTest, EverythingFitsAtAnySize)
{
    show("Web (Krita)");
    for (const QSize size : {QSize(212, 220), QSize(260, 340), QSize(900, 700)}) {
        _window->resizeToPage(size);
        command("Find")->trigger();
        QApplication::processEvents();
        EXPECT_EQ(page()->size(), size);
        QList<QWidget*> shown;
        for (QObject* object : page()->children()) {
            auto* widget = qobject_cast<QWidget*>(object);
            if (widget != nullptr && widget->isVisible() && !widget->isWindow())
                shown.append(widget);
        }
        EXPECT_GE(view()->height(), 60);
        for (const QWidget* one : shown) {
            EXPECT_TRUE(page()->rect().contains(one->geometry()))
                << one->objectName().toStdString() << " at " << size.width();
            EXPECT_TRUE(!one->toolTip().isEmpty() || one->focusPolicy() == Qt::NoFocus ||
                        one == view())
                << one->objectName().toStdString();
            EXPECT_TRUE(!one->accessibleName().isEmpty() || one->focusPolicy() == Qt::NoFocus)
                << one->objectName().toStdString();
            for (const QWidget* other : shown) {
                EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()))
                    << one->objectName().toStdString() << " and "
                    << other->objectName().toStdString() << " at " << size.width();
            }
        }
    }
}

}  // namespace
}  // namespace vantorel
