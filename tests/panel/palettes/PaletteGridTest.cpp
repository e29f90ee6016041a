#include "PalettesPageFixture.h"
#include "hosts/qt/TextScale.h"
#include "panel/palettes/PaletteGrid.h"
#include "panel/window/PanelMemory.h"

#include <QAccessible>
#include <QLabel>
#include <QMimeData>
#include <QRadioButton>
#include <QRegularExpression>

#include <memory>

namespace vantorel {
namespace {

TEST(PaletteGridTest, SwatchesFillEveryWidthAndAreNeverTooSmall)
{
    for (int width = scaled(28); width < 1200; width += 7) {
        const PaletteGrid grid(width);
        int filled = 0;
        for (int column = 0; column < grid.columns(); ++column) {
            filled += grid.cellSize(column).width();
            EXPECT_GE(grid.swatchSize(column).width(), scaled(28)) << width;
            EXPECT_GE(grid.swatchSize(column).height(), scaled(28)) << width;
            EXPECT_EQ(grid.cellSize(column), grid.cellSize(column + grid.columns())) << width;
        }
        EXPECT_EQ(filled, width);
        // One more column would not fit.
        EXPECT_LT(width, (grid.columns() + 1) * scaled(28) + grid.columns() * scaled(4)) << width;
    }
}

TEST(PaletteGridTest, RowsAreMovedThroughWithoutLeavingTheColumn)
{
    const PaletteGrid grid(3 * scaled(28) + 2 * scaled(4));
    ASSERT_EQ(grid.columns(), 3);
    struct Row {
        int entry;
        int rows;
        int expected;
    };
    // 0 1 2
    // 3 4 5
    // 6 7
    for (const Row& row : {Row{1, 1, 4}, Row{1, 2, 7}, Row{1, 9, 7}, Row{2, 2, 7}, Row{5, 1, 7},
                           Row{7, 1, 7}, Row{7, -1, 4}, Row{7, -9, 1}, Row{0, -1, 0}}) {
        EXPECT_EQ(grid.entryBelow(row.entry, row.rows, 8), row.expected)
            << row.entry << " " << row.rows;
    }
}

class PaletteGridPageTest : public PalettesPageTest {
protected:
    void SetUp() override
    {
        QByteArray many = "GIMP Palette\nName: Many\n";
        for (int i = 0; i < 20; ++i)
            many += QByteArray::number(i) + " 0 0\tcolour " + QByteArray::number(i) + "\n";
        put("data/Vantorel/Palettes/Many.gpl", many);
        PalettesPageTest::SetUp();
        show("Many");
        choose("grid");
        view()->setFocus();
    }

