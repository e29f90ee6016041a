#include "PanelCommandsFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>

namespace vantorel {
namespace {

/// The page "Scales" in the panel.
class ScalesInPanelTest : public PanelCommandsFixture {
protected:
    void SetUp() override
    {
        PanelCommandsFixture::SetUp();
        _window->colors().setColor(rgb(59, 130, 246));
        _window->pages().showPageWithKey(QStringLiteral("scales"));
    }
    [[nodiscard]] HostColorPicker& picker() const { return *_window->pages().currentPicker(); }
    [[nodiscard]] QString spoken(const char* name) const
    {
        QAccessibleInterface* view = QAccessible::queryAccessibleInterface(child<QWidget>(name));
        return view != nullptr ? view->text(QAccessible::Description) : QString();
    }
    [[nodiscard]] QString contrasts() const { return spoken("scalesContrastLines"); }
};

TEST_F(ScalesInPanelTest, AClickTakesAColourAndIsAStepToUndo)
{
    auto* tints = child<QWidget>("scalesScaleRow2");
    QTest::mouseClick(tints, Qt::LeftButton, {}, {tints->width() - 12, tints->height() / 2});
    EXPECT_NE(chosenColor(), QColor(59, 130, 246));
    _window->colors().undo();
    EXPECT_EQ(chosenColor(), QColor(59, 130, 246));
    EXPECT_EQ(spoken("scalesScaleRow1"), "500, #3B82F6, the colour itself");
}

TEST_F(ScalesInPanelTest, ContrastsAreThoseOfThePanelsTwoColours)
{
    picker().performAction("contrast", nullptr);
    _window->colors().setBackground(HostColor::blackColor());
    EXPECT_TRUE(contrasts().startsWith("Background 5.70 AA;")) << contrasts().toStdString();
    _window->colors().setBackground(rgb(15, 23, 42));
    EXPECT_TRUE(contrasts().startsWith("Background 4.85 AA;")) << contrasts().toStdString();
    _window->colors().edit(EditedColor::background);
    EXPECT_TRUE(contrasts().startsWith("Background 4.85 AA; White 17."))
        << contrasts().toStdString();
    EXPECT_EQ(picker().colorPanel().colorPair(),
              (HostColorPair{rgb(59, 130, 246), rgb(15, 23, 42), true}));
}

TEST_F(ScalesInPanelTest, TextsAreCopiedAndReported)
{
    picker().colorPanel().copyText(u"--a: #3b82f6;\n--b: \u00E4;");
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("--a: #3b82f6;\n--b: \u00E4;"));
    picker().colorPanel().report(u"Scale: <b>%1</b> copied");
    EXPECT_TRUE(message().contains("Scale: <b>%1</b> copied")) << message().toStdString();
}

}  // namespace
}  // namespace vantorel
