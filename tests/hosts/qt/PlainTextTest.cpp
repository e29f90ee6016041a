#include "hosts/qt/PlainText.h"

#include "hosts/qt/QtMenu.h"
#include "hosts/qt/QtTextField.h"

#include <gtest/gtest.h>

#include <QTextDocument>

#include <memory>

namespace vantorel {
namespace {

const QString picture = QStringLiteral("<img src=\"/dev/zero\">");

/// Returns what a tool tip shows.
QString shownText(const QString& toolTip)
{
    if (!Qt::mightBeRichText(toolTip)) return toolTip;
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

TEST(PlainTextTest, ToolTipsShowTagsAsText)
{
    for (const QString& text :
         {picture, QStringLiteral("  <b>bold</b> & <!doctype x>"), QStringLiteral("<a\n<b>c"),
          QStringLiteral("&lt;i&gt;"), QStringLiteral("<?xml version='1.0'?><p>x</p>"),
          QStringLiteral("Black & white"), QStringLiteral("1 < 2 > 0"), QString()}) {
        EXPECT_EQ(shownText(plainToolTip(text)), text);
    }
    EXPECT_EQ(plainToolTip(QStringLiteral("Opacity & colour")), "Opacity & colour")
        << "ordinary texts are unchanged";
}

TEST(PlainTextTest, ToolTipsOfViewsShowTagsAsText)
{
    QtLabel label({});
    label.setToolTip(picture.toStdU16String());
    EXPECT_EQ(shownText(label.widget()->toolTip()), picture);
    label.setToolTip(std::nullopt);
    EXPECT_EQ(label.widget()->toolTip(), "");
}

TEST(PlainTextTest, TitlesShowAmpersandsAndStayInTheirColumn)
{
    EXPECT_EQ(plainTitle(QStringLiteral("Black && white\tCtrl+Q")), "Black &&&& white Ctrl+Q");
}

TEST(PlainTextTest, MenusShowTitlesAsWritten)
{
    HostMenu items(2);
    items[0].title = u"Black & white\tCtrl+Q";
    items[1].title = u"Salt & pepper";
    items[1].submenu = [] { return HostMenu(); };
    QWidget parent;
    const std::unique_ptr<QMenu> menu(makeMenu(items, 0, parent, {}));
    EXPECT_EQ(menu->actions().at(0)->text(), "Black && white Ctrl+Q");
    EXPECT_EQ(menu->actions().at(1)->menu()->title(), "Salt && pepper");
}

TEST(PlainTextTest, LabelsShowTagsAsText)
{
    EXPECT_EQ(PlainLabel(picture).textFormat(), Qt::PlainText);
    const QtLabel label({});
    EXPECT_EQ(static_cast<QLabel*>(label.widget())->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace vantorel