    void choose(const char* arrangement) const
    {
        child<QWidget>("paletteArrangement")->findChild<QRadioButton*>(arrangement)->click();
        QApplication::processEvents();
    }
    [[nodiscard]] QRect placeOf(int row) const
    {
        return view()->visualRect(view()->model()->index(row, 0));
    }
    [[nodiscard]] int current() const { return view()->currentIndex().row(); }
    [[nodiscard]] int columns() const { return view()->grid().columns(); }
};

TEST_F(PaletteGridPageTest, SwatchesLieInRowsAsWideAsThePage)
{
    for (const int width : {212, 260, 431, 900}) {
        _window->resizeToPage({width, 400});
        QApplication::processEvents();
        const int perRow = columns();
        ASSERT_LT(perRow, 40);
        EXPECT_EQ(placeOf(0).topLeft(), QPoint(0, 0));
        for (int row = 1; row < 20; ++row) {
            const bool startsRow = row % perRow == 0;
            EXPECT_EQ(placeOf(row).left(), startsRow ? 0 : placeOf(row - 1).right() + 1)
                << row << " at " << width;
            EXPECT_EQ(placeOf(row).top(),
                      placeOf(row - 1).top() + (startsRow ? view()->grid().rowHeight() : 0))
                << row << " at " << width;
        }
        if (perRow <= 20) {
            const QWidget* other = child<QWidget>("paletteMenuButton");
            EXPECT_EQ(view()->mapTo(page(), placeOf(perRow - 1).bottomRight()).x(),
                      other->geometry().right())
                << width;
        }
    }
}

TEST_F(PaletteGridPageTest, TheScrollBarCoversNoSwatch)
{
    choose("list");
    _window->resizeToPage({276, 400});
    QApplication::processEvents();
    choose("grid");
    const QRect last = placeOf(columns() - 1);
    const QPoint right = view()->mapTo(page(), QPoint(last.right() - 1, last.center().y()));
    const QImage picture = page()->grab().toImage();
    const QColor ground = picture.pixelColor(right + QPoint(0, last.height() / 2 + 2));
    EXPECT_NE(picture.pixelColor(right), ground);
    EXPECT_NE(picture.pixelColor(right + QPoint(1, 0)), ground);
}

TEST_F(PaletteGridPageTest, ArrowsMoveInTwoDimensionsAndReturnPicks)
{
    view()->setCurrentIndex(view()->model()->index(0, 0));
    press(Qt::Key_Down);
    EXPECT_EQ(current(), columns());
    press(Qt::Key_Right);
    EXPECT_EQ(current(), columns() + 1);
    press(Qt::Key_Up);
    EXPECT_EQ(current(), 1);
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(current(), 0) << "nothing is before the first";
    press(Qt::Key_End);
    EXPECT_EQ(current(), 19);
    press(Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(view()->selectedPlaces().size(), 20U);
    for (int i = 0; i < columns(); ++i)
        press(Qt::Key_Right);
    EXPECT_EQ(current(), columns()) << "rows go on in the next one";
    press(Qt::Key_Return);
    EXPECT_EQ(chosenColor(), QColor(columns(), 0, 0));
}

TEST_F(PaletteGridPageTest, AltAndTheArrowsBesideMoveASwatch)
{
    click(2, Qt::ControlModifier);
    press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(shownNames().substr(0, 26), "colour 0 colour 2 colour 1");
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(shownNames().substr(0, 26), "colour 0 colour 1 colour 2");
}

TEST_F(PaletteGridPageTest, TypedLettersSearchEvenThoseThatAreShortcuts)
{
    put("data/Vantorel/Palettes/Words.gpl",
        "GIMP Palette\nName: Words\n1 1 1\tred\n2 2 2\ttaupe\n3 3 3\tt x\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return lists()->findText("Words") >= 0; }));
    show("Words");
    view()->setFocus();
    const QColor before = chosenColor();
    // In a real window an X alone would swap colour and background.
    QTest::keyClicks(view(), "t x");
    EXPECT_EQ(current(), 2);
    EXPECT_EQ(chosenColor(), before);
    EXPECT_EQ(qColorFrom(_window->colors().background()), QColor(Qt::white));
}

TEST_F(PaletteGridPageTest, TheNameUnderThePointerOrTheFocusIsShown)
{
    const auto named = [this] { return child<QLabel>("paletteNamed")->text().toStdString(); };
    view()->setCurrentIndex(view()->model()->index(2, 0));
    EXPECT_EQ(named(), "colour 2, #020000");
    QTest::mouseMove(view()->viewport(), middleOf(7));
    QApplication::processEvents();
    EXPECT_EQ(named(), "colour 7, #070000");
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(view()->viewport(), &leave);
    EXPECT_EQ(named(), "colour 2, #020000");
    choose("list");
    EXPECT_EQ(named(), "") << "the rows show theirs";
    EXPECT_EQ(view()
                  ->model()
                  ->index(7, 0)
                  .data(Qt::ToolTipRole)
                  .toString()
                  .remove(QRegularExpression("<[^>]*>")),
              "colour 7, #070000");
}

TEST_F(PaletteGridPageTest, AssistiveTechnologyReadsNameAndCode)
{
    QAccessibleInterface* grid = QAccessible::queryAccessibleInterface(view());
    ASSERT_NE(grid, nullptr);
    ASSERT_EQ(grid->childCount(), 20);
    EXPECT_EQ(grid->child(3)->text(QAccessible::Name), "colour 3, #030000");
}

TEST_F(PaletteGridPageTest, ColoursAreDroppedBetweenSwatchesAndRenamedInTheGrid)
{
    QMimeData data;
    data.setText("#00ff00");
    const QRect third = placeOf(2);
    EXPECT_TRUE(drop(view()->viewport(), data, third.topLeft() + QPoint(2, 10)));
    EXPECT_EQ(shownNames().substr(0, 27), "colour 0 colour 1 #00FF00 c");
    const QRect last = placeOf(20);
    EXPECT_TRUE(drop(view()->viewport(), data, last.center() + QPoint(last.width(), 0)));
    EXPECT_EQ(view()->model()->rowCount(), 22);
    EXPECT_EQ(view()->selectedPlaces(), std::vector<std::size_t>{21});
    press(Qt::Key_F2);
    auto* field = child<QLineEdit>("paletteEntryName");
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(view()->viewport()->rect().contains(field->geometry()));
    EXPECT_GE(field->width(), 100);
    typeName("grass");
    EXPECT_THAT(shownNames(), testing::EndsWith(" grass"));
}

TEST_F(PaletteGridPageTest, TheArrangementKeepsTheSelectionAndIsRemembered)
{
    view()->selectPlaces({3, 9});
    EXPECT_TRUE(_window->memory().showsPalettesAsGrid);
    choose("list");
    EXPECT_EQ(view()->selectedPlaces(), (std::vector<std::size_t>{3, 9}));
    EXPECT_EQ(placeOf(1).left(), placeOf(0).left());
    EXPECT_FALSE(_window->memory().showsPalettesAsGrid);
    PanelMemory memory;
    memory.showsPalettesAsGrid = true;
    ASSERT_TRUE(writePanelMemory(memory));
    _window->recall(readPanelMemory());
    ASSERT_TRUE(_window->pages().showPageWithKey("palettes"));
    QApplication::processEvents();
    EXPECT_EQ(view()->arrangement(), PaletteEntriesView::Arrangement::grid);
}

TEST_F(PaletteGridPageTest, ThirtyThousandSwatchesCanBeReached)
{
    QByteArray text = "GIMP Palette\nName: Thousands\n";
    for (int i = 0; i < 30000; ++i)
        text += QByteArray::number(i % 256) + " 0 " + QByteArray::number(i / 256) + "\tc\n";
    put("data/Vantorel/Palettes/Thousands.gpl", text);
    ASSERT_TRUE(QTest::qWaitFor([&] { return lists()->findText("Thousands") >= 0; }));
    show("Thousands");
    ASSERT_TRUE(QTest::qWaitFor([&] { return view()->model()->rowCount() == 30000; }));
    view()->setFocus();
    view()->setCurrentIndex(view()->model()->index(0, 0));
    press(Qt::Key_End);
    EXPECT_EQ(current(), 29999);
    EXPECT_TRUE(view()->viewport()->rect().intersects(placeOf(29999)));
    EXPECT_FALSE(_window->grab().isNull());
}

TEST_F(PalettesPageTest, WhoRenamesACodeIsOfferedTheNearestNameOfCSS)
{
    put("data/Vantorel/Palettes/Codes.gpl",
        "GIMP Palette\nName: Codes\n254 1 1\t#FE0101\n0 0 254\t#0000FE\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return lists()->findText("Codes") >= 0; }));
    show("Codes");
    view()->setFocus();
    click(0);
    press(Qt::Key_F2);
    auto* field = child<QLineEdit>("paletteEntryName");
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->selectedText(), "red") << "typing replaces it";
    view()->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(own("Codes"), "#FE0101=fe0101 #0000FE=0000fe") << "who goes elsewhere has not agreed";
    press(Qt::Key_F2);
    press(Qt::Key_Escape);
    EXPECT_EQ(own("Codes"), "#FE0101=fe0101 #0000FE=0000fe");
    press(Qt::Key_F2);
    press(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(own("Codes"), "red=fe0101 #0000FE=0000fe");
    _window->colors().setColor(rgb(0, 200, 0));
    press(Qt::Key_Insert);
    EXPECT_EQ(own("Codes"), "red=fe0101 #00C800=00c800 #0000FE=0000fe");
    press(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(own("Codes"), "red=fe0101 limegreen=00c800 #0000FE=0000fe");
}

}  // namespace
}  // namespace vantorel
